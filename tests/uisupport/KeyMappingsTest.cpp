// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <boost/make_shared.hpp>
#include <initializer_list>

#include "uisupport/KeyFixture.h"

namespace {

class KeyMappings : public KeyFixture {
 protected:
  static void Unmap(int inCommand, KeyboardCode inCode, unsigned char inModifiers = 0,
                    bool inRepeat = false, const char* inContext = nullptr) {
    Manager().RemoveKeyMapping(inCommand, inCode, ModifierKeys(inModifiers),
                               KeyboardEvent::kActionKeyDown,
                               reinterpret_cast<const unsigned char*>(inContext), inRepeat, false);
  }
};

TEST_F(KeyMappings, AKeyMeansOneCommandInAList) {
  Map(1, Char('X'), 4);
  Map(1, Char('C'), 4, false, nullptr, true);
  Map(2, Char('V'), 4);
  Map(1, Char('C'), 4, true);             // held
  Map(1, Char('C'), 4 | 8);               // all modifier bits count here
  Map(2, Char('C'), 4, false, "canvas");  // another list
  EXPECT_EQ(Shortcuts(),
            "1:80000058/4 1:80000043/4 protected 1:80000043/4 hold 1:80000043/C 2:80000056/4");

  std::list<KeyCommand*> before;
  Manager().GetShortcutList(1, before);
  Map(3, Char('C'), 4);
  Map(1, Char('X'), 4);  // to the end of the list
  EXPECT_EQ(Shortcuts(), "1:80000043/4 hold 1:80000043/C 1:80000058/4 2:80000056/4 3:80000043/4");
  std::string displaced;
  for (const KeyCommand* mapping : before)
    displaced += Describe(*mapping) + " ";
  EXPECT_EQ(displaced, "1:80000058/4 1:80000043/4 protected 1:80000043/4 hold 1:80000043/C ");
}

TEST_F(KeyMappings, RemovalNeedsTheCommandAndAllOfTheKey) {
  const auto map = [] {
    Map(1, Char('X'), 4, false, nullptr, true);
    Map(2, Char('Y'), 0, true);
  };
  map();
  const std::string all = Shortcuts();
  Unmap(2, Char('X'), 4);
  Unmap(1, Char('X'));
  Unmap(1, Char('X'), 4, true);
  Unmap(1, Char('X'), 4, false, "canvas");
  Unmap(2, Char('Y'));
  EXPECT_EQ(Shortcuts(), all);
  std::list<KeyCommand*> held;
  Manager().GetShortcutList(1, held);
  Unmap(1, Char('X'), 4);
  EXPECT_EQ(Shortcuts(), "2:80000059/0 hold");
  EXPECT_EQ(Describe(*held.front()), "1:80000058/4 protected");
  Unmap(2, Char('Y'), 0, true);
  EXPECT_EQ(Shortcuts(), "");
}

TEST_F(KeyMappings, TheLastMappingOfACommandIsShown) {
  KeyboardCode code = Char('Q');
  ModifierKeys modifiers(2);
  lumcore::UTF16String text = U16("before");
  Map(2, Char('Y'), 0, false, "canvas");
  EXPECT_FALSE(Manager().GetShortcut(2, code, modifiers));
  EXPECT_FALSE(Manager().GetShortcutString(2, text));
  EXPECT_EQ(U8(text) + static_cast<char>(code.GetCharacter()), "beforeQ");

  Map(2, Char('A'), 4);
  Map(1, Char('B'));
  Map(2, Char('C'), 16);
  Map(1, Char('D'));
  EXPECT_TRUE(Manager().GetShortcut(2, code, modifiers));
  EXPECT_EQ(code.GetCharacter(), 'C');
  EXPECT_EQ(modifiers.GetBits(), 16);
  EXPECT_TRUE(Manager().GetShortcutString(2, text));
  EXPECT_EQ(U8(text), "Alt+C");
}

TEST_F(KeyMappings, KeysAreShownByName) {
  const struct {
    std::uint32_t code;
    unsigned char modifiers;
    const char* text;
  } rows[] = {
      {0x8000005A, 0, "Z"},
      {0x8000005A, 31, "Ctrl+Shift+Alt+Z"},
      {0x8000005A, 1, "Ctrl+Z"},
      {0x8000005A, 8, "Z"},
      {0x800000DC, 4, "Ctrl+\xC3\x9C"},
      {0x80000020, 0, " "},
      {0x01, 0, "Space"},
      {0x02, 0, "Backspace"},
      {0x03, 0, "Tab"},
      {0x04, 0, "Return"},
      {0x05, 0, "Enter"},
      {0x06, 2, "Shift+Esc"},
      {0x07, 0, "F1"},
      {0x12, 0, "F12"},
      {0x21, 0, "Pause"},
      {0x22, 0, "Ins"},
      {0x23, 0, "Del"},
      {0x24, 0, "Home"},
      {0x25, 0, "End"},
      {0x26, 0, "Page Up"},
      {0x27, 0, "Page Down"},
      {0x2A, 0, "Left Arrow"},
      {0x2B, 0, "Right Arrow"},
      {0x2C, 0, "Up Arrow"},
      {0x2D, 0, "Down Arrow"},
      {0x32, 0, "Shift"},
      {0x4000002E, 0, "Num Lock"},
      {0xC000002A, 0, "Num *"},
      {0xC000002B, 4, "Ctrl+Num +"},
      {0xC000002D, 0, "Num -"},
      {0xC000002E, 0, "Num ."},
      {0xC000002F, 0, "Num /"},
      {0xC000003D, 0, "Num ="},
      {0xC0000030, 0, "Num 0"},
      {0xC0000039, 0, "Num 9"},
      // The extended form has a name of its own or none, and takes the modifiers with it.
      {0x40000023, 4, ""},
      {0x13, 4, ""},
      {0x2E, 0, ""},
      {0, 31, ""},
      {0xC0000041, 0, "A"},
  };
  for (const auto& row : rows) {
    EXPECT_EQ(U8(KeyCommandManager::GetShortcutString(KeyboardCode(row.code),
                                                      ModifierKeys(row.modifiers))),
              row.text)
        << row.code;
  }
}

TEST_F(KeyMappings, CallbacksHearWhatTheyAreToldInTheirOrder) {
  using Function = KeyCommandManager::MappingsChangedFunction;
  std::string log;
  boost::shared_ptr<Function> callbacks[3];
  for (int at = 0; at < 3; ++at) {
    callbacks[at] = boost::make_shared<Function>([&log, at](int inChange) {
      log += static_cast<char>('a' + at) + std::to_string(inChange) + " ";
    });
    Manager().AddKeyMappingsChangedCallback(callbacks[at]);
  }
  Manager().AddKeyMappingsChangedCallback(callbacks[0]);
  Manager().AddKeyMappingsChangedCallback(nullptr);
  const auto notify = [&log](int inChange) {
    log.clear();
    Manager().NotifyOfKeyMappingsChanged(inChange);
    return log;
  };
  Map(1, Char('X'));
  Load("");
  EXPECT_EQ(log, "");  // changes are told of by who makes them
  EXPECT_EQ(notify(7), "a7 b7 c7 a7 ");
  Manager().RemoveKeyMappingsChangedCallback(callbacks[0]);  // the first of the two
  EXPECT_EQ(notify(8), "b8 c8 a8 ");
  callbacks[2]->clear();
  EXPECT_EQ(notify(9), "b9 a9 ");

  // One that takes itself off, and its neighbour, in its own call.
  *callbacks[1] = [&](int) {
    log += "off ";
    Manager().RemoveKeyMappingsChangedCallback(callbacks[1]);
    Manager().RemoveKeyMappingsChangedCallback(callbacks[0]);
  };
  EXPECT_EQ(notify(1), "off ");
  EXPECT_EQ(notify(2), "");
}

}  // namespace
