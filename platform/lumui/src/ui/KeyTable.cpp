// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/KeyTable.h"

#include <QtCore/qnamespace.h>

#include <iterator>

namespace lumui::ui {

namespace {

using Code = KeyboardCode;
constexpr std::uint32_t kPad = Code::kExtendedBit;

// The one table of keys that are no plain characters. For the search from a code the first row
// wins; rows with the same code behind it bring further keys of Qt in. OS codes as KeyboardCode
// tells them.
struct Row {
  int key;
  bool keypad;
  std::uint32_t code;
  int osCode;
};

constexpr Row kRows[] = {
    {Qt::Key_Space, false, Code::kSpace, 0x20},
    {Qt::Key_Backspace, false, Code::kBackspace, 0x08},
    {Qt::Key_Tab, false, Code::kTab, 0x09},
    {Qt::Key_Backtab, false, Code::kTab, 0x09},
    {Qt::Key_Return, false, Code::kReturn, 0x0D},
    {Qt::Key_Enter, true, Code::kEnter, -0x0D},
    {Qt::Key_Enter, false, Code::kEnter, -0x0D},
    {Qt::Key_Escape, false, Code::kEscape, 0x1B},
    {Qt::Key_Print, false, Code::kPrintScreen, -0x2C},
    {Qt::Key_SysReq, false, Code::kPrintScreen, -0x2C},
    {Qt::Key_Menu, false, Code::kContextMenu, -0x5D},
    {Qt::Key_Pause, false, Code::kPause, 0x13},
    {Qt::Key_Insert, false, Code::kInsert, -0x2D},
    {Qt::Key_Insert, true, Code::kInsert | kPad, 0x2D},
    {Qt::Key_Delete, false, Code::kDelete, -0x2E},
    {Qt::Key_Delete, true, Code::kDelete | kPad, 0x2E},
    {Qt::Key_Home, false, Code::kHome, -0x24},
    {Qt::Key_Home, true, Code::kHome | kPad, 0x24},
    {Qt::Key_End, false, Code::kEnd, -0x23},
    {Qt::Key_End, true, Code::kEnd | kPad, 0x23},
    {Qt::Key_PageUp, false, Code::kPageUp, -0x21},
    {Qt::Key_PageUp, true, Code::kPageUp | kPad, 0x21},
    {Qt::Key_PageDown, false, Code::kPageDown, -0x22},
    {Qt::Key_PageDown, true, Code::kPageDown | kPad, 0x22},
    {Qt::Key_Help, false, Code::kHelp, 0x2F},
    {Qt::Key_Clear, false, Code::kClear, 0x0C},
    {Qt::Key_Clear, true, Code::kClear | kPad, 0x0C},
    {Qt::Key_Left, false, Code::kLeftArrow, -0x25},
    {Qt::Key_Left, true, Code::kLeftArrow | kPad, 0x25},
    {Qt::Key_Right, false, Code::kRightArrow, -0x27},
    {Qt::Key_Right, true, Code::kRightArrow | kPad, 0x27},
    {Qt::Key_Up, false, Code::kUpArrow, -0x26},
    {Qt::Key_Up, true, Code::kUpArrow | kPad, 0x26},
    {Qt::Key_Down, false, Code::kDownArrow, -0x28},
    {Qt::Key_Down, true, Code::kDownArrow | kPad, 0x28},
    {Qt::Key_NumLock, false, Code::kNumLock | kPad, -0x90},
    {Qt::Key_NumLock, true, Code::kNumLock | kPad, -0x90},
    {Qt::Key_CapsLock, false, Code::kCapsLock, 0x14},
    {Qt::Key_ScrollLock, false, Code::kScrollLock, 0x91},
    {Qt::Key_Control, false, Code::kControlKey, 0x11},
    {Qt::Key_Shift, false, Code::kShiftKey, 0x10},
    {Qt::Key_Alt, false, Code::kAltKey, 0x12},
    {Qt::Key_AltGr, false, Code::kAltKey, 0x12},
    {Qt::Key_Meta, false, Code::kSystemKey, -0x5B},
    {Qt::Key_Super_L, false, Code::kSystemKey, -0x5B},
    {Qt::Key_Super_R, false, Code::kSystemKey, -0x5B},
};

constexpr int kFunctionKeys = 24;
constexpr int kOSFunctionKey1 = 0x70;

// Characters whose OS code is not their own number: on the number pad, and beside the letters of
// the keyboard by which those numbers were given.
struct CharacterRow {
  unsigned short character;
  bool keypad;
  int osCode;
};

constexpr CharacterRow kCharacterRows[] = {
    {'*', true, 0x6A},  {'+', true, 0x6B},  {',', true, 0x6C},  {'-', true, 0x6D},
    {'.', true, 0x6E},  {'/', true, -0x6F}, {'=', true, 0x92},  {';', false, 0xBA},
    {'=', false, 0xBB}, {',', false, 0xBC}, {'-', false, 0xBD}, {'.', false, 0xBE},
    {'/', false, 0xBF}, {'`', false, 0xC0}, {'[', false, 0xDB}, {'\\', false, 0xDC},
    {']', false, 0xDD}, {'\'', false, 0xDE}};

constexpr int kOSNumberPad0 = 0x60;

bool IsDigit(int inCharacter) {
  return inCharacter >= '0' && inCharacter <= '9';
}

}  // namespace

KeyboardCode CodeFromQt(const QtKey& inKey) {
  const Row* plain = nullptr;
  for (const Row& row : kRows) {
    if (row.key != inKey.key) continue;
    if (row.keypad == inKey.keypad) return KeyboardCode(row.code);
    if (!plain) plain = &row;
  }
  if (plain) return KeyboardCode(plain->code);
  if (inKey.key >= Qt::Key_F1 && inKey.key < Qt::Key_F1 + kFunctionKeys) {
    return KeyboardCode(Code::kF1 + static_cast<std::uint32_t>(inKey.key - Qt::Key_F1));
  }
  if (inKey.key > ' ' && inKey.key <= 0xFFFF) {
    return Code::CreateFromKeyboardChar(static_cast<unsigned short>(inKey.key), inKey.keypad);
  }
  return KeyboardCode();
}

QtKey QtFromCode(KeyboardCode inCode) {
  if (inCode.IsPrintable()) return QtKey{inCode.GetCharacter(), inCode.IsExtended()};
  const std::uint32_t value = inCode.GetValue(true);
  for (const Row& row : kRows) {
    if (row.code == value) return QtKey{row.key, row.keypad};
  }
  if (value >= Code::kF1 && value < Code::kF1 + kFunctionKeys) {
    return QtKey{Qt::Key_F1 + static_cast<int>(value - Code::kF1), false};
  }
  return QtKey();
}

int OSCodeFromCode(KeyboardCode inCode) {
  if (inCode.IsPrintable()) {
    const unsigned short character = inCode.GetCharacter();
    if (IsDigit(character) && inCode.IsExtended()) return kOSNumberPad0 + character - '0';
    if (IsDigit(character) || (character >= 'A' && character <= 'Z')) return character;
    for (const CharacterRow& row : kCharacterRows) {
      if (row.character == character && row.keypad == inCode.IsExtended()) return row.osCode;
    }
    return 0;
  }
  const std::uint32_t value = inCode.GetValue(true);
  for (const Row& row : kRows) {
    if (row.code == value) return row.osCode;
  }
  if (value >= Code::kF1 && value < Code::kF1 + kFunctionKeys) {
    return kOSFunctionKey1 + static_cast<int>(value - Code::kF1);
  }
  return 0;
}

}  // namespace lumui::ui
