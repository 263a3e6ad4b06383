// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <gtest/gtest.h>

#include <string>

#include "lumcore/config/ClientInfo.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/ModifierKeys.h"
#include "support/KeyFiles.h"
#include "support/TemporaryFolder.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::test {

// Four commands, of which Copy repeats and Play has no category, and key maps in a folder of the
// test's own.
class ShortcutFixture : public testing::Test {
 protected:
  ShortcutFixture() {
    lumcore::config::SetClientPrefsDir(U16(mFolder.GetDir().GetPath()));
    uisupport::KeyCommandManager::Reset();
    uisupport::KeyCommandManager::Init();
    auto& registry = uisupport::CommandRegistry::Get();
    registry.LoadFromBuffer(Bytes(""), false);
    registry.RegisterCommand(1, U16("Cut"), U16("Edit.Cut"), U16("Takes it out"), false);
    registry.RegisterCommand(2, U16("Copy"), U16("Edit.Copy"), U16("Leaves it there"), true);
    registry.RegisterCommand(3, U16("ZoomIn"), U16("View.Zoom.In"), U16("Comes near"), false);
    registry.RegisterCommand(4, U16("Play"), U16("Play"), U16("Makes a Sound"), false);
    KeyMap().LoadKeyMappingsFromBuffer(Bytes(kDefaultMap));
  }
  ~ShortcutFixture() override {
    uisupport::KeyCommandManager::Reset();
    uisupport::CommandRegistry::Get().LoadFromBuffer(Bytes(""), false);
    lumcore::config::SetClientPrefsDir({});
  }

  static uisupport::KeyCommandManager& KeyMap() { return uisupport::KeyCommandManager::Get(); }

  // "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 4:F1!", in the order of the list: "~" is a hold mapping, "!" a
  // protected one.
  static std::string Keys() {
    std::string text;
    for (uisupport::KeyCommand* mapping : KeyMap().GetGlobalMappings()) {
      text += (text.empty() ? "" : " ") + std::to_string(mapping->GetCommandID()) + ":" +
              U8(mapping->GetAsString()) + (mapping->GetIsRepeat() ? "~" : "") +
              (mapping->GetIsProtected() ? "!" : "");
    }
    return text;
  }
  // The same of a map file.
  static std::string KeysIn(const std::string& inPath) {
    lumcore::UTF8String live;
    KeyMap().SaveKeyMappingsToBuffer(live);
    KeyMap().LoadKeyMappings(lumcore::filesupport::File(inPath));
    const std::string keys = Keys();
    KeyMap().LoadKeyMappingsFromBuffer(live);
    return keys;
  }
  std::string PathOf(const std::string& inSet) const {
    return mFolder.GetPath("Shortcuts/" + inSet + ".xml");
  }
  // "(Custom)=1:Ctrl+X | Mine=3:I", without the path.
  std::string Files() const {
    std::string text;
    for (const auto& file : lumcore::filesupport::Dir(mFolder.GetDir(), "Shortcuts").GetFiles()) {
      const std::string name = U8(file.GetName());
      text += (text.empty() ? "" : " | ") + name.substr(0, name.size() - 4) + "=" +
              KeysIn(file.GetPath());
    }
    return text;
  }
  void WriteSet(const std::string& inName, const std::string& inMappings) {
    const lumcore::filesupport::Dir dir(mFolder.GetDir(), "Shortcuts");
    dir.Create();
    lumcore::filesupport::File(dir, inName + ".xml")
        .ReplaceContents("<keymap>" + inMappings + "</keymap>");
  }
  static std::string Mapping(const char* inCommand, const char* inKey) {
    return "<keycmd><cmd>" + std::string(inCommand) + "</cmd><uchar>" + inKey + "</uchar></keycmd>";
  }

  static constexpr const char* kDefaultMap =
      "<keymap><keycmd><cmd>Cut</cmd><uchar>X</uchar><cmdkey/></keycmd>"
      "<keycmd><cmd>Copy</cmd><uchar>C</uchar><cmdkey/></keycmd>"
      "<keycmd><cmd>Copy</cmd><uchar>C</uchar><cmdkey/><hold/></keycmd>"
      "<keycmd><cmd>ZoomIn</cmd><uchar>I</uchar></keycmd>"
      "<keycmd><cmd>ZoomIn</cmd><uchar>J</uchar></keycmd>"
      "<keycmd><cmd>Play</cmd><key>7</key><protected/></keycmd></keymap>";
  static constexpr const char* kDefaultKeys = "1:Ctrl+X 2:Ctrl+C 2:Ctrl+C~ 3:I 3:J 4:F1!";

  TemporaryFolder mFolder;
};

}  // namespace vek::test
