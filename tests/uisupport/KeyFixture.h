// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <functional>
#include <list>
#include <set>
#include <string>

#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/ModifierKeys.h"
#include "support/EventLog.h"
#include "support/KeyFiles.h"
#include "vek/uisupport/CommandHandler.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using lumui::ui::ModifierKeys;
using vek::uisupport::KeyCommand;
using vek::uisupport::KeyCommandManager;

// Knows the commands that it is told of, and logs what it is asked: "ask3 run3 end3". It takes part
// in no other command.
class ContextHandler : public vek::uisupport::CommandHandler {
 public:
  ContextHandler(test_support::EventLog& ioLog, const char* inContext)
      : mLog(ioLog), mContext(Bytes(inContext)) {}

  std::set<int> mEnabled;
  std::set<int> mDisabled;
  std::function<void()> mOnRun;
  std::function<void()> mOnEnd;

 protected:
  bool DoHandleCommand(int inCommand) override {
    mLog.Add("run" + std::to_string(inCommand));
    if (mOnRun) mOnRun();
    return false;  // which nobody looks at
  }
  bool DoCommandEnabled(int inCommand, bool& outEnabled, bool&, lumcore::UTF16String&) override {
    mLog.Add("ask" + std::to_string(inCommand));
    outEnabled = mEnabled.count(inCommand) != 0;
    return outEnabled || mDisabled.count(inCommand) != 0;
  }
  bool DoEndHoldCommand(int inCommand) override {
    mLog.Add("end" + std::to_string(inCommand));
    if (mOnEnd) mOnEnd();
    return false;
  }
  const lumcore::UTF8String& DoGetCommandContext() override { return mContext; }

 private:
  test_support::EventLog& mLog;
  lumcore::UTF8String mContext;
};

// A started manager without mappings, and the commands Cut, Copy, Paste and Play with the ids 1 to
// 4 in the registry.
class KeyFixture : public testing::Test {
 protected:
  KeyFixture() {
    KeyCommandManager::Reset();
    KeyCommandManager::Init();
    vek::uisupport::CommandRegistry::Get().LoadFromBuffer(
        Bytes("<cmdreg><cmd id='1'><name>Cut</name></cmd><cmd id='2'><name>Copy</name></cmd>"
              "<cmd id='3'><name>Paste</name></cmd><cmd id='4'><name>Play</name></cmd></cmdreg>"),
        false);
  }
  ~KeyFixture() override {
    KeyCommandManager::Reset();
    vek::uisupport::CommandRegistry::Get().LoadFromBuffer(Bytes(""), false);
  }

  static KeyCommandManager& Manager() { return KeyCommandManager::Get(); }

  static KeyboardCode Char(char inCharacter, bool inPad = false) {
    return KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(inCharacter), inPad);
  }
  static KeyboardEvent Down(KeyboardCode inCode, unsigned char inModifiers = 0,
                            bool inRepeat = false) {
    return KeyboardEvent(KeyboardEvent::kActionKeyDown, inCode, ModifierKeys(inModifiers), inRepeat,
                         lumui::ui::OS_Event());
  }
  static KeyboardEvent Up(KeyboardCode inCode) {
    return KeyboardEvent(KeyboardEvent::kActionKeyUp, inCode, ModifierKeys(), false,
                         lumui::ui::OS_Event());
  }

  static void Map(int inCommand, KeyboardCode inCode, unsigned char inModifiers = 0,
                  bool inRepeat = false, const char* inContext = nullptr,
                  bool inIsProtected = false) {
    Manager().AddKeyMapping(
        inCommand, inCode, ModifierKeys(inModifiers), KeyboardEvent::kActionKeyDown,
        reinterpret_cast<const unsigned char*>(inContext), inRepeat, inIsProtected);
  }
  static void Load(const std::string& inMappings) {
    Manager().LoadKeyMappingsFromBuffer(Bytes("<keymap>" + inMappings + "</keymap>"));
  }

  // The saved file.
  static std::string Saved() {
    lumcore::UTF8String bytes = Bytes("what was there before");
    Manager().SaveKeyMappingsToBuffer(bytes);
    return std::string(bytes.begin(), bytes.end());
  }

  // The global mappings by command: "1:80000058/4 2:23/0 hold protected", the code and the
  // modifiers in hexadecimal.
  static std::string Shortcuts() {
    std::string text;
    for (int command = 1; command <= 4; ++command) {
      std::list<KeyCommand*> mappings(1);  // to be replaced
      Manager().GetShortcutList(command, mappings);
      for (const KeyCommand* mapping : mappings)
        text += (text.empty() ? "" : " ") + Describe(*mapping);
    }
    return text;
  }
  static std::string Describe(const KeyCommand& inMapping) {
    char text[64];
    std::snprintf(text, sizeof text, "%d:%X/%X", inMapping.GetCommandID(),
                  inMapping.GetKeyboardCode().GetValue(true), inMapping.GetModifiers().GetBits());
    return std::string(text) + (inMapping.GetIsRepeat() ? " hold" : "") +
           (inMapping.GetIsProtected() ? " protected" : "");
  }
};
