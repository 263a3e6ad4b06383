// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/UITest.h"
#include "lumui/testing/Menus.h"
#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/UI_NodeBuilder.h"
#include "support/EventLog.h"
#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/selection/Manager.h"
#include "vek/sharedui/UIMultiTreeList.h"
#include "vek/sharedui/UIMultiTreeListController.h"
#include "vek/sharedui/UIMultiTreeListView.h"
#include "vek/trackview/PlatformScrollView.h"

namespace {

using namespace vek;
using lumui::test::Point;
using lumui::test::Rect;
using lumui::test::U16;
using NodeP = UIMultiTreeListView::NodeP;
using test_support::EventLog;
namespace input = lumui::testing;
namespace ui = lumui::ui;

// Rows read "row <id>" in column 0 and the digits of their id backwards in column 1. Row 13 can not
// be selected.
class Host : public UIMultiTreeListController {
 public:
  void GetTextForNode(UIMultiTreeListView&, const UIMultiTreeListNode& inNode,
                      unsigned int inColumn, lumcore::UTF16String& outText) override {
    std::string text = std::to_string(inNode.GetID());
    text = inColumn == 0 ? "row " + text : std::string(text.rbegin(), text.rend());
    outText = U16(text);
  }
  bool IsSelectable(UIMultiTreeListView&, const UIMultiTreeListNode& inNode) override {
    return inNode.GetID() != 13;
  }
  bool OnDoubleClick(UIMultiTreeListView&, UIMultiTreeListNode& inNode) override {
    mLog.Add("double" + std::to_string(inNode.GetID()));
    return mTakes;
  }
  bool OnKeyEvent(UIMultiTreeListView&, const ui::KeyboardEvent&) override { return mTakes; }
  bool OnContextMenu(UIMultiTreeListView&, UIMultiTreeListNode* inNode, const Point&,
                     ui::UI_Node&) override {
    mLog.Add("menu" + (inNode ? std::to_string(inNode->GetID()) : "-"));
    return true;
  }
  void OnSelectionChanged(UIMultiTreeListView&,
                          const std::list<UIMultiTreeListNode*>& inSelected) override {
    std::string text = "[";
    for (const UIMultiTreeListNode* node : inSelected)
      text += (text.size() > 1 ? "," : "") + std::to_string(node->GetID());
    mLog.Add(text + "]");
  }
  void OnGainedKeyFocus(UIMultiTreeListView&) override { mLog.Add("focus"); }
  void OnLostKeyFocus(UIMultiTreeListView&) override { mLog.Add("blur"); }

  EventLog mLog;
  bool mTakes = false;
};

class MultiTreeLists : public lumui::test::UITest {
 protected:
  MultiTreeLists() : mWindow(MakeWindow()), mNode(new UIMultiTreeList) {
    mWindow->UI_AddChild(mNode);
    mNode->UI_SetLocalRectF(Rect(0, 0, 200, 100));
    mNode->SetColumns({U16("Name"), U16("Back"), U16("More")});
    mList = mNode->GetTreeControl();
    mList->SetController(&mHost);
    App().PumpPendingEvents();
  }
  ~MultiTreeLists() override {
    mWindow->UI_DestroyWindow();
    mList->SetController(nullptr);
  }

  NodeP Row(unsigned int inID) { return NodeP(new UIMultiTreeListNode(inID)); }
  void Fill(std::initializer_list<unsigned int> inIDs) {
    std::vector<NodeP> rows;
    for (const unsigned int id : inIDs)
      rows.push_back(Row(id));
    mList->InsertItems(rows);
    App().PumpPendingEvents();
  }
  // The ids of the rows from top to bottom, and "*" behind those that are selected.
  std::string Rows() {
    std::string text;
    auto& geometry = *mList->GetGeometry();
    for (auto row = ++geometry.begin(); row != geometry.end(); ++row) {
      text += (text.empty() ? "" : " ") +
              std::to_string(static_cast<UIMultiTreeListNode*>(*row)->GetID());
      if ((*row)->Selected(mList->GetSelectionManager())) text += "*";
    }
    return text;
  }
  std::string Titles() {
    std::string text;
    for (unsigned short column = 0; column < mList->GetNumberOfColumns(); ++column) {
      lumcore::UTF16String title;
      mList->GetColumnDescriptor(column, title);
      text += lumui::test::Text(lumcore::utility::ToUTF8(title)) + " ";
    }
    return text;
  }
  void Click(float inX, float inY, unsigned char inModifiers = 0) {
    input::ClickMouse(*mWindow, Point(inX, inY), ui::PointerEvent::kLeftButton,
                      ui::ModifierKeys(inModifiers));
  }

  Host mHost;
  boost::intrusive_ptr<ui::OS_Window> mWindow;
  boost::intrusive_ptr<UIMultiTreeList> mNode;
  UIMultiTreeListView* mList = nullptr;
};

// Rows are 19 high below a header of 20, and their texts begin at 22.
TEST_F(MultiTreeLists, SelectByClicksAndTellTheController) {
  Fill({1, 13, 21});
  Click(30, 30);
  EXPECT_EQ(mHost.mLog.Take(), "focus [1]");
  Click(30, 49);  // can not be selected
  EXPECT_EQ(mHost.mLog.Take(), "");
  Click(30, 68, ui::kModCommand);
  EXPECT_EQ(mHost.mLog.Take(), "[1,21]");
  Click(30, 68, ui::kModCommand);
  EXPECT_EQ(mHost.mLog.Take(), "[1]");
  Click(170, 68);  // beside all texts: the press begins a rubber band
  EXPECT_EQ(mHost.mLog.Take(), "[]");
  mList->SetFullRowSelect(true);
  Click(170, 68);
  EXPECT_EQ(mHost.mLog.Take(), "[21]");
  input::DoubleClickMouse(*mWindow, Point(30, 30));
  EXPECT_EQ(mHost.mLog.Take(), "[1] double1");
  EXPECT_EQ(Rows(), "1* 13 21");
  input::ClickMouse(*mWindow, Point(30, 68), ui::PointerEvent::kRightButton);
  EXPECT_EQ(mHost.mLog.Take(), "[21] menu21");
}

TEST_F(MultiTreeLists, TakeRowsOutOfTheSelectionBeforeTheyGo) {
  Fill({1, 2, 3});
  const NodeP group = Row(4), below = Row(5);
  mList->InsertItem(group);
  mList->InsertItem(below, group.get());
  mList->ExpandAll();
  mList->GetSelectionManager()->SelectAll();
  EXPECT_EQ(Rows(), "1* 2* 3* 4* 5*");
  mHost.mLog.Take();
  mList->RemoveItem(group.get());
  EXPECT_EQ(mHost.mLog.Take(), "[1,2,3]");
  EXPECT_EQ(Rows(), "1* 2* 3*");
  EXPECT_EQ(below->GetView(), nullptr);
  EXPECT_TRUE(below->Selectable());
  mList->RemoveItem(group.get());  // in no list any more
  mList->InsertItem(group);
  mList->RemoveItems();
  EXPECT_EQ(mHost.mLog.Take(), "[]");
  EXPECT_EQ(Rows(), "");

  mList->InsertItem(group);
  const boost::intrusive_ptr<selection::Manager> manager(mList->GetSelectionManager());
  mWindow->UI_RemoveChild(mNode.get());
  mList->SetController(nullptr);
  mNode.reset(new UIMultiTreeList);
  mList = mNode->GetTreeControl();
  EXPECT_EQ(group->GetView(), nullptr);
  EXPECT_FALSE(manager->AnySelectableNodes());
}

TEST_F(MultiTreeLists, LayOutOnceWhileSuspendedAndKeepTheOrder) {
  mList->SetSortColumn(1);
  mList->SuspendLayout(true);
  mList->InsertItem(Row(19));
  mList->InsertItems({Row(52), Row(31)});
  EXPECT_EQ(mList->GetTrackView()->DataSize().y, 12);  // room for drops alone
  mList->SuspendLayout(false);
  EXPECT_EQ(mList->GetTrackView()->DataSize(), Point(300, 3 * 19 + 12));
  EXPECT_EQ(Rows(), "19 52 31");  // 91, 25 and 13
  mList->SortIsAscending(false);
  EXPECT_EQ(Rows(), "31 52 19");
  mList->SetSortColumn(0);
  mList->InsertItem(Row(24));
  EXPECT_EQ(Rows(), "19 24 31 52");
}

// A list that is wider than its view, and by its scroll bar narrower than the header.
TEST_F(MultiTreeLists, ScrollTheirHeaderSideways) {
  Fill({1, 2, 3, 4, 5, 6, 7, 8, 9});
  auto& list = mNode->GetListScrollView()->GetPlatformView();
  const auto& header = mNode->GetHeaderView()->GetTrackView()->GetPlatformView();
  list.DataPos(Point(1000, 40), true);
  EXPECT_GT(list.DataPos().x, 100);
  EXPECT_EQ(header.DataPos(), Point(list.DataPos().x, 0));
  // A click in the header is in the column that stands there.
  Click(5, 10);
  EXPECT_EQ(mList->GetSortColumn(), 1);
}

TEST_F(MultiTreeLists, HideAndShowColumnsByTheHeadersMenu) {
  const auto choose = [&](float inX, const input::MenuPath& inPath) {
    lumcore::UTF16String shown;
    Manager().GetExecutor()->Post([&] {
      shown = input::MenuAsText(nullptr);
      if (!inPath.empty()) input::ChooseMenuItem(*mWindow, inPath);
      input::CloseMenus(*mWindow);
    });
    input::ClickMouse(*mWindow, Point(inX, 10), ui::PointerEvent::kRightButton);
    return lumui::test::Text(lumcore::utility::ToUTF8(shown));
  };
  EXPECT_EQ(choose(30, {}), "~Hide This | Columns >");
  EXPECT_EQ(choose(130, {U16("Hide This")}), "Hide This | Columns >");
  EXPECT_EQ(Titles(), "Name More ");
  choose(30, {U16("Columns"), U16("More")});
  choose(30, {U16("Columns"), U16("Back")});
  EXPECT_EQ(Titles(), "Name Back ");
  EXPECT_EQ(mList->GetColumnWidth(1), 100);
  EXPECT_EQ(mList->GetMinColumnWidth(1), 15);
  mNode->GetHeaderView()->SetDefaultNewColumnSizes({{3, {30, 55}}});
  choose(30, {U16("Columns"), U16("More")});
  EXPECT_EQ(mList->GetColumnWidth(2), 55);
  EXPECT_EQ(mList->GetMinColumnWidth(2), 30);
  EXPECT_EQ(mList->GetSortColumn(), 0) << "presses of the right button sort nothing";
  EXPECT_TRUE(mList->GetSortIsAscending());
}

TEST_F(MultiTreeLists, SelectRangesByTheKeyboard) {
  Fill({1, 2, 3, 4, 5});
  Click(30, 68);
  const auto key = [&](unsigned inCode, unsigned char inModifiers) {
    input::TapKey(*mWindow, ui::KeyboardCode(inCode), ui::ModifierKeys(inModifiers));
    return Rows();
  };
  using Code = ui::KeyboardCode;
  EXPECT_EQ(key(Code::kDownArrow, ui::kModShift), "1 2 3* 4* 5");
  EXPECT_EQ(key(Code::kHome, ui::kModShift), "1* 2* 3* 4 5");
  Click(60, 10);  // sorts, and leaves the keyboard to the rows
  EXPECT_FALSE(mList->GetSortIsAscending());
  EXPECT_EQ(key(Code::kEnd, 0), "1 2 3 4 5*");
  mList->SetIsSingleSelect(true);
  EXPECT_EQ(key(Code::kUpArrow, ui::kModShift), "1 2 3 4* 5");
  EXPECT_EQ(key(Code::kPageUp, ui::kModShift), "1 2* 3 4 5") << "of three that show";
}

TEST_F(MultiTreeLists, ComeOutOfArchivesAndGoIntoThem) {
  ui::UI_NodeAdapterRegistry::Get().Register(NewUIMultiTreeListAdapter());
  mNode->SetHeaderHeight(17);
  mList->SetFullRowSelect(true);
  mList->SetHasIcons(true);
  const lumcore::UTF8String archive = ui::UI_NodeBuilder::Write(*mNode);
  ui::UI_NodeBuilder::NodeMap nodes;
  const auto built = ui::UI_NodeBuilder(archive).Build(nullptr, nodes);
  const auto* const copy = dynamic_cast<UIMultiTreeList*>(built.get());
  ASSERT_NE(copy, nullptr);
  EXPECT_EQ(copy->GetColumns(), mNode->GetColumns());
  EXPECT_EQ(copy->GetTreeControl()->GetColumnAttr(2), 3U);
  EXPECT_EQ(copy->GetHeaderHeight(), 17);
  EXPECT_TRUE(copy->GetShowHeader() && copy->GetTreeControl()->GetFullRowSelect() &&
              copy->GetTreeControl()->HasIcons());
  EXPECT_EQ(copy->UI_GetChildCount(), 2U);
  ui::UI_NodeAdapterRegistry::Reset();
}

}  // namespace
