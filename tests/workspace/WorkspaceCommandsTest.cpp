// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "lumui/dialogs/TextDialog.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"
#include "support/Panels.h"
#include "vek/uisupport/PlatformMenu.h"
#include "vek/workspace/WorkspaceUtils.h"

namespace {

using namespace test_support;
using lumcore::UTF16String;

class ScriptedManager : public lumworkspace::workspace::ManagerBase {
 public:
  void WillQuit() override {}
  void ApplyDefaultMainWindowSize() override {}
  std::vector<UTF16String> GetWorkspaceNames() const override { return mNames; }
  bool HasCurrentWorkspace() const override { return !mCurrent.empty(); }
  UTF16String GetCurrentWorkspace() const override { return mCurrent; }
  void SetCurrentWorkspace(const UTF16String& inName) override { mCurrent = inName; }
  void SaveWorkspace(const UTF16String& inName) override {
    mSaved += "save " + lumcore::utility::ToStdString(inName) + ";";
  }
  void RevertWorkspace(const UTF16String&) override {}
  void DeleteWorkspace(const UTF16String&) override {}

  std::vector<UTF16String> mNames;
  UTF16String mCurrent;
  std::string mSaved;
};

class TwoCommands : public lumworkspace::workspace::PlatformMenuHelperBase {
 public:
  void WorkspacesChanged() override {}
  bool IsWorkspaceCommand(int inCommand) const override {
    return inCommand == 50 || inCommand == 51;
  }
  UTF16String WorkspaceNameForCmd(int inCommand) const override {
    return U16(inCommand == 50 ? "a" : "b");
  }
  void HandleCommand(int inCommand) override { mHandled = inCommand; }

  int mHandled = 0;
};

constexpr int kNew = 1, kRevert = 2, kDelete = 3, kSave = 4, kEdit = 5;

TEST(WorkspaceCommands, EnablementFollowsTheManager) {
  Workspace workspace(nullptr);
  ScriptedManager manager;
  TwoCommands helper;
  vek::workspaceutils::WorkspacesCmdAttachment attachment(workspace, manager, helper, kNew, kRevert,
                                                          kDelete, kSave, kEdit);
  // "1 on" for known and enabled, "0 off" for known and not, "?" for not known; "*" for checked.
  const auto ask = [&](int inCommand, bool inChecked) {
    bool enabled = false;
    bool checked = inChecked;
    UTF16String title;
    if (!attachment.CommandEnabled(inCommand, enabled, checked, title)) return std::string("?");
    return std::string(enabled ? "on" : "off") + (checked ? "*" : "");
  };
  const struct {
    int workspaces;
    const char* current;
    const char* answers;  // of the five, 50, 51 unchecked before, 51 checked before, 52
  } cases[] = {
      {0, "", "on off off off on on on on* ? "}, {1, "a", "on on off on on on* on on ? "},
      {2, "", "on off off off on on on on* ? "}, {2, "b", "on on on on on on on* on* ? "},
      {2, "B", "on on on on on on on on ? "},
  };
  for (const auto& each : cases) {
    manager.mNames.assign(static_cast<std::size_t>(each.workspaces), U16("a"));
    manager.mCurrent = U16(each.current);
    std::string answers;
    for (const int command : {kNew, kRevert, kDelete, kSave, kEdit, 50, 51})
      answers += ask(command, false) + " ";
    answers += ask(51, true) + " " + ask(52, false) + " ";
    EXPECT_EQ(answers, each.answers) << each.workspaces << each.current;
  }
}

TEST(WorkspaceCommands, AreHandledByWhoeverKnowsThem) {
  Workspace workspace(nullptr);
  ScriptedManager manager;
  TwoCommands helper;
  // The id for a new one is 0, and so nobody's.
  vek::workspaceutils::WorkspacesCmdAttachment attachment(workspace, manager, helper, 0, kRevert,
                                                          kDelete, kSave, 50);
  EXPECT_FALSE(attachment.HandleCommand(0));
  EXPECT_FALSE(attachment.HandleCommand(52));
  EXPECT_TRUE(attachment.HandleCommand(kSave)) << "also with nothing to save";
  EXPECT_EQ(manager.mSaved, "");
  manager.mCurrent = U16("a");
  EXPECT_TRUE(attachment.HandleCommand(kSave));
  EXPECT_EQ(manager.mSaved, "save a;");
  EXPECT_TRUE(attachment.HandleCommand(51));
  EXPECT_EQ(helper.mHandled, 51);
  // The five go first.
  EXPECT_THROW(attachment.HandleCommand(50), lumcore::config::Error) << "its dialog is unanswered";
  EXPECT_EQ(helper.mHandled, 51);
}

TEST(WorkspaceCommands, SubMenuIsTheLastThatEndsWithTheCommand) {
  using namespace vek::uisupport;
  const HMENU bar = CreatePlatformMenu(false);
  EXPECT_EQ(vek::workspaceutils::GetWorkspaceSubMenu(9, bar), nullptr);
  EXPECT_EQ(vek::workspaceutils::GetWorkspaceSubMenu(9, nullptr), nullptr);
  // A menu of the bar, and what its first item opens, with these commands.
  const auto add = [&](std::initializer_list<unsigned> inCommands, bool inFirst = true) {
    const HMENU menu = AppendSubMenu(bar, U16("Menu"), 0);
    if (!inFirst) AppendItem(menu, U16("Before"), 9, false);
    const HMENU inner = AppendSubMenu(menu, U16("Inner"), 0);
    for (const unsigned command : inCommands)
      AppendItem(inner, U16("Item"), command, false);
    return inner;
  };
  AppendItem(bar, U16("Plain"), 9, false);
  EXPECT_EQ(vek::workspaceutils::GetWorkspaceSubMenu(9, bar), nullptr);
  add({1, 9});
  const HMENU second = add({2, 9});
  add({9, 3});
  add({});
  add({9}, false);
  EXPECT_EQ(vek::workspaceutils::GetWorkspaceSubMenu(9, bar), second);
  EXPECT_EQ(vek::workspaceutils::GetWorkspaceSubMenu(8, bar), nullptr);
  DestroyPlatformMenu(bar);
}

}  // namespace
