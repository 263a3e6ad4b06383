// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>
#include <QStyleOptionTab>
#include <QTabBar>
#include <algorithm>
#include <memory>

#include "lumui/testing/Menus.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumworkspace/sharedui/WorkspaceSwitcher.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "support/Panels.h"

namespace {

using namespace test_support;
using lumcore::UTF16String;
using lumcore::utility::ToStdString;
using lumui::ui::OS_Menu;
using lumworkspace::sharedui::WorkspaceSwitcher;
using lumworkspace::sharedui::WorkspaceSwitcherManager;

// Keeps names, and refuses to apply "Broken".
class NameManager : public lumworkspace::workspace::ManagerBase {
 public:
  void Set(const std::vector<UTF16String>& inNames, const UTF16String& inCurrent) {
    mNames = inNames;
    mCurrent = inCurrent;
    NotifyWorkspacesChanged();
  }

  void WillQuit() override {}
  void ApplyDefaultMainWindowSize() override {}
  std::vector<UTF16String> GetWorkspaceNames() const override { return mNames; }
  bool HasCurrentWorkspace() const override { return !mCurrent.empty(); }
  UTF16String GetCurrentWorkspace() const override { return mCurrent; }
  void SetCurrentWorkspace(const UTF16String& inName) override {
    ++mApplied;
    if (inName == U16("Broken")) throw lumcore::config::Error(U16("cannot be read"));
    Set(mNames, inName);
  }
  void SaveWorkspace(const UTF16String&) override {}
  void RevertWorkspace(const UTF16String&) override {}
  void DeleteWorkspace(const UTF16String&) override {}

  int mApplied = 0;

 private:
  std::vector<UTF16String> mNames{U16("A & B"), U16("Notes"), U16("Broken")};
  UTF16String mCurrent = U16("Notes");
};

class Switcher : public testing::Test, protected PanelWorkspace {
 protected:
  Switcher() : mMenu(OS_Menu::Create(false)) {
    const HMENU file = OS_Menu::Create(true);
    lumui::ui::MenuItemInfo item;
    item.mask = lumui::ui::kMenuMaskSubMenu;
    item.subMenu = file;
    OS_Menu::InsertItem(mMenu, 0, 0, 0, U16("File"));
    OS_Menu::SetItemInfo(mMenu, 0, item);
    main->UI_SetMenu(mMenu);
    Start();
  }
  ~Switcher() override {
    mSwitcher.reset();
    WorkspaceSwitcherManager::Get()->SetData(lumcore::UTF8String());
  }

  void Start() {
    mSwitcher.reset();
    mSwitcher = std::make_unique<WorkspaceSwitcher>(*main, mManager);
    Settle();
  }
  static QTabBar* FindTabs() {
    for (QWidget* const window : QApplication::topLevelWidgets()) {
      for (auto* const tabs : window->findChildren<QTabBar*>()) {
        if (tabs->accessibleName() == QStringLiteral("Workspaces")) return tabs;
      }
    }
    return nullptr;
  }
  // "A & B | Notes*": the tabs that show, a star at those that look chosen.
  std::string Tabs() {
    Settle();
    QTabBar* const tabs = FindTabs();
    if (!tabs || !tabs->isVisible()) return "none";
    std::string text;
    for (int tab = 0; tab < tabs->count(); ++tab) {
      if (tab > 0) text += " | ";
      text += tabs->tabText(tab).replace("&&", "&").toStdString();
      if (LooksChosen(*tabs, tab)) text += "*";
    }
    return text;
  }
  // As the style is told when it draws the tab.
  static bool LooksChosen(const QTabBar& inTabs, int inTab) {
    struct Reader : QTabBar {
      static auto Get() { return &Reader::initStyleOption; }
    };
    QStyleOptionTab option;
    (inTabs.*Reader::Get())(&option, inTab);
    return option.state.testFlag(QStyle::State_Selected);
  }
  void Send(QEvent::Type inType, const QPoint& inPoint, Qt::MouseButton inButton,
            Qt::MouseButtons inHeld) {
    QTabBar* const tabs = FindTabs();
    QMouseEvent event(inType, inPoint, tabs->mapToGlobal(inPoint), inButton, inHeld,
                      Qt::NoModifier);
    QApplication::sendEvent(tabs, &event);
  }
  void Click(int inTab) {
    const QPoint at = FindTabs()->tabRect(inTab).center();
    Send(QEvent::MouseButtonPress, at, Qt::LeftButton, Qt::LeftButton);
    Send(QEvent::MouseButtonRelease, at, Qt::LeftButton, Qt::NoButton);
    Settle();
  }
  void Drag(int inTab, int inTo) {
    const QPoint from = FindTabs()->tabRect(inTab).center();
    QPoint to = FindTabs()->tabRect(inTo).center();
    to.rx() += inTo < inTab ? -20 : 20;
    Send(QEvent::MouseButtonPress, from, Qt::LeftButton, Qt::LeftButton);
    for (const QPoint& at : {(from * 2 + to) / 3, (from + to * 2) / 3, to})
      Send(QEvent::MouseMove, at, Qt::NoButton, Qt::LeftButton);
    Send(QEvent::MouseButtonRelease, to, Qt::LeftButton, Qt::NoButton);
    Settle();
  }
  // What the menu of the right button shows; chooses an item of it, or none.
  std::string ChooseInMenu(const std::string& inItem) {
    std::string shown;
    lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([&] {
      shown = ToStdString(lumui::testing::MenuAsText(nullptr));
      if (inItem.empty()) {
        lumui::testing::CloseMenus(*main);
      } else {
        lumui::testing::ChooseMenuItem(*main, {U16(inItem)});
      }
    });
    const QPoint at = FindTabs()->tabRect(0).center();
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, FindTabs()->mapToGlobal(at));
    QApplication::sendEvent(FindTabs(), &event);
    Settle();
    return shown;
  }
  static std::string Data() { return ToStdString(WorkspaceSwitcherManager::Get()->GetData()); }

  HMENU mMenu;
  NameManager mManager;
  std::unique_ptr<WorkspaceSwitcher> mSwitcher;
};

TEST_F(Switcher, AppliesTheWorkspaceThatIsClickedAndFollowsTheManager) {
  EXPECT_EQ(Tabs(), "A & B | Notes* | Broken");
  Click(0);
  EXPECT_EQ(Tabs(), "A & B* | Notes | Broken");
  EXPECT_EQ(mManager.mApplied, 1);
  Click(0);
  EXPECT_EQ(mManager.mApplied, 1) << "it is the current one already";

  std::string failure;
  lumui::ui::Application::Get()->SetErrorFunction([&failure](const std::exception_ptr& inError) {
    try {
      std::rethrow_exception(inError);
    } catch (const std::exception& error) {
      failure = error.what();
    }
  });
  Click(2);
  lumui::ui::Application::Get()->SetErrorFunction(nullptr);
  EXPECT_EQ(failure, "cannot be read");
  EXPECT_EQ(mManager.mApplied, 2);
  EXPECT_EQ(Tabs(), "A & B* | Notes | Broken");

  mManager.Set({U16("Notes"), U16("A & B")}, UTF16String());
  EXPECT_EQ(Tabs(), "Notes | A & B");
  Click(0);
  EXPECT_EQ(Tabs(), "Notes* | A & B") << "though the tab was in front, of no current workspace";
  EXPECT_EQ(Data(), "") << "the user has arranged nothing";
}

TEST_F(Switcher, KeepsPlacesAndChoiceOfTheUser) {
  Drag(1, 0);
  EXPECT_EQ(Data(), "+Notes\n+A & B\n+Broken\n");
  EXPECT_EQ(Tabs(), "Notes* | A & B | Broken");
  EXPECT_EQ(ChooseInMenu("A & B"), "*Notes | *A && B | *Broken");
  EXPECT_EQ(Tabs(), "Notes* | Broken");
  Drag(0, 1);
  EXPECT_EQ(Data(), "+Broken\n-A & B\n+Notes\n") << "the hidden one stays in the middle";
  EXPECT_EQ(mManager.mApplied, 0);

  Start();
  EXPECT_EQ(Tabs(), "Broken | Notes*");
  mManager.Set({U16("A & B"), U16("New"), U16("Notes"), U16("Broken")}, U16("A & B"));
  EXPECT_EQ(Tabs(), "Broken | New | Notes") << "a new one behind the one it follows";
  ChooseInMenu("New");
  ChooseInMenu("Notes");
  EXPECT_EQ(ChooseInMenu(""), "~*Broken | A && B | New | Notes") << "one stays";
  mManager.Set({U16("A & B"), U16("Notes")}, U16("A & B"));
  EXPECT_EQ(Tabs(), "A & B*") << "all that are left were hidden";

  // Of another making, and doubled.
  WorkspaceSwitcherManager::Get()->SetData(U8("?\n\n-Notes\n+Notes\n+gone\n+A & B"));
  EXPECT_EQ(Tabs(), "A & B*");
}

TEST_F(Switcher, ShowsItselfWhereThereIsRoomAndGoesWithTheBar) {
  main->MoveTo(lumcore::geom::RectT<int>(0, 0, 90, 300));
  EXPECT_EQ(Tabs(), "none");
  main->MoveTo(lumcore::geom::RectT<int>(0, 0, 800, 300));
  EXPECT_EQ(Tabs(), "A & B | Notes* | Broken");
  main->UI_SetMenu(nullptr);
  EXPECT_EQ(Tabs(), "none");
  const HMENU other = OS_Menu::Create(false);
  OS_Menu::InsertItem(other, 0, 0, 1, U16("Other"));
  main->UI_SetMenu(other);
  EXPECT_EQ(Tabs(), "A & B | Notes* | Broken");
  // Of no manager any more, as a host has it for a moment that changes to another one.
  {
    auto manager = std::make_unique<NameManager>();
    mSwitcher = std::make_unique<WorkspaceSwitcher>(*main, *manager);
    EXPECT_EQ(Tabs(), "A & B | Notes* | Broken");
    manager.reset();
    Click(0);
    Drag(1, 0);
    EXPECT_EQ(ChooseInMenu(""), "");
    EXPECT_EQ(Data(), "");
  }
  Start();
  EXPECT_EQ(Tabs(), "A & B | Notes* | Broken");
  main->UI_DestroyWindow();
  mManager.Set({U16("A & B")}, UTF16String());
  EXPECT_EQ(Tabs(), "none");
}

}  // namespace
