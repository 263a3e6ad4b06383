// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "KeyChord.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <string>

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
  std::uint32_t code;
};

constexpr std::uint32_t kPad = KeyboardCode::kExtendedBit;
constexpr std::uint32_t kPadCharacter = KeyboardCode::kCharacterBit | kPad;

constexpr NamedKey kNamedKeys[] = {
    {"Return", KeyboardCode::kReturn},     {"Enter", KeyboardCode::kEnter},
    {"Tab", KeyboardCode::kTab},           {"Escape", KeyboardCode::kEscape},
    {"Space", KeyboardCode::kSpace},       {"Backspace", KeyboardCode::kBackspace},
    {"Delete", KeyboardCode::kDelete},     {"Up", KeyboardCode::kUpArrow},
    {"Down", KeyboardCode::kDownArrow},    {"Left", KeyboardCode::kLeftArrow},
    {"Right", KeyboardCode::kRightArrow},  {"Home", KeyboardCode::kHome},
    {"End", KeyboardCode::kEnd},           {"PageUp", KeyboardCode::kPageUp},
    {"PageDown", KeyboardCode::kPageDown}, {"Insert", KeyboardCode::kInsert},
    {"Pause", KeyboardCode::kPause},       {"NumLock", KeyboardCode::kNumLock | kPad},
    {"NumStar", kPadCharacter | '*'},      {"NumPlus", kPadCharacter | '+'},
    {"NumMinus", kPadCharacter | '-'},     {"NumDot", kPadCharacter | '.'},
    {"NumSlash", kPadCharacter | '/'},     {"NumEquals", kPadCharacter | '='},
};

struct NumberedKeys {
  const char* prefix;
  std::uint32_t first;
  std::uint32_t last;
  std::uint32_t code;  // of the first
};

constexpr NumberedKeys kNumberedKeys[] = {
    {"F", 1, 24, KeyboardCode::kF1},
    {"Num", 0, 9, kPadCharacter | '0'},
};

const Modifier* FindModifier(std::string_view inName) {
  const auto found =
      std::find_if(std::begin(kModifiers), std::end(kModifiers),
                   [&](const Modifier& inModifier) { return inModifier.name == inName; });
  return found == std::end(kModifiers) ? nullptr : &*found;
}

KeyboardCode FindCode(std::string_view inName) {
  for (const NamedKey& key : kNamedKeys) {
    if (key.name == inName) return KeyboardCode(key.code);
  }
  for (const NumberedKeys& keys : kNumberedKeys) {
    for (std::uint32_t number = keys.first; number <= keys.last; ++number) {
      if (keys.prefix + std::to_string(number) == inName) {
        return KeyboardCode(keys.code + number - keys.first);
      }
    }
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
