// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/KeyNames.h"

#include <cstdint>
#include <map>

#include "lumcore/config/Localizer.h"

namespace vek::uisupport {

using lumui::ui::KeyboardCode;

namespace {

constexpr std::uint32_t kExtended = KeyboardCode::kExtendedBit;
constexpr std::uint32_t kPadCharacter = KeyboardCode::kCharacterBit | KeyboardCode::kExtendedBit;

struct Row {
  std::uint32_t code;
  const char* key;
};

// Whole keys: those that are put together when the program runs are found by no tool.
constexpr Row kRows[] = {
    {KeyboardCode::kSpace, "$$$/vek/keyboard/keycodenames/Space=Space"},
    {KeyboardCode::kBackspace, "$$$/vek/keyboard/keycodenames/Backspace=Backspace"},
    {KeyboardCode::kTab, "$$$/vek/keyboard/keycodenames/Tab=Tab"},
    {KeyboardCode::kReturn, "$$$/vek/keyboard/keycodenames/Return=Return"},
    {KeyboardCode::kEnter, "$$$/vek/keyboard/keycodenames/Enter=Enter"},
    {KeyboardCode::kEscape, "$$$/vek/keyboard/keycodenames/Esc=Esc"},
    {KeyboardCode::kPause, "$$$/vek/keyboard/keycodenames/Pause=Pause"},
    {KeyboardCode::kInsert, "$$$/vek/keyboard/keycodenames/Ins=Ins"},
    {KeyboardCode::kDelete, "$$$/vek/keyboard/keycodenames/Del=Del"},
    {KeyboardCode::kHome, "$$$/vek/keyboard/keycodenames/Home=Home"},
    {KeyboardCode::kEnd, "$$$/vek/keyboard/keycodenames/End=End"},
    {KeyboardCode::kPageUp, "$$$/vek/keyboard/keycodenames/PageUp=Page Up"},
    {KeyboardCode::kPageDown, "$$$/vek/keyboard/keycodenames/PageDown=Page Down"},
    {KeyboardCode::kLeftArrow, "$$$/vek/keyboard/keycodenames/LeftArrow=Left Arrow"},
    {KeyboardCode::kRightArrow, "$$$/vek/keyboard/keycodenames/RightArrow=Right Arrow"},
    {KeyboardCode::kUpArrow, "$$$/vek/keyboard/keycodenames/UpArrow=Up Arrow"},
    {KeyboardCode::kDownArrow, "$$$/vek/keyboard/keycodenames/DownArrow=Down Arrow"},
    {KeyboardCode::kShiftKey, "$$$/vek/keyboard/keycodenames/Shift=Shift"},
    {kExtended | KeyboardCode::kNumLock, "$$$/vek/keyboard/keycodenames/NumLock=Num Lock"},
    {kPadCharacter | '*', "$$$/vek/keyboard/keycodenames/NumStar=Num *"},
    {kPadCharacter | '+', "$$$/vek/keyboard/keycodenames/NumPlus=Num +"},
    {kPadCharacter | '-', "$$$/vek/keyboard/keycodenames/NumMinus=Num -"},
    {kPadCharacter | '.', "$$$/vek/keyboard/keycodenames/NumDot=Num ."},
    {kPadCharacter | '/', "$$$/vek/keyboard/keycodenames/NumSlash=Num /"},
    {kPadCharacter | '=', "$$$/vek/keyboard/keycodenames/NumEquals=Num ="},
    {KeyboardCode::kF1, "$$$/vek/keyboard/keycodenames/F1=F1"},
    {KeyboardCode::kF1 + 1, "$$$/vek/keyboard/keycodenames/F2=F2"},
    {KeyboardCode::kF1 + 2, "$$$/vek/keyboard/keycodenames/F3=F3"},
    {KeyboardCode::kF1 + 3, "$$$/vek/keyboard/keycodenames/F4=F4"},
    {KeyboardCode::kF1 + 4, "$$$/vek/keyboard/keycodenames/F5=F5"},
    {KeyboardCode::kF1 + 5, "$$$/vek/keyboard/keycodenames/F6=F6"},
    {KeyboardCode::kF1 + 6, "$$$/vek/keyboard/keycodenames/F7=F7"},
    {KeyboardCode::kF1 + 7, "$$$/vek/keyboard/keycodenames/F8=F8"},
    {KeyboardCode::kF1 + 8, "$$$/vek/keyboard/keycodenames/F9=F9"},
    {KeyboardCode::kF1 + 9, "$$$/vek/keyboard/keycodenames/F10=F10"},
    {KeyboardCode::kF1 + 10, "$$$/vek/keyboard/keycodenames/F11=F11"},
    {KeyboardCode::kF1 + 11, "$$$/vek/keyboard/keycodenames/F12=F12"},
    {kPadCharacter | '0', "$$$/vek/keyboard/keycodenames/Num0=Num 0"},
    {kPadCharacter | '1', "$$$/vek/keyboard/keycodenames/Num1=Num 1"},
    {kPadCharacter | '2', "$$$/vek/keyboard/keycodenames/Num2=Num 2"},
    {kPadCharacter | '3', "$$$/vek/keyboard/keycodenames/Num3=Num 3"},
    {kPadCharacter | '4', "$$$/vek/keyboard/keycodenames/Num4=Num 4"},
    {kPadCharacter | '5', "$$$/vek/keyboard/keycodenames/Num5=Num 5"},
    {kPadCharacter | '6', "$$$/vek/keyboard/keycodenames/Num6=Num 6"},
    {kPadCharacter | '7', "$$$/vek/keyboard/keycodenames/Num7=Num 7"},
    {kPadCharacter | '8', "$$$/vek/keyboard/keycodenames/Num8=Num 8"},
    {kPadCharacter | '9', "$$$/vek/keyboard/keycodenames/Num9=Num 9"},
};

using NameTable = std::map<KeyboardCode, lumcore::UTF16String>;

NameTable BuildTable() {
  NameTable table;
  for (const Row& row : kRows)
    table[KeyboardCode(row.code)] = lumcore::config::Localizer::Get()->GetLocalizedString(row.key);
  return table;
}

}  // namespace

const lumcore::UTF16String* FindKeyName(KeyboardCode inCode) {
  static const NameTable* const sTable = new NameTable(BuildTable());
  const auto found = sTable->find(inCode);
  return found == sTable->end() ? nullptr : &found->second;
}

}  // namespace vek::uisupport
