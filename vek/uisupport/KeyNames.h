// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/KeyboardCode.h"

namespace vek::uisupport {

// The localised name of a key that is no character, such as "Page Up" or "Num 7"; null for a key
// without one. The names are looked up once, at the first call.
const lumcore::UTF16String* FindKeyName(lumui::ui::KeyboardCode inCode);

}  // namespace vek::uisupport
