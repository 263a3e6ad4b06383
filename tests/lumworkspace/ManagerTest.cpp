// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/Manager.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

#include "lumcore/config/ErrorManager.h"
#include "lumcore/proplist/Utils.h"
#include "lumui/dialogs/ChoiceDialog.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/dialogs/TextDialog.h"
#include "lumui/ui/OS_Menu.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/CommandCheckStyle.h"
#include "lumworkspace/workspace/PlatformMenuHelper.h"
#include "lumworkspace/workspaceutils/WorkspaceUtils.h"
#include "support/Panels.h"
#include "support/TemporaryFolder.h"

namespace {

using namespace test_support;
namespace utils = lumworkspace::workspaceutils;
using lumcore::UTF16String;
using lumui::ui::OS_Menu;
using lumworkspace::workspace::Manager;
using Point = lumcore::geom::PointT<int>;

class BuiltIn : public lumworkspace::workspace::BuiltInWorkspaceProviderBase {
 public:
  std::vector<UTF16String> GetNames() const override { return {U16("Draw"), U16("Animate")}; }
  lumcore::UTF8String GetLayout(const UTF16String& inName) const override {
    return lumcore::proplist::utils::SavePropListToBuffer(inName == U16("Draw") ? mDraw : mAnimate);
  }

  lumcore::proplist::PropList mDraw;
  lumcore::proplist::PropList mAnimate;
};

// Built in: "Draw" is left[a], "Animate" is bottom[b | c*].
class Workspaces : public testing::Test, protected PanelWorkspace {
 protected:
  Workspaces() {
    Open("a", TabPlace::kInArea, "", lumworkspace::workspace::kDockLeft);
    mBuiltIn.mDraw = workspace.GetLayout();
    workspace.CloseTab(U8("a"));
    Open("b", TabPlace::kInArea, "", lumworkspace::workspace::kDockBottom);
    Open("c", TabPlace::kTabWith, "b");
    mBuiltIn.mAnimate = workspace.GetLayout();
    Start();
  }
  ~Workspaces() override {
    lumui::dialogs::SetTextDialogAnswerer(nullptr);
    lumui::dialogs::SetChoiceDialogAnswerer(nullptr);
    lumui::dialogs::SetDialogAnswerer(nullptr);
    utils::SetEditWorkspacesAnswerer(nullptr);
  }

  void Start() {
    mManager = std::make_unique<Manager>(workspace,
                                         lumcore::filesupport::Dir(mFolder.GetDir(), "Workspaces"),
                                         &mBuiltIn, Point(640, 480));
  }
  // Another run of the program.
  void Restart() {
    mManager->WillQuit();
    Start();
  }
  void Set(const std::string& inName) {
    mManager->SetCurrentWorkspace(U16(inName));
    Settle();
  }
  // "Draw Animate*".
  std::string Names() {
    std::string text;
    for (const UTF16String& name : mManager->GetWorkspaceNames()) {
      text += (text.empty() ? "" : " ") + lumcore::utility::ToStdString(name);
      if (name == mManager->GetCurrentWorkspace()) text += "*";
    }
    return text;
  }
  std::string FailureOf(const std::function<void()>& inAction) {
    try {
      inAction();
    } catch (const std::exception& error) {
      return error.what();
    }
    return "";
  }

  TemporaryFolder mFolder;
  BuiltIn mBuiltIn;
  std::unique_ptr<Manager> mManager;
};

TEST_F(Workspaces, KeepWhatTheUserMovesWithTheCurrentOne) {
  EXPECT_EQ(Names(), "Draw Animate");
  EXPECT_FALSE(mManager->HasCurrentWorkspace());
  Set("Draw");
  EXPECT_EQ(Text(), "left[a] center");
  Open("d", TabPlace::kBelow, "a");
  Set("Animate");
  EXPECT_EQ(Text(), "left[~a] bottom[b|c*] center");
  Set("Draw");
  EXPECT_EQ(Text(), "left[a / d] center") << "the change of before";
  Set("Animate");
  Restart();
  Set("Draw");
  EXPECT_EQ(Text(), "left[a / d] center") << "written at the end";
  EXPECT_FALSE(mFolder.GetFile("Workspaces/Animate.workspace").Exists()) << "nobody changed it";
}

TEST_F(Workspaces, GoBackToTheSavedAndToTheBuiltInState) {
  Set("Draw");
  EXPECT_FALSE(mManager->CanRevertToBuiltIn(U16("Draw")));
  Open("e", TabPlace::kTabWith, "a");
  mManager->SaveWorkspace(U16("Draw"));
  workspace.CloseTab(U8("a"));
  mManager->RevertWorkspace(U16("Draw"));
  EXPECT_EQ(Text(), "left[a|e*] center");
  EXPECT_TRUE(mManager->RevertToBuiltIn(U16("Draw")));
  EXPECT_EQ(Text(), "left[a] center");
  EXPECT_FALSE(mManager->RevertToBuiltIn(U16("Draw")));
}

TEST_F(Workspaces, AreNamedOrderedHiddenAndRemembered) {
  Set("Animate");
  mManager->SaveWorkspace(U16("50% \xC3\xA9/\xE2\x82\xAC"));
  mManager->SaveWorkspace(U16("zwei"));
  EXPECT_EQ(Names(), "Draw Animate 50% \xC3\xA9/\xE2\x82\xAC zwei*");
  mManager->DeleteWorkspace(U16("Draw"));
  EXPECT_FALSE(mManager->RenameWorkspace(U16("zwei"), U16("ANIMATE")));
  EXPECT_TRUE(mManager->RenameWorkspace(U16("zwei"), U16("Zwei")));
  EXPECT_TRUE(mManager->RenameWorkspace(U16("Animate"), U16("Move")));
  mManager->SetWorkspaceOrder({U16("Zwei"), U16("gone"), U16("Move")});
  EXPECT_EQ(Names(), "Zwei* Move 50% \xC3\xA9/\xE2\x82\xAC");
  Restart();
  EXPECT_EQ(Names(), "Zwei Move 50% \xC3\xA9/\xE2\x82\xAC");
  Set("Move");
  EXPECT_EQ(Text(), "left[~a] bottom[b|c*] center");
  mManager->SaveWorkspace(U16("Draw"));
  EXPECT_EQ(Names(), "Zwei Move Draw* 50% \xC3\xA9/\xE2\x82\xAC");
  mManager->DeleteWorkspace(U16("Draw"));
  EXPECT_FALSE(mManager->HasCurrentWorkspace());
  EXPECT_EQ(Text(), "left[~a] bottom[b|c*] center") << "panels stay";
  const struct {
    std::string name;
    bool permitted;
  } cases[] = {{"new", true},
               {"", false},
               {" \t", false},
               {"end ", false},
               {"..", true},
               {"moVE", false},
               {std::string(245, 'x'), true},
               {"Animate", true},
               {std::string(246, 'x'), false}};
  for (const auto& each : cases)
    EXPECT_EQ(mManager->CheckName(U16(each.name), UTF16String()).empty(), each.permitted)
        << each.name;
}

TEST_F(Workspaces, DamagedOnesAreSetAsideAndGiveWayToTheBuiltInOnes) {
  Set("Animate");
  mManager->SaveWorkspace(U16("Mine"));
  Set("Draw");
  const std::string before = Text(true);
  const auto file = mFolder.GetFile("Workspaces/Mine.workspace");
  const std::string good = lumcore::utility::ToStdString(file.ReadAll());
  std::string reported;
  lumcore::config::ErrorManager errors([&](const std::exception_ptr& inError) {
    reported = FailureOf([&] { std::rethrow_exception(inError); });
  });
  lumcore::config::ErrorManager::Set(&errors);
  std::string number;
  int count = 1;
  for (const std::string& bytes : {std::string(), std::string("<html/>"), good.substr(0, 700)}) {
    file.ReplaceContents(bytes);
    reported.clear();
    Set("Mine");
    EXPECT_NE(reported.find("Mine.workspace.defective"), std::string::npos) << reported;
    EXPECT_EQ(Text(true), before);
    EXPECT_EQ(Names(), "Draw* Animate");
    const auto kept = mFolder.GetFile("Workspaces/Mine.workspace.defective" + number);
    EXPECT_EQ(lumcore::utility::ToStdString(kept.ReadAll()), bytes);
    number = "-" + std::to_string(++count);
  }
  mFolder.GetFile("Workspaces/Animate.workspace").ReplaceContents("<");
  Set("Animate");
  EXPECT_EQ(Text(), "left[~a] bottom[b|c*] center") << "the built-in one";
  EXPECT_EQ(Names(), "Draw Animate*");
  // At the start there has to be something.
  Restart();
  file.ReplaceContents("<");
  Set("Mine");
  EXPECT_EQ(Names(), "Draw* Animate");
  // A later program's is not damaged.
  lumcore::proplist::PropList later = workspace.GetLayout();
  later.Set<std::int32_t>("Version", 2);
  lumcore::proplist::utils::SavePropList(file, later);
  EXPECT_NE(FailureOf([&] { Set("Mine"); }).find("later"), std::string::npos);
  EXPECT_TRUE(file.Exists());
  file.ReplaceContents(good);
  // The list of the order is no reason to have no workspaces.
  mManager->SetWorkspaceOrder({U16("Mine")});
  mFolder.GetFile("Workspaces/Workspaces.xml").ReplaceContents("<");
  Restart();
  EXPECT_EQ(Names(), "Draw Animate Mine");
}

TEST_F(Workspaces, AMoveThatIsUndoneByHandDoesNotComeBack) {
  lumcore::config::ErrorManager errors([](const std::exception_ptr&) {});
  lumcore::config::ErrorManager::Set(&errors);
  Set("Animate");
  mManager->SaveWorkspace(U16("Damaged"));
  Set("Animate");
  mFolder.GetFile("Workspaces/Damaged.workspace").ReplaceContents("<");
  const auto bringToFront = [&](const char* inType) {
    workspace.ActivateTab(U8(inType));
    Settle();
  };
  bringToFront("b");
  Set("Damaged");
  EXPECT_EQ(Names(), "Draw Animate*") << "it stays, and its move is kept";
  EXPECT_EQ(Text(), "left[~a] bottom[b*|c] center");
  bringToFront("c");
  Set("Draw");
  Set("Animate");
  EXPECT_EQ(Text(), "left[~a] bottom[b|c*] center");
  Restart();
  EXPECT_FALSE(mFolder.GetFile("Workspaces/Animate.workspace").Exists()) << "nobody changed it";
}

TEST_F(Workspaces, MenuListsThemAndFollows) {
  const HMENU menu = OS_Menu::Create(true);
  OS_Menu::InsertItem(menu, 0, 0, 7, U16("New..."));
  using lumworkspace::workspace::PlatformMenuHelper;
  auto before = std::make_unique<PlatformMenuHelper>(*mManager, menu, 100, 102);
  mManager->AddMenuHelper(before.get());
  mManager->RemoveMenuHelper(before.get());
  PlatformMenuHelper helper(*mManager, menu, 100, 102);
  before.reset();
  mManager->AddMenuHelper(&helper);
  EXPECT_TRUE(lumworkspace::workspace::IsCommandCheckStyleRadio(102));
  const auto text = [&] {
    std::string all;
    for (unsigned i = 0; i < OS_Menu::GetItemCount(menu); ++i) {
      lumui::ui::MenuItemInfo info;
      info.mask = lumui::ui::kMenuMaskString | lumui::ui::kMenuMaskID | lumui::ui::kMenuMaskState;
      OS_Menu::GetItemInfo(menu, i, info);
      all += lumcore::utility::ToStdString(info.text) + ":" + std::to_string(info.id) +
             ((info.state & lumui::ui::kMenuStateChecked) != 0 ? "* " : " ");
    }
    return all;
  };
  EXPECT_EQ(text(), "Draw:100 Animate:101 :0 New...:7 ");
  helper.HandleCommand(101);
  mManager->SaveWorkspace(U16("A & B"));
  mManager->SaveWorkspace(U16("Beyond"));
  mManager->SetCurrentWorkspace(U16("Animate"));
  EXPECT_EQ(text(), "Draw:100 Animate:101* A && B:102 :0 New...:7 ");
  EXPECT_EQ(helper.WorkspaceNameForCmd(102), U16("A & B"));
  EXPECT_FALSE(helper.IsWorkspaceCommand(103));
  mManager->DeleteWorkspace(U16("Animate"));
  EXPECT_EQ(text(), "Draw:100 A && B:101 Beyond:102 :0 New...:7 ");
  mManager->RemoveMenuHelper(&helper);
  OS_Menu::Destroy(menu);
}

TEST_F(Workspaces, CommandsAskAndObey) {
  TopLevelWindow* const window = main;
  const auto answerText = [](const char* inText) {
    lumui::dialogs::SetTextDialogAnswerer([inText](const lumui::dialogs::TextDialogArgs& inArgs) {
      using Result = lumui::dialogs::TextDialogResult;
      EXPECT_EQ(inArgs.initial, U16("Workspace 1"));
      return std::optional<Result>(inText ? Result(U16(inText)) : Result());
    });
  };
  EXPECT_NE(FailureOf([&] {
              utils::RequestCreateNewWorkspace(nullptr, window, *mManager);
            }).find("New Workspace"),
            std::string::npos)
      << "nobody answers";
  answerText(nullptr);
  EXPECT_FALSE(utils::RequestCreateNewWorkspace(nullptr, window, *mManager));
  answerText("draw");
  EXPECT_NE(FailureOf([&] {
              utils::RequestCreateNewWorkspace(nullptr, window, *mManager);
            }).find("\"Draw\""),
            std::string::npos);
  EXPECT_FALSE(utils::SaveCurrentWorkspace(nullptr, window, *mManager));
  EXPECT_FALSE(utils::ConfirmRevertCurrWorkspace(nullptr, window, *mManager));
  answerText("Mine");
  EXPECT_TRUE(utils::RequestCreateNewWorkspace(nullptr, window, *mManager));
  EXPECT_EQ(Names(), "Draw Animate Mine*");

  lumui::dialogs::SetChoiceDialogAnswerer([](const lumui::dialogs::ChoiceDialogArgs& inArgs) {
    EXPECT_EQ(inArgs.initial, 2);
    return std::optional<int>(1);
  });
  EXPECT_TRUE(utils::ChooseDeleteWorkspace(nullptr, window, *mManager));
  EXPECT_EQ(Names(), "Draw Mine*");

  // Names that change places, in another order, with one deleted.
  mManager->SaveWorkspace(U16("Third"));
  utils::SetEditWorkspacesAnswerer([](const utils::EditedWorkspaces& inRows) {
    EXPECT_EQ(inRows.size(), 3u);
    return std::optional<std::optional<utils::EditedWorkspaces>>(
        utils::EditedWorkspaces{{U16("Third"), U16("Mine")}, {U16("Mine"), U16("Third")}});
  });
  EXPECT_TRUE(utils::ShowEditWorkspacesDialog(nullptr, window, *mManager));
  EXPECT_EQ(Names(), "Mine* Third");

  // The last but one is as saved, where there is something built in.
  Set("Third");
  Open("f", TabPlace::kInArea, "");
  mManager->SaveWorkspace(U16("Animate"));
  std::string buttons;
  lumui::dialogs::SetDialogAnswerer([&](const lumui::dialogs::MessageDialogArgs& inArgs) {
    buttons = std::to_string(inArgs.buttons.size());
    return std::optional<int>(1);
  });
  EXPECT_TRUE(utils::ConfirmRevertCurrWorkspace(nullptr, window, *mManager));
  EXPECT_EQ(buttons, "3");
  EXPECT_EQ(Text(), "left[~a] bottom[b|c*] center");
}

}  // namespace
