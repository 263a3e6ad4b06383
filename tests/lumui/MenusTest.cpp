// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "UITest.h"
#include "lumcore/config/ThrowError.h"
#include "lumui/testing/Menus.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/OS_Menu.h"

namespace lumui::test {

namespace {

namespace input = lumui::testing;
using ui::kMenuFailed;
using ui::OS_Menu;

HMENU Sub(HMENU inMenu, const char* inTitle) {
  ui::MenuItemInfo info;
  info.mask = ui::kMenuMaskSubMenu;
  info.subMenu = OS_Menu::Create(true);
  OS_Menu::InsertItem(inMenu, kMenuFailed, 0, 0, U16(inTitle));
  OS_Menu::SetItemInfo(inMenu, OS_Menu::GetItemCount(inMenu) - 1, info);
  return info.subMenu;
}

std::string Shown(HMENU inMenu = nullptr) {
  return lumcore::utility::ToStdString(input::MenuAsText(inMenu));
}

std::function<void(const ui::OS_Event&)> sOnMessage;

// A window with the bar "File (Open 65546, ---, Recent (First 21, Second 22)) | Edit (Wrap 31)",
// whose messages about menus are logged: "pre279 open279 post279".
class Menus : public UITest {
 protected:
  Menus() {
    mFile = Sub(mBar, "&File");
    OS_Menu::InsertItem(mFile, 0, 0, 0x1000A, U16("&Open\tCtrl+O"));
    OS_Menu::InsertItem(mFile, 1, ui::kMenuTypeSeparator, 0, U16(""));
    mRecent = Sub(mFile, "Recent");
    OS_Menu::InsertItem(mRecent, 0, 0, 21, U16("First"));
    OS_Menu::InsertItem(mRecent, 1, 0, 22, U16("Second"));
    mEdit = Sub(mBar, "&Edit");
    OS_Menu::InsertItem(mEdit, 0, 0, 31, U16("Wrap && Fill"));
    mWindow->UI_SetMenu(mBar);
    sOnMessage = [this](const ui::OS_Event& inEvent) {
      const bool opening = inEvent.message == ui::kMessageInitMenuPopup;
      if (opening) Log("open" + Name(reinterpret_cast<HMENU>(inEvent.wParam)));
      if (inEvent.message == ui::kMessageCommand) Log("run" + std::to_string(inEvent.wParam));
    };
  }
  ~Menus() override {
    input::CloseMenus(*mWindow);
    sOnMessage = nullptr;
  }

  std::string Name(HMENU inMenu) {
    return inMenu == mFile ? "File" : inMenu == mRecent ? "Recent" : inMenu == mEdit ? "Edit" : "?";
  }
  static void OnMessage(ui::OS_Event* ioEvent) {
    if (sOnMessage) sOnMessage(*ioEvent);
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow = MakeWindow(OnMessage);
  const HMENU mBar = OS_Menu::Create(false);
  HMENU mFile, mRecent, mEdit;
};

}  // namespace

TEST_F(Menus, OpeningAndChoosingGoThroughTheGate) {
  App().SetEventSteps(
      [this](const ui::OS_Event& inEvent) {
        Log("pre" + std::to_string(inEvent.message));
        return inEvent.message != ui::kMessageCommand || inEvent.wParam != 21;
      },
      [this](const ui::OS_Event& inEvent) { Log("post" + std::to_string(inEvent.message)); });
  // Of the clicks and keys, which are the menus' own, the window hears nothing.
  input::ChooseMenuItem(*mWindow, {U16("File"), U16("Open")});
  EXPECT_EQ(TakeLog(), "pre279 openFile post279 pre273 run10 post273 pre257 post257");
  input::OpenMenu(*mWindow, {U16("File"), U16("Recent")});
  EXPECT_EQ(TakeLog(), "pre279 openFile post279 pre279 openRecent post279");
  EXPECT_EQ(Shown(), "First | Second");
  input::ChooseMenuItem(*mWindow, {U16("Second")});
  EXPECT_EQ(TakeLog(), "pre273 run22 post273 pre257 post257");
  input::ChooseMenuItem(*mWindow, {U16("File"), U16("Recent"), U16("First")});
  EXPECT_EQ(TakeLog(), "pre279 openFile post279 pre279 openRecent post279 pre273 pre257 post257");
}

TEST_F(Menus, ChangesMadeWhileItOpensShow) {
  sOnMessage = [this](const ui::OS_Event& inEvent) {
    if (inEvent.message != ui::kMessageInitMenuPopup) return;
    Log(std::to_string(inEvent.lParam));
    OS_Menu::EnableItem(mFile, 0, false);
    OS_Menu::CheckItem(mFile, 0, true);
    OS_Menu::InsertItem(mFile, 2, 0, 11, U16("New"));
    OS_Menu::CheckRadioItem(mFile, 2, 2, 2);
    OS_Menu::RemoveItem(mFile, 1);
    OS_Menu::InsertItem(mEdit, 0, 0, 32, U16("Before"));
  };
  input::OpenMenu(*mWindow, {U16("File")});
  EXPECT_EQ(Shown(), "~*&Open\tCtrl+O | (*)New | Recent >");
  EXPECT_EQ(Shown(mEdit), "Before | Wrap && Fill");
  EXPECT_THROW(input::ChooseMenuItem(*mWindow, {U16("Open")}), lumcore::config::Error);
  EXPECT_THROW(input::ChooseMenuItem(*mWindow, {U16("Old")}), lumcore::config::Error);
  input::CloseMenus(*mWindow);
  input::OpenMenu(*mWindow, {U16("Edit")});
  EXPECT_EQ(TakeLog(), "0 1");
}

TEST_F(Menus, MarksAreTheCommandsAndNotTheClicks) {
  OS_Menu::CheckItem(mEdit, 0, true);
  input::ChooseMenuItem(*mWindow, {U16("Edit"), U16("Wrap & Fill")});
  EXPECT_EQ(Shown(mEdit), "*Wrap && Fill");
  OS_Menu::CheckRadioItem(mFile, 0, 2, 0);
  OS_Menu::CheckRadioItem(mFile, 0, 2, 2);
  EXPECT_EQ(Shown(mFile), "&Open\tCtrl+O | --- | (*)Recent >");
}

TEST_F(Menus, KeysAreTheMenusWhileOneIsOpen) {
  const boost::intrusive_ptr<RecordingNode> node(
      new RecordingNode("node", [this](const std::string& inWord) { Log(inWord); }));
  node->mTakes = true;
  mWindow->UI_AddChild(node);
  node->UI_SetKeyboardFocus(ui::kFocusOther);
  TakeLog();
  const ui::KeyboardCode e(0x80000045);
  const ui::ModifierKeys alt(ui::kModAlt);
  Manager().EnableMnemonics();
  App().SetShortcutClaim([](const ui::KeyboardEvent&) { return true; });
  input::PressKey(*mWindow, e, alt);
  EXPECT_EQ(TakeLog(), "node:down(80000045+10) node:char(80000065+10)");
  App().SetShortcutClaim(nullptr);
  input::PressKey(*mWindow, e, alt);
  EXPECT_EQ(TakeLog(), "openEdit");
  input::TapKey(*mWindow, ui::KeyboardCode(0x8000005A));
  EXPECT_EQ(TakeLog(), "");
}

TEST_F(Menus, NodesStandBelowTheBarAndKnowNothingOfIt) {
  const boost::intrusive_ptr<RecordingNode> node(
      new RecordingNode("node", [this](const std::string& inWord) { Log(inWord); }));
  node->UI_SetLocalRectF(Rect(10, 10, 50, 20));
  mWindow->UI_AddChild(node);
  EXPECT_LT(mWindow->UI_GetLocalRectF().height, 100);
  mWindow->UI_SetSize(200, 90);
  EXPECT_EQ(mWindow->UI_GetLocalRectF().height, 90);
  App().SetEventSteps(
      [this](const ui::OS_Event& inEvent) {
        if (inEvent.message == ui::kMessageLeftDown) Log(std::to_string(inEvent.lParam));
        return true;
      },
      nullptr);
  input::ClickMouse(*mWindow, Point(15, 12));
  EXPECT_EQ(TakeLog(), std::to_string(12 << 16 | 15) + " node:press@5,2 node:release@5,2");
  App().SetEventSteps(nullptr, nullptr);
  mWindow->UI_SetMenu(nullptr);
  EXPECT_GT(mWindow->UI_GetLocalRectF().height, 90);
  input::ClickMouse(*mWindow, Point(15, 12));
  EXPECT_EQ(TakeLog(), "node:press@5,2 node:release@5,2");
  // A window that is made anew gives its bar room of its own.
  mWindow->UI_DestroyWindow();
  EXPECT_TRUE(mWindow->UI_SetMenu(mBar));
  const lumcore::geom::RectT<int> rect(40, 30, 200, 100);
  mWindow->UI_ConstructWindow(&rect);
  mWindow->UI_Show(true);
  EXPECT_EQ(mWindow->UI_GetLocalRectF().height, 100);
  input::ClickMouse(*mWindow, Point(15, 12));
  EXPECT_EQ(TakeLog(), "node:press@5,2 node:release@5,2");
}

TEST_F(Menus, MenusMayGoWhileTheyAreOpen) {
  sOnMessage = [this](const ui::OS_Event& inEvent) {
    if (inEvent.message == ui::kMessageCommand) OS_Menu::Destroy(mRecent);
  };
  input::OpenMenu(*mWindow, {U16("File"), U16("Recent")});
  OS_Menu::RemoveItem(mFile, 2);
  EXPECT_EQ(Shown(), "&Open\tCtrl+O | ---");
  EXPECT_TRUE(OS_Menu::IsMenu(mRecent));  // removed, not destroyed
  input::CloseMenus(*mWindow);
  OS_Menu::PopUp(mRecent, *mWindow, {50, 50});
  input::ChooseMenuItem(*mWindow, {U16("First")});
  EXPECT_FALSE(OS_Menu::IsMenu(mRecent));
  sOnMessage = [this](const ui::OS_Event& inEvent) {
    if (inEvent.message == ui::kMessageCommand) mWindow->UI_DestroyWindow();
  };
  input::ChooseMenuItem(*mWindow, {U16("Edit"), U16("Wrap & Fill")});
  App().PumpPendingEvents();
  EXPECT_FALSE(OS_Menu::IsMenu(mBar) || OS_Menu::IsMenu(mEdit));
}

TEST_F(Menus, CommandsMayPumpBehindTheEndOfTheirMenu) {
  const auto onCommand = [this](const std::function<void()>& inDestroy) {
    sOnMessage = [this, inDestroy](const ui::OS_Event& inEvent) {
      if (inEvent.message != ui::kMessageCommand) return;
      inDestroy();
      App().PumpPendingEvents();
    };
  };
  onCommand([this] { OS_Menu::Destroy(mRecent); });
  input::ChooseMenuItem(*mWindow, {U16("File"), U16("Recent"), U16("First")});
  EXPECT_FALSE(OS_Menu::IsMenu(mRecent));
  onCommand([this] { OS_Menu::RemoveItem(mFile, 0); });
  input::ChooseMenuItem(*mWindow, {U16("File"), U16("Open")});
  EXPECT_EQ(Shown(mFile), "--- | Recent");
  onCommand([this] { mWindow->UI_DestroyWindow(); });
  input::ChooseMenuItem(*mWindow, {U16("Edit"), U16("Wrap & Fill")});
  EXPECT_FALSE(OS_Menu::IsMenu(mBar) || OS_Menu::IsMenu(mEdit));
}

TEST_F(Menus, SubmenusMayMoveToAnotherItem) {
  input::OpenMenu(*mWindow, {U16("File"), U16("Recent")});
  input::CloseMenus(*mWindow);
  OS_Menu::RemoveItem(mFile, 2);
  ui::MenuItemInfo info;
  info.mask = ui::kMenuMaskSubMenu;
  info.subMenu = mRecent;
  OS_Menu::SetItemInfo(mEdit, 0, info);
  TakeLog();
  input::ChooseMenuItem(*mWindow, {U16("Edit"), U16("Wrap & Fill"), U16("Second")});
  EXPECT_EQ(TakeLog(), "openEdit openRecent run22");
}

TEST_F(Menus, TrackedMenusAnswerAndSendNothing) {
  const HMENU menu = OS_Menu::Create(true);
  OS_Menu::InsertItem(menu, 0, 0, 70000, U16("Big"));
  const auto choose = [&](const char* inTitle) {
    Manager().GetExecutor()->Post([this, inTitle] {
      if (inTitle) input::ChooseMenuItem(*mWindow, {U16(inTitle)});
      input::CloseMenus(*mWindow);
    });
    return OS_Menu::TrackPopup(menu, *mWindow, {60, 60});
  };
  EXPECT_EQ(choose("Big"), 70000u);
  EXPECT_EQ(choose(nullptr), 0u);
  EXPECT_EQ(TakeLog(), "open? open?");
  EXPECT_EQ(OS_Menu::TrackPopup(nullptr, *mWindow, {60, 60}), 0u);
  OS_Menu::Destroy(menu);
}

TEST_F(Menus, QuitClosesATrackedMenuWithItsSubmenus) {
  OS_Menu::RemoveItem(mFile, 2);  // else it goes with the window
  const HMENU menu = OS_Menu::Create(true);
  ui::MenuItemInfo info;
  info.mask = ui::kMenuMaskSubMenu;
  info.subMenu = mRecent;
  OS_Menu::InsertItem(menu, 0, 0, 0, U16("Recent"));
  OS_Menu::SetItemInfo(menu, 0, info);
  Manager().GetExecutor()->Post([&] {
    Log(std::to_string(OS_Menu::TrackPopup(menu, *mWindow, {60, 60})));
  });
  Manager().GetExecutor()->Post([&] {
    input::OpenMenu(*mWindow, {U16("Recent")});
    App().Quit(4);
  });
  TakeLog();
  EXPECT_EQ(App().Run(), 4);
  EXPECT_EQ(Shown(), "");
  EXPECT_EQ(TakeLog(), "open? openRecent 0");
  OS_Menu::Destroy(menu);
}

TEST_F(Menus, OperationsOnNothingFail) {
  const HMENU gone = OS_Menu::Create(true);
  OS_Menu::Destroy(gone);
  ui::MenuItemInfo circle;
  circle.mask = ui::kMenuMaskSubMenu;
  circle.subMenu = mFile;
  EXPECT_FALSE(OS_Menu::SetItemInfo(mRecent, 0, circle));
  circle.subMenu = gone;
  EXPECT_FALSE(OS_Menu::SetItemInfo(mRecent, 0, circle));
  struct Place {
    HMENU menu;
    unsigned position;
  };
  for (const Place& at : {Place{nullptr, 0}, Place{gone, 0}, Place{mEdit, 1}, Place{mEdit, ~0u}}) {
    ui::MenuItemInfo info;
    EXPECT_FALSE(OS_Menu::GetItemInfo(at.menu, at.position, info));
    EXPECT_FALSE(OS_Menu::SetItemInfo(at.menu, at.position, info));
    EXPECT_FALSE(OS_Menu::RemoveItem(at.menu, at.position));
    EXPECT_FALSE(OS_Menu::CheckRadioItem(at.menu, at.position, at.position, at.position));
    EXPECT_EQ(OS_Menu::GetItemState(at.menu, at.position), kMenuFailed);
    EXPECT_EQ(OS_Menu::GetItemID(at.menu, at.position), kMenuFailed);
    EXPECT_EQ(OS_Menu::GetSubMenu(at.menu, at.position), nullptr);
  }
  EXPECT_EQ(OS_Menu::GetItemCount(gone), kMenuFailed);
  EXPECT_FALSE(mWindow->UI_SetMenu(gone) || OS_Menu::Destroy(gone));
  EXPECT_EQ(OS_Menu::GetItemID(mFile, 2), kMenuFailed);
  EXPECT_EQ(OS_Menu::GetItemState(mFile, 2), 0x210u);
}

TEST_F(Menus, StandAboveTheCoordinatesOfTheNodes) {
  const boost::intrusive_ptr<RecordingNode> node(
      new RecordingNode("node", [this](const std::string& inWord) { Log(inWord); }));
  mWindow->UI_SetLocalRectF(Rect(50, 60, 300, 200));
  node->UI_SetLocalRectF(Rect(10, 20, 50, 50));
  mWindow->UI_AddChild(node);
  App().PumpPendingEvents();
  lumcore::geom::PointT<int> point(3, 4);
  node->UI_LocalToGlobal(point);
  EXPECT_EQ(point, lumcore::geom::PointT<int>(13, 24));
  TakeLog();
  input::ClickMouse(*mWindow, Point(static_cast<float>(point.x), static_cast<float>(point.y)));
  EXPECT_EQ(TakeLog(), "node:press@3,4 node:release@3,4");
  mWindow->UI_WindowToScreen(point);
  EXPECT_EQ(point.x, 63);
  EXPECT_GT(point.y, 60 + 24 + 10);  // the bar is between
  const auto withBar = point;
  mWindow->UI_SetMenu(nullptr);
  App().PumpPendingEvents();
  mWindow->UI_ScreenToWindow(point);
  node->UI_GlobalToLocal(point);
  EXPECT_EQ(point, lumcore::geom::PointT<int>(3, 4 + withBar.y - 84));
}

}  // namespace lumui::test
