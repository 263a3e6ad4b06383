// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "KeyChord.h"

#include <algorithm>
#include <iterator>

namespace outliner {

using lumui::ui::KeyboardCode;

namespace {

struct Modifier {
  std::string_view name;
  unsigned char bit;
};

constexpr Modifier kModifiers[] = {
    {"Ctrl", lumui::ui::kModCommand},
    {"Shift", lumui::ui::kModShift},
    {"Alt", lumui::ui::kModAlt},
};

struct NamedKey {
  std::string_view name;
  unsigned short code;
};

constexpr NamedKey kNamedKeys[] = {
    {"Return", KeyboardCode::kReturn},     {"Enter", KeyboardCode::kEnter},
    {"Tab", KeyboardCode::kTab},           {"Escape", KeyboardCode::kEscape},
    {"Space", KeyboardCode::kSpace},       {"Backspace", KeyboardCode::kBackspace},
    {"Delete", KeyboardCode::kDelete},     {"Up", KeyboardCode::kUpArrow},
    {"Down", KeyboardCode::kDownArrow},    {"Left", KeyboardCode::kLeftArrow},
    {"Right", KeyboardCode::kRightArrow},  {"Home", KeyboardCode::kHome},
    {"End", KeyboardCode::kEnd},           {"PageUp", KeyboardCode::kPageUp},
    {"PageDown", KeyboardCode::kPageDown}, {"F1", KeyboardCode::kF1},
    {"F2", KeyboardCode::kF1 + 1},
};

const Modifier* FindModifier(std::string_view inName) {
  const auto found =
      std::find_if(std::begin(kModifiers), std::end(kModifiers),
                   [&](const Modifier& inModifier) { return inModifier.name == inName; });
  return found == std::end(kModifiers) ? nullptr : &*found;
}

KeyboardCode FindCode(std::string_view inName) {
  for (const NamedKey& key : kNamedKeys) {
    if (key.name == inName) return KeyboardCode::CreateFromControlCode(key.code, false);
  }
  const bool isCharacter = inName.size() == 1 && inName[0] > ' ' && inName[0] < 0x7F;
  if (!isCharacter) return KeyboardCode();
  return KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned char>(inName[0]), false);
}

}  // namespace

bool ParseKeyChord(std::string_view inName, KeyChord& outChord) {
  outChord = KeyChord();
  // Behind the first letter, so that "Ctrl++" and "+" name the plus key.
  for (auto plus = inName.find('+', 1); plus != inName.npos; plus = inName.find('+', 1)) {
    const Modifier* modifier = FindModifier(inName.substr(0, plus));
    if (!modifier) return false;
    outChord.modifiers.Set(modifier->bit);
    inName.remove_prefix(plus + 1);
  }
  outChord.code = FindCode(inName);
  return outChord.code != KeyboardCode();
}

}  // namespace outliner
