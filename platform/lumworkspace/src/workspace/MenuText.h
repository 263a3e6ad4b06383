// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"

namespace lumworkspace::workspace {

// The name of a workspace as the text of a menu item, where a single '&' would mark a mnemonic, and
// a tab begin another column.
lumcore::UTF16String MenuText(const lumcore::UTF16String& inName);

}  // namespace lumworkspace::workspace
