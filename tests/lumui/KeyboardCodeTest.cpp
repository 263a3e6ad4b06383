// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/KeyboardCode.h"

#include <vector>

#include "UITest.h"

namespace lumui::test {

namespace {

using ui::KeyboardCode;

class KeyTable : public UITest {};

std::vector<KeyboardCode> AllKeys() {
  std::vector<KeyboardCode> keys;
  for (std::uint32_t code = 0x01; code <= 0x34; ++code)
    keys.emplace_back(code);
  // The lock stands in the table with bit 30 alone.
  keys[0x2E - 1] = KeyboardCode(0x4000002E);
  for (const std::uint32_t pad :
       {0x22u, 0x23u, 0x24u, 0x25u, 0x26u, 0x27u, 0x29u, 0x2Au, 0x2Bu, 0x2Cu, 0x2Du}) {
    keys.emplace_back(pad | KeyboardCode::kExtendedBit);
  }
  for (const char character : std::string("ABCXYZ0189`-=[]\\;',./!@<>?~")) {
    keys.push_back(
        KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(character), false));
  }
  for (const char character : std::string("0123456789*+-./=")) {
    keys.push_back(
        KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(character), true));
  }
  keys.push_back(KeyboardCode::CreateFromKeyboardChar(0xE4, false));
  keys.push_back(KeyboardCode::CreateFromKeyboardChar(0x416, false));
  return keys;
}

}  // namespace

// From our code to the window system's key, through the window, and back.
TEST_F(KeyTable, EveryKeyComesBackFromTheWindowSystemAsItself) {
  const auto window = MakeWindow();
  const auto node =
      boost::intrusive_ptr<RecordingNode>(new RecordingNode("node", [](const std::string&) {}));
  window->UI_AddChild(node);
  node->UI_SetKeyboardFocus(ui::kFocusOther);
  node->mTakes = true;
  std::uint32_t got = 0;
  node->mOnKey = [&](const ui::KeyboardEvent& inEvent) {
    if (inEvent.IsActionKeyDown()) got = inEvent.GetCode().GetValue(true);
  };
  for (const KeyboardCode key : AllKeys()) {
    got = 0;
    lumui::testing::TapKey(*window, key);
    EXPECT_EQ(got, key.GetValue(true)) << std::hex << key.GetValue(true);
  }
}

// Numbers that others have written down: key names in files, and the system's virtual keys, which
// are negative for the keys that the system calls extended.
TEST_F(KeyTable, OSCodesAreTheSystemsVirtualKeys) {
  const struct {
    std::uint32_t code;
    int osCode;
  } kRows[] = {
      {0x2D, -40},       {0x2C, -38},        {0x2B, -39},       {0x2A, -37},
      {0x24, -36},       {0x25, -35},        {0x23, -46},       {0x02, 8},
      {0x04, 13},        {0x05, -13},        {0x4000002D, 40},  {0xC000002B, 107},
      {0xC000002D, 109}, {0xC000002F, -111}, {0xC0000037, 103}, {0x80000037, 55},
      {0x80000051, 81},  {0x07, 112},        {0x12, 123},       {0x4000002E, -144},
      {0x32, 16},        {0x8000003B, 186},  {0x800000C4, 0},   {0x00, 0},
  };
  for (const auto& row : kRows) {
    EXPECT_EQ(KeyboardCode(row.code).GetOSCode(), row.osCode) << std::hex << row.code;
  }
}

TEST_F(KeyTable, CodesKeepTheirPartsApart) {
  const KeyboardCode q = KeyboardCode::CreateFromKeyboardChar('q', false);
  EXPECT_EQ(q, KeyboardCode(0x80000051));
  EXPECT_TRUE(q.IsPrintable());
  EXPECT_EQ(q.GetCharacter(), 'Q');
  EXPECT_EQ(q.GetControlCode(true), 0u);
  const KeyboardCode lock = KeyboardCode::CreateFromControlCode(KeyboardCode::kNumLock, true);
  EXPECT_EQ(lock, KeyboardCode(0x4000002E));
  EXPECT_EQ(lock.GetControlCode(true), 0x4000002Eu);
  EXPECT_EQ(lock.GetControlCode(false), 0x2Eu);
  EXPECT_EQ(lock.GetValue(false), 0x2Eu);
  EXPECT_EQ(lock.GetCharacter(), 0);
  EXPECT_NE(KeyboardCode::CreateFromKeyboardChar('5', true),
            KeyboardCode::CreateFromKeyboardChar('5', false));
  EXPECT_LT(lock, q);
  // A letter whose capital is two letters, and half of a pair, have no other form.
  EXPECT_EQ(KeyboardCode::CreateFromKeyboardChar(0xDF, false), KeyboardCode(0x800000DF));
  EXPECT_EQ(KeyboardCode::CreateFromKeyboardChar(0xD83C, false), KeyboardCode(0x8000D83C));
}

}  // namespace lumui::test
