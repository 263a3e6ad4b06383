// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <boost/function.hpp>
#include <boost/make_shared.hpp>
#include <functional>
#include <string>

#include "hosts/RunningOutliner.h"
#include "lumcore/filesupport/Dir.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/dialogs/DialogDriver.h"
#include "lumui/testing/Menus.h"
#include "lumui/ui/UI_Dialog.h"
#include "outliner/CommandList.h"
#include "outliner/OutlinerCommands.h"
#include "vek/sharedui/KeyboardMapDialog.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace {

using lumcore::filesupport::File;
using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using lumui::ui::UI_Dialog;
using tests::RunningOutliner;
using vek::uisupport::KeyCommandManager;
using Driver = std::function<void(UI_Dialog&)>;

void RunDialog(RunningOutliner& ioHost, const char* inItem, const Driver& inDriver) {
  lumui::dialogs::SetDialogDriver(inDriver);
  lumui::testing::ChooseMenuItem(ioHost.GetWindow(), {ToUTF16("Edit"), ToUTF16(inItem)});
  lumui::dialogs::SetDialogDriver(nullptr);
}

void End(UI_Dialog& ioDialog, bool inOK) {
  ioDialog.EndDialog(inOK ? UI_Dialog::kOK : UI_Dialog::kCancel);
}

std::string KeysOf(int inCommand) {
  return ToStdString(outliner::KeysOfCommand(inCommand));
}

// Escape gives a text up only where the keys of contexts are there.
std::string EscapeFromText(RunningOutliner& ioHost) {
  ioHost.Click(0);
  ioHost.Keys("F2");
  ioHost.Type("x");
  ioHost.Keys("Escape");
  return ioHost.Show();
}

std::string Bytes(const File& inFile) {
  const auto bytes = inFile.ReadAll();
  return std::string(bytes.begin(), bytes.end());
}

constexpr const char* kSet = "settings/Shortcuts/Mine.xml";
constexpr const char* kMine =
    "<keymap><keycmd><cmd>outliner.text.edit</cmd><key>8</key></keycmd></keymap>";

// Settings in which the user works with the set "Mine".
void ChooseMine(RunningOutliner& ioHost) {
  ioHost.GetApp().GetAppSettings().Set("currentShortcutSet", ToUTF16("Mine"));
}

TEST(Shortcuts, LoseNeitherTheKeysOfContextsNorQuittingNorTheFilesAsTheyWere) {
  TemporaryFolder folder;
  folder.GetFile(kSet).Parent().Create();
  folder.GetFile(kSet).ReplaceContents(kMine);
  {
    RunningOutliner host(folder);
    ChooseMine(host);
  }
  RunningOutliner host(folder);
  host.GetApp().OpenOutline(host.MakeFile("o.opml", "a b"));
  EXPECT_EQ(KeysOf(outliner::kCommandSave), "") << "the set is loaded at the start";
  EXPECT_EQ(KeysOf(outliner::kCommandQuit), "Ctrl+Q");
  int told = 0;
  const auto changed =
      boost::make_shared<boost::function<void(int)>>([&](int inWhat) { told += inWhat == -1; });
  KeyCommandManager::Get().AddKeyMappingsChangedCallback(changed);
  for (const bool isOK : {false, true}) {
    SCOPED_TRACE(isOK);
    told = 0;
    const std::string before = Bytes(folder.GetFile(kSet));
    RunDialog(host, "Keyboard Shortcuts...", [&](UI_Dialog& ioDialog) {
      EXPECT_EQ(Bytes(folder.GetFile("settings/Shortcuts.before/Mine.xml")), before);
      End(ioDialog, isOK);
    });
    EXPECT_GE(told, 1);
    EXPECT_EQ(KeysOf(outliner::kCommandQuit), "Ctrl+Q");
    EXPECT_EQ(EscapeFromText(host), "a* b");
  }
  KeyCommandManager::Get().RemoveKeyMappingsChangedCallback(changed);
}

TEST(Shortcuts, ASetThatCannotBeReadIsToldAndLeftAlone) {
  const char* const kBad = "<keymap>\n<keycmd>";
  TemporaryFolder folder;
  {
    RunningOutliner host(folder);
    ChooseMine(host);
  }
  folder.GetFile(kSet).Parent().Create();
  folder.GetFile(kSet).ReplaceContents(kBad);
  RunningOutliner host(folder);
  std::string message = host.TakeMessages();
  EXPECT_NE(message.find("Mine.xml:2:9: "), message.npos) << message;
  EXPECT_NE(message.find("own keys are used"), message.npos) << message;
  host.GetApp().OpenOutline(host.MakeFile("o.opml", "a b"));
  bool hasOpened = false;
  const auto open = [&](UI_Dialog& ioDialog) {
    hasOpened = true;
    End(ioDialog, true);
  };
  RunDialog(host, "Keyboard Shortcuts...", open);
  EXPECT_FALSE(hasOpened);
  message = host.TakeMessages();
  EXPECT_NE(message.find("Mine.xml:2:9: "), message.npos) << message;
  EXPECT_EQ(KeysOf(outliner::kCommandSave), "Ctrl+S");
  EXPECT_EQ(EscapeFromText(host), "a* b");
  RunDialog(host, "Keyboard Shortcuts...", open);
  EXPECT_TRUE(hasOpened) << "on the default set";
  EXPECT_EQ(host.TakeMessages(), "");
  EXPECT_EQ(Bytes(folder.GetFile(kSet)), kBad);
}

TEST(Shortcuts, ChangedOnTheKeyboardAreThereAtTheNextStart) {
  TemporaryFolder folder;
  {
    RunningOutliner host(folder);
    RunDialog(host, "Keyboard Map...", [](UI_Dialog& ioDialog) { End(ioDialog, false); });
    EXPECT_FALSE(folder.GetFile("settings/Shortcuts/(Custom).xml").Exists()) << "nothing changed";
    RunDialog(host, "Keyboard Map...", [](UI_Dialog& ioDialog) {
      vek::sharedui::KSVDelegate keys;
      keys.Assign(outliner::kCommandAbout, lumui::ui::KeyboardCode(0x80000042),
                  lumui::ui::ModifierKeys(lumui::ui::kModCommand));
      End(ioDialog, false);
    });
    lumui::testing::OpenMenu(host.GetWindow(), {ToUTF16("Help")});
    EXPECT_EQ(ToStdString(lumui::testing::MenuAsText(nullptr)), "&About Outliner\tCtrl+B");
    lumui::testing::CloseMenus(host.GetWindow());
  }
  RunningOutliner host(folder);
  EXPECT_EQ(KeysOf(outliner::kCommandAbout), "Ctrl+B");
  host.GetApp().OpenOutline(host.MakeFile("o.opml", "a b"));
  EXPECT_EQ(EscapeFromText(host), "a* b");
}

}  // namespace
