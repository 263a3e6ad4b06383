// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"

namespace outliner {

// A key with the modifiers that are held.
struct KeyChord {
  lumui::ui::KeyboardCode code;
  lumui::ui::ModifierKeys modifiers;
};

// Reads "Ctrl+Shift+Z", "Return", "F12" or "Num7": the names that the framework shows for keys, in
// English and in one word. False for what names no key.
bool ParseKeyChord(std::string_view inName, KeyChord& outChord);

}  // namespace outliner
