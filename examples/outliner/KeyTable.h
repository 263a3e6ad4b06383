// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string_view>
#include <utility>

#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"

namespace outliner {

// A key with the modifiers that are held.
struct KeyChord {
  lumui::ui::KeyboardCode code;
  lumui::ui::ModifierKeys modifiers;
};

// Reads "Ctrl+Shift+Z", "Return" or "F2". False for what names no key.
bool ParseKeyChord(std::string_view inName, KeyChord& outChord);

// Which key means which command: a plain list, fixed at the start. A key of the number pad means
// what its twin does.
class KeyTable {
 public:
  KeyTable();  // the host's own keys

  // 0 for a key that means no command.
  int FindCommand(lumui::ui::KeyboardCode inCode, lumui::ui::ModifierKeys inModifiers) const;

 private:
  using Key = std::pair<std::uint32_t, unsigned>;

  std::map<Key, int> mCommands;
};

}  // namespace outliner
