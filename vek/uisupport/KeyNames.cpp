// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/KeyNames.h"

#include <cstdint>
#include <map>
#include <string>

#include "lumcore/config/Localizer.h"

namespace vek::uisupport {

using lumui::ui::KeyboardCode;

namespace {

constexpr std::uint32_t kExtended = KeyboardCode::kExtendedBit;
constexpr std::uint32_t kPadCharacter = KeyboardCode::kCharacterBit | KeyboardCode::kExtendedBit;

struct Row {
  std::uint32_t code;
  const char* name;
  const char* text;
};

constexpr Row kRows[] = {
    {KeyboardCode::kSpace, "Space", "Space"},
    {KeyboardCode::kBackspace, "Backspace", "Backspace"},
    {KeyboardCode::kTab, "Tab", "Tab"},
    {KeyboardCode::kReturn, "Return", "Return"},
    {KeyboardCode::kEnter, "Enter", "Enter"},
    {KeyboardCode::kEscape, "Esc", "Esc"},
    {KeyboardCode::kPause, "Pause", "Pause"},
    {KeyboardCode::kInsert, "Ins", "Ins"},
    {KeyboardCode::kDelete, "Del", "Del"},
    {KeyboardCode::kHome, "Home", "Home"},
    {KeyboardCode::kEnd, "End", "End"},
    {KeyboardCode::kPageUp, "PageUp", "Page Up"},
    {KeyboardCode::kPageDown, "PageDown", "Page Down"},
    {KeyboardCode::kLeftArrow, "LeftArrow", "Left Arrow"},
    {KeyboardCode::kRightArrow, "RightArrow", "Right Arrow"},
    {KeyboardCode::kUpArrow, "UpArrow", "Up Arrow"},
    {KeyboardCode::kDownArrow, "DownArrow", "Down Arrow"},
    {KeyboardCode::kShiftKey, "Shift", "Shift"},
    {kExtended | KeyboardCode::kNumLock, "NumLock", "Num Lock"},
    {kPadCharacter | '*', "NumStar", "Num *"},
    {kPadCharacter | '+', "NumPlus", "Num +"},
    {kPadCharacter | '-', "NumMinus", "Num -"},
    {kPadCharacter | '.', "NumDot", "Num ."},
    {kPadCharacter | '/', "NumSlash", "Num /"},
    {kPadCharacter | '=', "NumEquals", "Num ="},
};
constexpr int kFunctionKeys = 12;  // those above have no name

using NameTable = std::map<KeyboardCode, lumcore::UTF16String>;

void AddName(NameTable& ioTable, std::uint32_t inCode, const std::string& inName,
             const std::string& inText) {
  const std::string key = "$$$/vek/keyboard/keycodenames/" + inName + "=" + inText;
  ioTable[KeyboardCode(inCode)] =
      lumcore::config::Localizer::Get()->GetLocalizedString(key.c_str());
}

NameTable BuildTable() {
  NameTable table;
  for (const Row& row : kRows)
    AddName(table, row.code, row.name, row.text);
  for (int at = 0; at < kFunctionKeys; ++at) {
    const std::string name = "F" + std::to_string(at + 1);
    AddName(table, static_cast<std::uint32_t>(KeyboardCode::kF1 + at), name, name);
  }
  for (char digit = '0'; digit <= '9'; ++digit)
    AddName(table, kPadCharacter | static_cast<std::uint32_t>(digit), std::string("Num") + digit,
            std::string("Num ") + digit);
  return table;
}

}  // namespace

const lumcore::UTF16String* FindKeyName(KeyboardCode inCode) {
  static const NameTable* const sTable = new NameTable(BuildTable());
  const auto found = sTable->find(inCode);
  return found == sTable->end() ? nullptr : &found->second;
}

}  // namespace vek::uisupport
