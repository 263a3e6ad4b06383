// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/utility/OS_Menu.h"
#include "lumworkspace/workspace/WorkspaceFrameBase.h"
#include "support/Panels.h"
#include "support/PartingPanels.h"

namespace {

using namespace test_support;
using lumcore::proplist::PropList;

class Panels : public testing::Test, protected PanelWorkspace {
 protected:
  void SetLayout(const PropList& inLayout) {
    workspace.SetLayout(inLayout, U16("layout.test"));
    Settle();
  }
  std::string FailureOf(const PropList& inLayout) {
    try {
      SetLayout(inLayout);
    } catch (const lumcore::config::Error& error) {
      return error.what();
    }
    return "";
  }
};

TEST_F(Panels, StandWhereTheyAreOpened) {
  OpenAll();
  EXPECT_EQ(Text(), "left[a|b*] right[c / d] bottom[e] center float[f@100,120]");
  Open("e", TabPlace::kRightOf, "d");
  EXPECT_EQ(Text(), "left[a|b*] right[c / (d + e)] center float[f@100,120]");
  Open("a", TabPlace::kAbove, "f");
  EXPECT_EQ(Text(), "left[b] right[c / (d + e)] center float[a / f@100,120]");
  Open("b", TabPlace::kTabWith, "e");
  EXPECT_EQ(Text(), "right[c / (d + e|b*)] center float[a / f@100,120]");
  workspace.ActivateTab(U8("e"));
  EXPECT_EQ(Text(), "right[c / (d + e*|b)] center float[a / f@100,120]");
  EXPECT_EQ(workspace.OpenTab(U8("unknown")), nullptr);
}

// The same without an applied layout in between: what Qt shows, measured.
TEST_F(Panels, AreReadBackFromTheScreenOnceTheUserHasMovedThem) {
  OpenAll();
  Open("e", TabPlace::kRightOf, "d");
  workspace.CloseTab(U8("c"));
  Settle();
  const std::string before = Text();
  EXPECT_EQ(before, "left[a|b*] right[~c / (d + e)] center float[f@100,120]");
  const std::string sizes = Text(true);
  Drag(*main, {242, 300}, {312, 300});
  EXPECT_EQ(Text(), before);
  EXPECT_NE(Text(true), sizes);
  EXPECT_NE(Text(true).find("left:310["), std::string::npos) << Text(true);
}

TEST_F(Panels, ClosedOnesComeBackToTheirPlaces) {
  OpenAll();
  Open("e", TabPlace::kTabWith, "b");
  const std::string all = Text();
  for (const char* type : {"c", "b", "f", "a", "d", "e"}) {
    EXPECT_TRUE(workspace.CloseTab(U8(type)));
    EXPECT_FALSE(workspace.CloseTab(U8(type)));
  }
  Settle();
  EXPECT_EQ(Text(), "left[~a|~b|~e*] right[~c / ~d] center float[~f@100,120]");
  EXPECT_EQ(workspace.GetTopLevelWindows().size(), 1u);
  for (const char* type : {"f", "d", "a", "c", "b", "e"})
    workspace.OpenTab(U8(type));
  Settle();
  EXPECT_EQ(Text(), all);
}

TEST_F(Panels, GoToWindowsOfTheirOwnAndBack) {
  OpenAll();
  const std::string all = Text();
  for (const char* type : {"a", "d", "e"}) {
    const boost::intrusive_ptr<TabPanel> panel = workspace.FindTab(U8(type));
    EXPECT_TRUE(workspace.FloatTab(U8(type), true));
    Settle();
    EXPECT_TRUE(panel->GetFrame()->IsFloating());
    EXPECT_NE(panel->UI_GetWindowNode(), main);
    EXPECT_TRUE(workspace.FloatTab(U8(type), false));
    Settle();
    EXPECT_EQ(workspace.FindTab(U8(type)), panel.get()) << "is the same panel";
    EXPECT_EQ(Text().find(std::string("float[") + type), std::string::npos);
  }
  workspace.ActivateTab(U8("b"));
  EXPECT_EQ(Text(), all);
  // The cross of a window closes what stands in it.
  lumui::testing::RequestClose(*workspace.FindTab(U8("f"))->UI_GetWindowNode());
  Settle();
  EXPECT_EQ(Text(), "left[a|b*] right[c / d] bottom[e] center float[~f@100,120]");
}

TEST_F(Panels, AreDraggedOutOfTheWindowAndBackIntoAnother) {
  OpenAll();
  // From the title of "c" to the middle of the window, where there is no dock, and on to the
  // lower part of the dock of "a" and "b".
  Drag(*main, {600, 12}, {400, 250});
  lumui::ui::OS_Window& window = *workspace.FindTab(U8("c"))->UI_GetWindowNode();
  ASSERT_NE(&window, main) << Text();
  const auto rect = window.UI_GetLocalRectF();
  Drag(window, {40, 12}, {120 - rect.x, 400 - rect.y});
  EXPECT_EQ(Text(), "left[a|b* / c] right[d] bottom[e] center float[f@100,120]");
}

TEST_F(Panels, LayoutOutlivesASmallWindowAndAScreenThatIsGone) {
  OpenAll();
  const PropList layout = workspace.GetLayout();
  const std::string sizes = Text(true);
  main->UI_SetSize(320, 240);
  SetLayout(layout);
  Settle();
  main->UI_SetSize(330, 250);
  Settle();
  const std::string small = Text(true);
  EXPECT_EQ(small, sizes) << "until the user edits";
  // Two screens to the right.
  PropList far = layout;
  PropList& farWindow = (*far.Find<std::vector<PropList>>("Floating"))[0];
  lumcore::proplist::utils::WriteRect32(farWindow, "Rect",
                                        lumcore::geom::RectT<float>(4000, 120, 300, 200));
  SetLayout(far);
  EXPECT_EQ(workspace.FindTab(U8("f"))->UI_GetWindowNode()->UI_GetLocalRectF().x, 500);
  EXPECT_EQ(Text(), "left[a|b*] right[c / d] bottom[e] center float[f@4000,120]");
}

TEST_F(Panels, MaximisedWindowsComeBackSoAndKnowTheirOldPlace) {
  OpenAll();
  main->MoveTo(lumcore::geom::RectT<int>(30, 40, 500, 400));
  Settle();
  TopLevelWindow& floating = *workspace.GetTopLevelWindows().back();
  main->UI_SetMaximized(true);
  floating.UI_SetMaximized(true);
  Settle();
  EXPECT_GT(main->UI_GetLocalRectF().width, 500);
  const PropList layout = workspace.GetLayout();
  EXPECT_EQ(layout.Get("MainWindowMaximized", false), true);
  main->UI_SetMaximized(false);
  floating.UI_SetMaximized(false);
  main->MoveTo(lumcore::geom::RectT<int>(10, 10, 300, 300));
  Settle();
  EXPECT_FALSE(workspace.GetLayout().Has("MainWindowMaximized"));
  SetLayout(layout);
  EXPECT_TRUE(main->UI_IsMaximized());
  EXPECT_TRUE(workspace.GetTopLevelWindows().back()->UI_IsMaximized());
  EXPECT_EQ(workspace.GetLayout(), layout);
  main->UI_SetMaximized(false);
  Settle();
  EXPECT_EQ(main->UI_GetLocalRectF(), lumcore::geom::RectT<float>(30, 40, 500, 400));
}

TEST_F(Panels, MissingOnesKeepTheirPlaceUntilSomebodyMakesThem) {
  OpenAll();
  const PropList layout = workspace.GetLayout();
  const std::string all = Text();
  Workspace later(nullptr);
  later.CreateMainTopLevelWindow(nullptr);
  for (const char* type : {"a", "c", "e"})
    later.RegisterTabCreator(new CountingCreator(type));
  later.SetLayout(layout, U16("x"));
  EXPECT_EQ(later.FindTab(U8("d")), nullptr);
  EXPECT_EQ(later.GetTopLevelWindows().size(), 1u);
  const auto text = [&] { return lumworkspace::testing::LayoutAsText(later); };
  EXPECT_EQ(text(), "left[a|b*] right[c / d] bottom[e] float[f@100,120]");
  later.CloseTab(U8("c"));
  for (const char* type : {"b", "d", "f"})
    later.RegisterTabCreator(new CountingCreator(type));
  EXPECT_NE(later.FindTab(U8("d")), nullptr);
  EXPECT_EQ(later.GetTopLevelWindows().size(), 2u);
  EXPECT_EQ(text(), "left[a|b*] right[~c / d] bottom[e] float[f@100,120]");
}

TEST_F(Panels, AFailingCreatorLeavesEverythingAsItWas) {
  OpenAll();
  const PropList layout = workspace.GetLayout();
  workspace.CloseTab(U8("b"));
  workspace.CloseTab(U8("d"));
  const std::string before = Text();
  const TabPanel* const kept = workspace.FindTab(U8("a"));
  Register("d")->mFails = true;
  CountingCreator* const b = Register("b");
  EXPECT_EQ(FailureOf(layout), "no panel");
  EXPECT_EQ(b->mMade, 1) << "made before the failure, and let go";
  EXPECT_EQ(workspace.FindTab(U8("a")), kept);
  EXPECT_EQ(Text(), before);
}

TEST_F(Panels, WhatIsNoLayoutIsRefusedWithItsCause) {
  OpenAll();
  const std::string before = Text(true);
  const PropList good = workspace.GetLayout();
  const auto withLeft = [&](const auto& inChange) {
    PropList list = good;
    inChange(*list.GetSubList("Left"));
    return list;
  };
  PropList later = good;
  later.Set<std::int32_t>("Version", 7);
  PropList noSize = good;
  noSize.Remove("Width");
  PropList foreignFloat = good;
  foreignFloat.Set("Floating", std::vector<PropList>(1));
  const struct {
    PropList list;
    const char* cause;
  } cases[] = {
      {PropList(), "has no version"},
      {later, "version 7"},
      {noSize, "\"Width\""},
      {foreignFloat, "\"Rect\""},
      {withLeft([](PropList& ioLeft) { ioLeft.Set("Kind", U8("heap")); }), "\"Kind\""},
      {withLeft([](PropList& ioLeft) { ioLeft.Set<std::int32_t>("Size", -4); }), "\"Size\""},
      {withLeft([](PropList& ioLeft) { ioLeft.Remove("Tabs"); }), "\"Tabs\""},
      {withLeft([](PropList& ioLeft) {
         ioLeft.Set("Tabs", std::vector{U8("c"), U8("b")});
       }),
       "\"c\" stands in it twice"},
  };
  for (const auto& each : cases) {
    const std::string failure = FailureOf(each.list);
    EXPECT_NE(failure.find("layout.test"), std::string::npos) << failure;
    EXPECT_NE(failure.find(each.cause), std::string::npos) << failure;
    EXPECT_EQ(Text(true), before);
  }
}

TEST_F(Panels, AskAndCloseOthersWhileTheWorkspaceTakesThemAlong) {
  PropList layout;
  std::string gone;
  {
    Workspace ending(nullptr);
    ending.CreateMainTopLevelWindow(nullptr);
    const auto parting = [&](Workspace& ioWorkspace, const std::string& inType) {
      gone += inType;
      EXPECT_NE(ioWorkspace.GetMainTopLevelWindow(), nullptr);
      EXPECT_NE(ioWorkspace.FindTabCreator(U8(inType)), nullptr);
      EXPECT_EQ(ioWorkspace.FindTab(U8(inType)), nullptr);
      EXPECT_EQ(ioWorkspace.OpenTab(U8(inType)), nullptr) << "it would never end";
      if (inType != "a") return;
      EXPECT_EQ(ioWorkspace.GetLayout(), layout);
      EXPECT_NE(ioWorkspace.FindTab(U8("b")), nullptr);
      EXPECT_FALSE(ioWorkspace.FloatTab(U8("c"), false));
      ioWorkspace.SetLayout(layout, U16("parting"));
      EXPECT_TRUE(ioWorkspace.CloseTab(U8("c")));
      gone += "|";
    };
    for (const char* type : {"a", "b", "c"}) {
      ending.RegisterTabCreator(new PartingCreator(type, parting));
      ending.OpenTab(U8(type));
    }
    ending.FloatTab(U8("c"), true);
    Settle();
    layout = ending.GetLayout();
    EXPECT_EQ(gone, "");
  }
  EXPECT_EQ(gone, "ac|b");
}

TEST_F(Panels, FlyoutMenuHasWhatEveryPanelCan) {
  OpenAll();
  TabPanel& panel = *workspace.FindTab(U8("c"));
  const HMENU handle = lumui::ui::OS_Menu::Create(true);
  lumui::utility::OS_Menu menu(handle);
  panel.BuildFlyoutMenu(menu);
  ASSERT_EQ(lumui::ui::OS_Menu::GetItemCount(handle), 2u);
  EXPECT_FALSE(panel.RunFlyoutMenuCommand(1));
  const boost::intrusive_ptr<TabPanel> keep(&panel);
  EXPECT_TRUE(panel.RunFlyoutMenuCommand(lumui::ui::OS_Menu::GetItemID(handle, 0)));
  EXPECT_TRUE(panel.GetFrame()->IsFloating());
  EXPECT_TRUE(panel.RunFlyoutMenuCommand(lumui::ui::OS_Menu::GetItemID(handle, 1)));
  EXPECT_EQ(workspace.FindTab(U8("c")), nullptr);
  EXPECT_FALSE(panel.RunFlyoutMenuCommand(lumui::ui::OS_Menu::GetItemID(handle, 1)));
  lumui::ui::OS_Menu::Destroy(handle);
}

}  // namespace
