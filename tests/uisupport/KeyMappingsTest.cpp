// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <boost/make_shared.hpp>

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

std::string Shown(std::uint32_t inCode, unsigned char inModifiers) {
  return U8(KeyCommandManager::GetShortcutString(KeyboardCode(inCode), ModifierKeys(inModifiers)));
}

// "1 Space, 2 Backspace": what is longer than a character, from a code on to the end of its row.
std::string Named(std::uint32_t inFirst) {
  std::string text;
  for (std::uint32_t code = inFirst; code < inFirst + 0x60; ++code) {
    char number[16];
    std::snprintf(number, sizeof number, "%X ", code);
    const std::string name = Shown(code, 0);
    if (name.size() > 1) text += (text.empty() ? "" : ", ") + (number + name);
  }
  return text;
}

TEST_F(KeyMappings, KeysAreShownByName) {
  EXPECT_EQ(Named(0),
            "1 Space, 2 Backspace, 3 Tab, 4 Return, 5 Enter, 6 Esc, 7 F1, 8 F2, 9 F3, A F4, B F5, "
            "C F6, D F7, E F8, F F9, 10 F10, 11 F11, 12 F12, 21 Pause, 22 Ins, 23 Del, 24 Home, "
            "25 End, 26 Page Up, 27 Page Down, 2A Left Arrow, 2B Right Arrow, 2C Up Arrow, "
            "2D Down Arrow, 32 Shift");
  EXPECT_EQ(Named(0x40000000), "4000002E Num Lock");
  EXPECT_EQ(Named(0x80000000), "");
  EXPECT_EQ(Named(0xC0000000),
            "C000002A Num *, C000002B Num +, C000002D Num -, C000002E Num ., C000002F Num /, "
            "C0000030 Num 0, C0000031 Num 1, C0000032 Num 2, C0000033 Num 3, C0000034 Num 4, "
            "C0000035 Num 5, C0000036 Num 6, C0000037 Num 7, C0000038 Num 8, C0000039 Num 9, "
            "C000003D Num =");

  EXPECT_EQ(Shown(0x8000005A, 31), "Ctrl+Shift+Alt+Z");
  EXPECT_EQ(Shown(0x8000005A, 1), "Ctrl+Z");
  EXPECT_EQ(Shown(0x8000005A, 8), "Z");
  EXPECT_EQ(Shown(0xC0000041, 4), "Ctrl+A");
  EXPECT_EQ(Shown(0x800000DC, 16), "Alt+\xC3\x9C");
  EXPECT_EQ(Shown(0x26, 2), "Shift+Page Up");
  EXPECT_EQ(Shown(0x13, 31), "");  // no name, and so no modifiers
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
