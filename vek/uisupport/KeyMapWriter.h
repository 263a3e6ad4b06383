// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/uisupport/KeyCommand.h"

namespace vek::uisupport {

// The key map file of these mappings, in UTF-8 with CR LF between the lines. A mapping whose
// command the registry does not know is left out. The key type and the two control modifiers are
// not written; the command key is.
lumcore::UTF8String RenderKeyMap(const KeyCommandList& inMappings);

}  // namespace vek::uisupport
