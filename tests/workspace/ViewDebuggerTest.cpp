// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "lumui/controls/UI_MultiColumnTree.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/datatransfer/Clipboard.h"
#include "lumui/ui/InputCapture.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/UI_Dialog.h"
#include "lumui/ui/UI_NodeManager.h"
#include "support/Panels.h"
#include "vek/workspace/NodeListing.h"
#include "vek/workspace/ViewDebuggerTab.h"
#include "vek/workspace/ViewDebuggerTabCreator.h"

namespace viewdebugger_test {

// A class whose name is worth reading.
class Lamp : public lumui::ui::UI_SubView {
 public:
  explicit Lamp(bool* outGone = nullptr) : mGone(outGone) {}
  ~Lamp() override {
    if (mGone) *mGone = true;
  }
  bool UI_DoMouseEvent(lumui::ui::UI_Node*, const lumui::ui::MouseEvent& inEvent) override {
    if (inEvent.GetAction() != lumui::ui::PointerEvent::kActionMove) ++mPresses;
    return true;
  }
  int mPresses = 0;

 private:
  bool* mGone;
};

}  // namespace viewdebugger_test

namespace {

using namespace test_support;
using lumcore::geom::RectT;
using lumui::controls::UI_MultiColumnTree;
using lumui::ui::UI_Node;
using vek::workspace::NodeListing;
using vek::workspace::ViewDebuggerTab;
using viewdebugger_test::Lamp;

TEST(NodeListings, TellOfEachNodeWhatItTellsOfItself) {
  const boost::intrusive_ptr<lumui::ui::OS_Window> window(new lumui::ui::OS_Window);
  window->UI_SetLocalRectF(RectT<float>(10, 20, 300, 200));
  const boost::intrusive_ptr<UI_Node> first(new lumui::ui::UI_SubView);
  const boost::intrusive_ptr<UI_Node> lamp(new Lamp);
  window->UI_AddChild(first);
  first->UI_AddChild(lamp);
  window->UI_AddChild(new lumui::ui::UI_SubView);
  first->UI_SetNodeID("first");
  first->UI_SetLocalRectF(RectT<float>(-4.5f, 7.25f, 30, 0));
  first->UI_SetDisabled(true);
  lamp->UI_Show(false);
  lamp->UI_SetWantsKeyboardFocus(true);
  lamp->UI_SetWantsPrePointerEvents(true);
  EXPECT_EQ(lumcore::utility::ToStdString(NodeListing::AsText(NodeListing::OfAllWindows())),
            "Class\tId\tRectangle\tVisible\tEnabled\tFocus\tWants\n"
            "lumui::ui::OS_Window\t\t10, 20, 300, 200\tno\tyes\t\t\n"
            "  lumui::ui::UI_SubView\tfirst\t-4.5, 7.3, 30, 0\tyes\tno\t\t\n"
            "    viewdebugger_test::Lamp\t\t0, 0, 0, 0\tno\tyes\t\tfocus, presses\n"
            "  lumui::ui::UI_SubView\t\t0, 0, 0, 0\tyes\tyes\t\t\n");
  window->UI_DestroyWindow();
  EXPECT_FALSE(NodeListing::IsLive(first.get()));
}

class ViewDebugger : public ::testing::Test, protected PanelWorkspace {
 protected:
  ViewDebugger() {
    mLamp = new Lamp(&mLampGone);
    mLamp->UI_SetNodeID("lamp");
    mLamp->UI_SetLocalRectF(RectT<float>(40, 50, 60, 30));
    main->GetCentralNode()->UI_AddChild(mLamp);
    workspace.RegisterTabCreator(new vek::workspace::ViewDebuggerTabCreator);
    mTab = dynamic_cast<ViewDebuggerTab*>(
        workspace.OpenTab(U8(vek::workspace::ViewDebuggerTabCreator::kTabType)));
    lumui::testing::ActivateWindow(main);
    Settle();
  }

  UI_MultiColumnTree& Tree() {
    return dynamic_cast<UI_MultiColumnTree&>(*mTab->UI_GetNodeForID(U8("Nodes")));
  }
  // The row of the lamp, its columns with blanks between; empty where it is not listed.
  std::string LampRow(UI_MultiColumnTree::RowID inParent = UI_MultiColumnTree::kNoRow) {
    for (const auto row : Tree().GetChildRows(inParent)) {
      if (Tree().GetText(row, NodeListing::kID) == U16("lamp")) {
        std::string text;
        for (const int column : {NodeListing::kRectangle, NodeListing::kVisible})
          text += lumcore::utility::ToStdString(Tree().GetText(row, column)) + ";";
        return text + (Tree().GetSelectedRow() == row ? "*" : "");
      }
      const std::string below = LampRow(row);
      if (!below.empty()) return below;
    }
    return std::string();
  }
  lumui::testing::Position LampMiddle() {
    lumcore::geom::PointT<int> point(30, 15);
    mLamp->UI_LocalToGlobal(point);
    return {static_cast<float>(point.x), static_cast<float>(point.y)};
  }
  std::size_t Bars() { return main->UI_GetChildCount() - 1; }  // besides the docks

  bool mLampGone = false;
  boost::intrusive_ptr<Lamp> mLamp;
  ViewDebuggerTab* mTab = nullptr;
};

TEST_F(ViewDebugger, FollowsTheNodesAndRestsWhenNothingChanges) {
  EXPECT_EQ(LampRow(), "40, 50, 60, 30;yes;");
  mTab->ChooseNode(mLamp.get());
  Settle();
  int changes = 0;
  boost::shared_ptr<boost::function<void(UI_Node&)>> count(
      new boost::function<void(UI_Node&)>([&](UI_Node&) { ++changes; }));
  lumui::ui::UI_NodeManager::Get(true)->InstallNodeChangedFunction(count);
  mLamp->UI_SetLocalRectF(RectT<float>(41, 50, 60, 30));
  EXPECT_EQ(LampRow(), "40, 50, 60, 30;yes;*") << "within the turn nothing is done";
  Settle();
  EXPECT_EQ(LampRow(), "41, 50, 60, 30;yes;*");
  // The lamp, and the four bars that have moved with it.
  EXPECT_EQ(changes, 5);
  mLamp->UI_SetLocalRectF(RectT<float>(41, 50, 60, 30));
  Settle();
  EXPECT_EQ(changes, 5);
  count->clear();
  const boost::intrusive_ptr<UI_Node> parent = mLamp->UI_GetParentNode();
  const boost::intrusive_ptr<UI_Node> another(new Lamp);
  another->UI_AddChild(mLamp);
  parent->UI_AddChild(another);
  Settle();
  EXPECT_EQ(LampRow(), "41, 50, 60, 30;yes;*") << "a level deeper";
}

TEST_F(ViewDebugger, HoldsNoNodeAndForgetsTheOnesThatGo) {
  mTab->ChooseNode(mLamp.get());
  EXPECT_EQ(mTab->GetChosenNode(), mLamp.get());
  EXPECT_EQ(Bars(), 4u);
  main->GetCentralNode()->UI_RemoveChild(mLamp.get());
  mLamp = nullptr;
  EXPECT_TRUE(mLampGone);
  EXPECT_EQ(mTab->GetChosenNode(), nullptr);
  Settle();
  EXPECT_EQ(LampRow(), "");
  EXPECT_EQ(Bars(), 0u);
  mTab->ChooseNode(main->GetCentralNode());
  EXPECT_EQ(Bars(), 4u);
  workspace.CloseTab(mTab->GetTabType());
  EXPECT_EQ(Bars(), 0u);
  Settle();
}

TEST_F(ViewDebugger, PicksUnderThePointerWithoutPressingAnything) {
  auto& pick = dynamic_cast<lumui::controls::UI_TextButton&>(*mTab->UI_GetNodeForID(U8("Pick")));
  pick.Press();
  const auto at = LampMiddle();
  lumui::testing::MoveMouse(*main, at);
  EXPECT_EQ(mTab->GetChosenNode(), mLamp.get());
  EXPECT_EQ(LampRow(), "40, 50, 60, 30;yes;*");
  lumui::testing::MoveMouse(*main, {at.x, at.y + 40});
  EXPECT_EQ(mTab->GetChosenNode(), main->GetCentralNode());
  // Also where the outline of what was picked before lies.
  lumui::testing::MoveMouse(*main, {at.x - 29, at.y});
  lumui::testing::ClickMouse(*main, {at.x - 29, at.y});
  EXPECT_EQ(mTab->GetChosenNode(), mLamp.get());
  EXPECT_EQ(mLamp->mPresses, 0);
  EXPECT_EQ(lumui::ui::UI_NodeManager::Get(true)->GetInputCapture(), nullptr);
  lumui::testing::ClickMouse(*main, at);
  EXPECT_EQ(mLamp->mPresses, 2) << "press and release, through the outline";
  // Called off by a key.
  mTab->BeginPicking();
  Tree().UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  lumui::testing::TapKey(*main, lumui::ui::KeyboardCode(lumui::ui::KeyboardCode::kEscape));
  EXPECT_EQ(lumui::ui::UI_NodeManager::Get(true)->GetInputCapture(), nullptr);
}

TEST_F(ViewDebugger, PicksAndOutlinesBelowAMenuBar) {
  const HMENU bar = lumui::ui::OS_Menu::Create(false);
  lumui::ui::OS_Menu::InsertItem(bar, 0, 0, 1, U16("File"));
  main->UI_SetMenu(bar);
  main->UI_SetLocalRectF(RectT<float>(70, 80, 400, 300));
  Settle();
  mTab->BeginPicking();
  lumcore::geom::PointT<int> corner;
  mLamp->UI_LocalToGlobal(corner);
  const auto x = static_cast<float>(corner.x), y = static_cast<float>(corner.y);
  lumui::testing::MoveMouse(*main, {x + 1, y - 1});
  EXPECT_EQ(mTab->GetChosenNode(), main->GetCentralNode());
  lumui::testing::ClickMouse(*main, {x + 1, y + 1});
  EXPECT_EQ(mTab->GetChosenNode(), mLamp.get());
  EXPECT_EQ(main->UI_GetChild(1)->UI_GetLocalRectF(), RectT<float>(x, y, 60, 2));
}

TEST_F(ViewDebugger, OutlinesWhatIsInViewOfANode) {
  const boost::intrusive_ptr<UI_Node> view(new lumui::ui::UI_SubView);
  view->UI_SetLocalRectF(RectT<float>(20, 30, 100, 80));
  main->GetCentralNode()->UI_AddChild(view);
  view->UI_AddChild(mLamp);
  mTab->ChooseNode(mLamp.get());
  lumcore::geom::PointT<int> corner;
  view->UI_LocalToGlobal(corner);
  const auto x = static_cast<float>(corner.x), y = static_cast<float>(corner.y);
  // As a list moves what is in it.
  mLamp->UI_SetLocalRectF(RectT<float>(40, -10, 70, 30));
  Settle();
  ASSERT_EQ(Bars(), 4u);
  EXPECT_EQ(main->UI_GetChild(1)->UI_GetLocalRectF(), RectT<float>(x + 40, y, 60, 2));
  EXPECT_EQ(main->UI_GetChild(2)->UI_GetLocalRectF(), RectT<float>(x + 40, y + 18, 60, 2));
  mTab->BeginPicking();
  lumui::testing::MoveMouse(*main, {x + 50, y - 5});
  EXPECT_EQ(mTab->GetChosenNode(), main->GetCentralNode()) << "it lies there, but not to be seen";
  lumui::testing::ClickMouse(*main, {x + 50, y + 5});
  EXPECT_EQ(mTab->GetChosenNode(), mLamp.get());
  mLamp->UI_SetLocalRectF(RectT<float>(40, -60, 70, 30));
  Settle();
  EXPECT_EQ(Bars(), 0u);
  EXPECT_EQ(mTab->GetChosenNode(), mLamp.get());
  mLamp->UI_SetLocalRectF(RectT<float>(40, 10, 30, 0));
  Settle();
  EXPECT_EQ(Bars(), 4u) << "without a size, at its place";
}

TEST_F(ViewDebugger, SurvivesWindowsThatCloseWhileTheyAreShown) {
  const boost::intrusive_ptr<lumui::ui::UI_Dialog> dialog(
      new lumui::ui::UI_Dialog(U16("Box"), main));
  mLamp->UI_SetLocalRectF(RectT<float>(40, 50, 60, 30));
  dialog->GetContent().UI_AddChild(mLamp);
  dialog->SetSize(300, 200);
  dialog->RunModeless({});
  Settle();
  const auto bars = [&] { return dialog->UI_GetChildCount(); };
  const std::size_t without = bars();
  mTab->BeginPicking();
  const auto at = LampMiddle();
  lumui::testing::MoveMouse(*dialog, at);
  EXPECT_EQ(mTab->GetChosenNode(), mLamp.get());
  EXPECT_EQ(bars(), without + 4);
  EXPECT_EQ(LampRow(), "40, 50, 60, 30;yes;*");
  // In the middle of the gesture, as a timer or a script may do it.
  lumui::testing::PressMouse(*dialog, at);
  dialog->EndDialog(1);
  Settle();
  EXPECT_EQ(LampRow(), "");
  EXPECT_EQ(mTab->GetChosenNode(), nullptr);
  EXPECT_EQ(bars(), without);
  lumui::ui::UI_NodeManager::Get(true)->EndInputCapture(true);
  // The panel goes while it picks.
  mTab->BeginPicking();
  workspace.CloseTab(mTab->GetTabType());
  lumui::testing::MoveMouse(*main, {300, 300});
  Settle();
  lumui::testing::ClickMouse(*main, {300, 300});
  EXPECT_EQ(lumui::ui::UI_NodeManager::Get(true)->GetInputCapture(), nullptr);
}

TEST_F(ViewDebugger, CopiesWhatItListsAndNotItsOutline) {
  const auto before = mTab->GetText();
  mTab->ChooseNode(mLamp.get());
  EXPECT_EQ(Tree().GetText(Tree().GetSelectedRow(), NodeListing::kClass), U16("Lamp"));
  dynamic_cast<lumui::controls::UI_TextButton&>(*mTab->UI_GetNodeForID(U8("Copy"))).Press();
  EXPECT_EQ(lumui::datatransfer::GetClipboardText(), before);
  EXPECT_NE(lumcore::utility::ToStdString(before).find("viewdebugger_test::Lamp\tlamp\t"),
            std::string::npos);
}

}  // namespace
