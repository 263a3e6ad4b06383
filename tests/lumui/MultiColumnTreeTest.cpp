// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_MultiColumnTree.h"

#include <QApplication>
#include <QHeaderView>
#include <QTreeView>
#include <utility>

#include "UITest.h"
#include "lumui/controls/UI_TextButton.h"

namespace lumui::test {

namespace {

using controls::UI_InteractiveControlChangedMessage;
using controls::UI_MultiColumnTree;
using RowID = UI_MultiColumnTree::RowID;
namespace input = lumui::testing;
using ui::KeyboardCode;

class MultiColumnTree : public UITest {
 protected:
  MultiColumnTree() {
    mTree->SetColumns({{U16("Name"), 90}, {U16("Key"), 60}, {U16("Note"), 40}});
    Listen(false, "");
    Listen(true, "*");
    mWindow->UI_SetSize(300, 200);
    mTree->UI_SetLocalRectF(Rect(0, 0, 300, 200));
    mWindow->UI_AddChild(mTree);
  }
  void Listen(bool inUserOnly, const std::string& inMark) {
    using Function = controls::UI_InteractiveControlView::ChangedFunction;
    mFunctions.emplace_back(new Function([this, inMark](auto*) {
      const RowID row = mTree->GetSelectedRow();
      Log((row ? lumcore::utility::ToStdString(mTree->GetText(row, 0)) : "none") + inMark);
      if (const auto change = std::exchange(mOnChange, nullptr)) change();
    }));
    if (inUserOnly) {
      mTree->NotifyWhenChangedInteractively(mFunctions.back());
    } else {
      mTree->NotifyWhenChanged(mFunctions.back());
    }
  }
  RowID Add(RowID inParent, const char* inName) {
    return mTree->AddRow(inParent, {U16(inName), U16("key")});
  }
  void Fill() {
    for (const char* name : {"a", "b", "c"}) {
      mTops.push_back(Add(UI_MultiColumnTree::kNoRow, name));
      for (const char* number : {"1", "2", "3"})
        mRows.push_back(Add(mTops.back(), (std::string(name) + number).c_str()));
    }
  }
  QTreeView& View() {
    QTreeView* view = nullptr;
    for (const QWidget* window : QApplication::topLevelWidgets())
      view = view ? view : window->findChild<QTreeView*>();
    return *view;
  }
  // The rows in view from top to bottom.
  std::string Seen() {
    std::string text;
    const QModelIndex none;
    for (QModelIndex at = View().indexAt(QPoint(0, 0)); at != none; at = View().indexBelow(at)) {
      if (!View().viewport()->rect().intersects(View().visualRect(at))) break;
      text += (text.empty() ? "" : " ") + at.data().toString().toStdString();
    }
    return text;
  }
  Point At(const QString& inRow, int inColumn = 0) {
    const QModelIndex root;
    const auto found = View().model()->match(View().model()->index(0, 0, root), Qt::DisplayRole,
                                             inRow, 1, Qt::MatchExactly | Qt::MatchRecursive);
    const QRect rect = View().visualRect(found.at(0).siblingAtColumn(inColumn));
    const QPoint at =
        View().viewport()->mapTo(View().window(), QPoint(rect.left() + 30, rect.center().y()));
    return Point(static_cast<float>(at.x()), static_cast<float>(at.y()));
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<UI_MultiColumnTree> mTree = new UI_MultiColumnTree;
  std::vector<boost::shared_ptr<controls::UI_InteractiveControlView::ChangedFunction>> mFunctions;
  std::vector<RowID> mTops;
  std::vector<RowID> mRows;
  std::function<void()> mOnChange;
};

}  // namespace

TEST_F(MultiColumnTree, FollowsPointerAndKeys) {
  Fill();
  EXPECT_EQ(Seen(), "a b c");
  input::ClickMouse(*mWindow, At("b"));
  EXPECT_EQ(TakeLog(), "b b*");
  const auto tap = [&](unsigned short inCode) {
    input::TapKey(*mWindow, KeyboardCode::CreateFromControlCode(inCode, false));
  };
  tap(KeyboardCode::kRightArrow);
  EXPECT_EQ(Seen(), "a b b1 b2 b3 c");
  EXPECT_TRUE(mTree->IsRowOpen(mTops[1]));
  tap(KeyboardCode::kDownArrow);
  tap(KeyboardCode::kEnd);
  EXPECT_EQ(TakeLog(), "b1 b1* c c*");
  mTree->SetActivatedFunction([this](RowID inRow) { Log("go" + std::to_string(inRow)); });
  tap(KeyboardCode::kReturn);
  input::DoubleClickMouse(*mWindow, At("b2", 1));
  EXPECT_EQ(TakeLog(), "go" + std::to_string(mTops[2]) + " b2 b2* go" + std::to_string(mRows[4]));
  input::ClickMouse(*mWindow, Point(20, 190));
  EXPECT_EQ(TakeLog(), "none none*");
  UI_MultiColumnTree::Options options;
  options.mayBeWithoutSelection = false;
  mTree->SetOptions(options);
  mTree->SetSelectedRow(mRows[3]);
  input::ClickMouse(*mWindow, Point(20, 190));
  input::ClickMouse(*mWindow, At("b1"), ui::PointerEvent::kLeftButton,
                    ui::ModifierKeys(ui::kModCommand));
  EXPECT_EQ(TakeLog(), "");
  EXPECT_EQ(mTree->GetSelectedRow(), mRows[3]);
  EXPECT_TRUE(View().selectionModel()->hasSelection());
}

TEST_F(MultiColumnTree, HiddenAndRemovedRowsLeaveTheRestAsItWas) {
  Fill();
  mTree->SetRowOpen(mTops[0], true);
  mTree->SetRowOpen(mTops[2], true);
  EXPECT_EQ(Seen(), "a a1 a2 a3 b c c1 c2 c3");
  mTree->SetSelectedRow(mRows[7], true);
  EXPECT_EQ(TakeLog(), "c2");
  for (const bool together : {false, true}) {
    {
      std::unique_ptr<UI_MultiColumnTree::StUpdate> update;
      if (together) update = std::make_unique<UI_MultiColumnTree::StUpdate>(*mTree);
      mTree->SetRowHidden(mRows[1], true);
      mTree->SetRowHidden(mTops[1], true);
      // Below a hidden one, rows come and go unseen.
      mTree->SetRowHidden(mRows[4], true);
      mTree->RemoveRow(Add(mTops[1], "b4"));
      mTree->SetRowHidden(mRows[8], true);
    }
    EXPECT_EQ(Seen(), "a a1 a3 c c1 c2");
    EXPECT_EQ(View().currentIndex().data().toString().toStdString(), "c2");
    {
      std::unique_ptr<UI_MultiColumnTree::StUpdate> update;
      if (together) update = std::make_unique<UI_MultiColumnTree::StUpdate>(*mTree);
      for (const RowID row : {mRows[1], mTops[1], mRows[4], mRows[8]})
        mTree->SetRowHidden(row, false);
    }
    EXPECT_EQ(Seen(), "a a1 a2 a3 b c c1 c2 c3");
    EXPECT_EQ(TakeLog(), "");
  }
  // The selection does not go to a neighbour of a row that went.
  mTree->RemoveRow(mTops[2]);
  EXPECT_EQ(TakeLog(), "none");
  EXPECT_FALSE(mTree->HasRow(mRows[7]));
  EXPECT_FALSE(View().selectionModel()->hasSelection());
  mTree->SetSelectedRow(mRows[0]);
  mTree->RemoveAllRows();
  EXPECT_EQ(TakeLog(), "none");
  EXPECT_EQ(Seen(), "");
  EXPECT_GT(Add(UI_MultiColumnTree::kNoRow, "new"), mRows[8]);
}

TEST_F(MultiColumnTree, CellsHoldNodesThatFollowTheirRows) {
  Fill();
  for (const RowID top : mTops)
    mTree->SetRowOpen(top, true);
  const boost::intrusive_ptr<controls::UI_TextButton> button(new controls::UI_TextButton);
  mTree->SetCellNode(mRows[5], 1, button, 40);
  const auto top = [&] {
    lumcore::geom::PointT<int> at;
    button->UI_LocalToGlobal(at);
    return button->UI_IsVisible() ? at.y : -1;
  };
  // 7 rows above it, and the row is as high as the node needs.
  const int line = View().visualRect(View().indexAt(QPoint(0, 0))).height();
  EXPECT_EQ(top(), View().header()->height() + View().frameWidth() + 7 * line + 1);
  EXPECT_EQ(button->UI_GetLocalRectF().height, 40);
  EXPECT_EQ(button->UI_GetLocalRectF().width, 58);
  mTree->SetColumnWidth(1, 80);
  EXPECT_EQ(button->UI_GetLocalRectF().width, 78);
  const int before = top();
  mTree->SetRowOpen(mTops[0], false);
  EXPECT_EQ(top(), before - 3 * line);
  mTree->SetRowOpen(mTops[1], false);
  EXPECT_EQ(top(), -1);
  mTree->ScrollIntoView(mRows[5]);
  EXPECT_EQ(top(), before - 3 * line);
  mTree->SetRowHidden(mTops[0], true);
  EXPECT_EQ(top(), before - 4 * line);
  mTree->RemoveRow(mRows[5]);
  EXPECT_EQ(button->UI_GetParentNode(), nullptr);
}

TEST_F(MultiColumnTree, ListenersMayTakeTheTreeApart) {
  Fill();
  mOnChange = [&] { mTree->RemoveRow(mTops[1]); };
  input::ClickMouse(*mWindow, At("b"));
  EXPECT_EQ(TakeLog(), "b none none*");
  mOnChange = [&] { mTree->RemoveAllRows(); };
  input::ClickMouse(*mWindow, At("c"));
  EXPECT_EQ(TakeLog(), "c none none*");
  Fill();
  mOnChange = [&] { mWindow->UI_DestroyWindow(); };
  input::ClickMouse(*mWindow, At("a"));
  EXPECT_EQ(TakeLog(), "a a*");
  EXPECT_EQ(mWindow->UI_GetHandle(), nullptr);
}

TEST_F(MultiColumnTree, ColumnsFitTheirTextsOrAsTheFunctionSays) {
  Fill();
  mTree->SetText(mTops[0], 1, U16("a much longer text than the column has"));
  const auto doubleClickEdge = [&] {
    QHeaderView& header = *View().header();
    const int x = header.sectionPosition(1) + header.sectionSize(1) - 1;
    const QPoint at = header.viewport()->mapTo(View().window(), QPoint(x, 5));
    input::DoubleClickMouse(*mWindow,
                            Point(static_cast<float>(at.x()), static_cast<float>(at.y())));
    return mTree->GetColumnWidth(1);
  };
  EXPECT_GE(doubleClickEdge(), mTree->MeasureCell(1, mTree->GetText(mTops[0], 1)) - 2);
  mTree->SetColumnWidth(1, 60);
  mTree->SetBestFitFunction([](int inColumn) { return 70.0f + static_cast<float>(inColumn); });
  EXPECT_EQ(doubleClickEdge(), 71);
}

}  // namespace lumui::test
