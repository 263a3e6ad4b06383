// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <set>

#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/Image.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "support/RandomSteps.h"
#include "support/Seeds.h"
#include "support/RecordingPlatformView.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/selection/Manager.h"
#include "vek/sharedui/UIMultiTreeListController.h"
#include "vek/sharedui/UIMultiTreeListView.h"

namespace {

using namespace test_support;
using namespace vek;
using NodeP = UIMultiTreeListView::NodeP;

// Column 0 has few texts, so that orders have ties. Every ninth row can not be selected.
std::string TextOf(unsigned int inID, unsigned int inColumn) {
  return inColumn == 0 ? std::string(1, static_cast<char>('a' + inID * 7 % 5))
                       : std::to_string(inID * 31 % 97);
}
bool IsSelectable(unsigned int inID) {
  return inID % 9 != 4;
}

class Host : public UIMultiTreeListController {
 public:
  void GetTextForNode(UIMultiTreeListView&, const UIMultiTreeListNode& inNode,
                      unsigned int inColumn, lumcore::UTF16String& outText) override {
    outText = lumcore::utility::ToUTF16(TextOf(inNode.GetID(), inColumn));
  }
  bool IsSelectable(UIMultiTreeListView&, const UIMultiTreeListNode& inNode) override {
    return ::IsSelectable(inNode.GetID());
  }
  void OnSelectionChanged(UIMultiTreeListView&,
                          const std::list<UIMultiTreeListNode*>& inSelected) override {
    mTold.clear();
    for (const UIMultiTreeListNode* node : inSelected)
      mTold += std::to_string(node->GetID()) + " ";
  }
  std::string mTold;
};

// A row as one would write it down. The root has no node.
struct Plain {
  unsigned int id = 0;
  Plain* parent = nullptr;
  bool isOpen = false, isSelected = false, isOrdered = false;
  std::vector<std::shared_ptr<Plain>> children;
  NodeP node;
};
using PlainP = std::shared_ptr<Plain>;

class MultiTreeListFuzz : public testing::Test {
 protected:
  enum Act {
    kInsert,
    kInsertMany,
    kRemove,
    kRemoveMany,
    kTurn,
    kSort,
    kSelect,
    kSelectMany,
    kDown,
    kUp,
    kActs
  };

  unsigned int Random(std::size_t inBelow) {
    return static_cast<unsigned int>(mRandom() % inBelow);
  }

  static void Gather(const PlainP& inTop, bool inAll, std::vector<PlainP>& outRows) {
    for (const PlainP& child : inTop->children) {
      outRows.push_back(child);
      if (inAll || child->isOpen) Gather(child, inAll, outRows);
    }
  }
  std::vector<PlainP> List(bool inAll) const {
    std::vector<PlainP> rows;
    Gather(mRoot, inAll, rows);
    return rows;
  }
  PlainP Any() {
    const std::vector<PlainP> all = List(true);
    return all.empty() ? nullptr : all[Random(all.size())];
  }

  // By what the list was last ordered by, from greater to lesser where it ascends.
  void Order(Plain& ioTop) {
    ioTop.isOrdered = true;
    std::stable_sort(ioTop.children.begin(), ioTop.children.end(),
                     [this](const PlainP& inA, const PlainP& inB) {
                       const std::string a = TextOf(inA->id, mColumn), b = TextOf(inB->id, mColumn);
                       return mAscends ? a > b : b > a;
                     });
    for (const PlainP& child : ioTop.children)
      Order(*child);
  }
  void Insert(unsigned int inCount) {
    const PlainP chosen = Random(3) == 0 ? nullptr : Any();
    Plain& parent = chosen ? *chosen : *mRoot;
    std::vector<NodeP> nodes;
    for (unsigned int i = 0; i < inCount; ++i) {
      const PlainP row(new Plain);
      row->id = mNextID++;
      row->parent = &parent;
      nodes.push_back(row->node = new UIMultiTreeListNode(row->id));
      parent.children.insert(parent.isOrdered ? parent.children.begin() : parent.children.end(),
                             row);
    }
    if (parent.isOrdered) Order(parent);
    if (inCount == 1) {
      mList->InsertItem(nodes.front(), chosen ? chosen->node.get() : nullptr);
    } else {
      mList->InsertItems(nodes, chosen ? chosen->node.get() : nullptr);
    }
  }
  void TakeOut(const PlainP& inRow) {
    std::vector<PlainP> leaving(1, inRow);
    Gather(inRow, true, leaving);
    for (const PlainP& row : leaving) {
      row->isSelected = false;
      if (row == mFocus) mFocus.reset();
    }
    auto& siblings = inRow->parent->children;
    siblings.erase(std::find(siblings.begin(), siblings.end(), inRow));
  }
  void Remove(int inCount) {
    std::vector<NodeP> nodes;
    for (; inCount > 0 && !mRoot->children.empty(); --inCount) {
      const PlainP row = Any();
      nodes.push_back(row->node);
      TakeOut(row);
    }
    if (nodes.size() == 1) return mList->RemoveItem(nodes.front().get());
    mList->RemoveItems(nodes);
  }
  void Turn() {
    const PlainP row = Any();
    row->isOpen = !row->isOpen;
    row->isOpen ? mList->ExpandNode(row->node.get(), true)
                : mList->CollapseNode(row->node.get(), true);
  }
  void Sort() {
    const auto column = static_cast<unsigned short>(Random(2));
    if (Random(2) == 0) {
      mColumn = column;
      mList->SetSortColumn(column);
    } else {
      mAscends = Random(2) == 0;
      mList->SortIsAscending(mAscends);
    }
    Order(*mRoot);
  }
  void Select() {
    const PlainP row = Any();
    const bool extends = Random(2) == 0;
    mList->SelectEntry(row->node.get(), extends);
    if (!IsSelectable(row->id)) return;
    const bool was = row->isSelected;
    if (!extends) Deselect();
    row->isSelected = !extends || !was;
    if (row->isSelected) {
      mFocus = row;
    } else if (mFocus == row) {
      mFocus.reset();
    }
  }
  // By the manager, which knows no rows; the focus is the control's and stays.
  void SelectMany() {
    std::list<selection::Node*> nodes;
    Deselect();
    for (unsigned int left = Random(4); left > 0; --left) {
      const PlainP row = Any();
      if (row->isSelected || !IsSelectable(row->id)) continue;
      row->isSelected = true;
      nodes.push_back(row->node.get());
    }
    selection::Manager& manager = *mList->GetSelectionManager();
    manager.DeselectAll();
    manager.Select(nodes, selection::eKeepOthers, selection::eSendMessages);
  }
  void Deselect() {
    for (const PlainP& row : List(true))
      row->isSelected = false;
  }
  // Rows are counted with the hidden root in front.
  void MoveOn(bool inDown) {
    const std::vector<PlainP> all = List(true), rows = List(false);
    const auto count = std::count_if(all.begin(), all.end(),
                                     [](const PlainP& inRow) { return inRow->isSelected; });
    int from = -1;
    std::vector<PlainP> toggle;
    for (std::size_t i = 0; i < rows.size() && !(from >= 0 && count == 1); ++i) {
      if (!rows[i]->isSelected) continue;
      toggle.push_back(rows[i]);
      if (count == 1 || rows[i] == mFocus) from = static_cast<int>(i);
    }
    const int last = static_cast<int>(rows.size()) - 1;
    const int to = inDown ? (from < 0 ? -1 : std::min(from + 1, last))
                          : (from < 0 ? last : std::max(from - 1, 0));
    inDown ? mList->SelectNext() : mList->SelectPrevious();
    if (to < 0) return;
    const PlainP target = rows[static_cast<std::size_t>(to)];
    toggle.push_back(target);
    for (const PlainP& row : toggle) {
      if (IsSelectable(row->id)) row->isSelected = !row->isSelected;
    }
    if (mFocus && !mFocus->isSelected) mFocus.reset();
    if (from >= 0 && (!inDown || to != from)) mFocus = target;
  }

  void Do(int inAct) {
    switch (mRoot->children.empty() ? kInsert : inAct) {
      case kInsert:
        return Insert(1);
      case kInsertMany:
        return Insert(2 + Random(4));
      case kRemove:
        return Remove(1);
      case kRemoveMany:
        return Remove(2);
      case kTurn:
        return Turn();
      case kSort:
        return Sort();
      case kSelect:
        return Select();
      case kSelectMany:
        return SelectMany();
      default:
        return MoveOn(inAct == kDown);
    }
  }
  // "12*! " a row, with its cells.
  std::string Shown() {
    std::string text;
    hierarchyview::HierarchyGeometry& geometry = *mList->GetGeometry();
    for (auto row = ++geometry.begin(); row != geometry.end(); ++row) {
      const auto& node = static_cast<const UIMultiTreeListNode&>(**row);
      lumcore::UTF16String cells[2];
      for (unsigned short column = 0; column < 2; ++column)
        node.GetCellText(mList->GetColumnAttr(column), cells[column]);
      text += std::to_string(node.GetID()) + lumcore::utility::ToStdString(cells[0] + cells[1]) +
              (node.Selected(mList->GetSelectionManager()) ? "*" : "") +
              (*row == mList->GetFocusItem() ? "! " : " ");
    }
    return text + "| " + std::to_string(mList->GetTrackView()->DataSize().y);
  }
  std::string Expected() const {
    std::string text;
    const std::vector<PlainP> rows = List(false);
    for (const PlainP& row : rows)
      text += std::to_string(row->id) + TextOf(row->id, 0) + TextOf(row->id, 1) +
              (row->isSelected ? "*" : "") + (row == mFocus ? "! " : " ");
    return text + "| " + std::to_string(19.0f * static_cast<float>(rows.size()) + 12);
  }
  std::string Selected() const {
    std::string text;
    for (const PlainP& row : List(true))
      text += row->isSelected ? std::to_string(row->id) + " " : "";
    return text;
  }
  std::set<unsigned int> SelectedIDs() const {
    std::set<unsigned int> ids;
    for (const PlainP& row : List(true)) {
      if (row->isSelected) ids.insert(row->id);
    }
    return ids;
  }
  // Nothing, or what differed first.
  std::string Run(const RandomSteps& inSteps) {
    tv::TrackView& track = mView.Show(false, 1, 1);
    mView.mSupplier = lumui::drawbot::GetDefaultSupplier();
    std::auto_ptr<tv::Overlay> overlay(mList = new UIMultiTreeListView(&track));
    track.InstallOverlay(overlay, false);
    for (unsigned int column = 0; column < 2; ++column)
      mList->InsertColumn(UIMultiTreeListNode::kFirstAttribute + column, 50, 10, nullptr, nullptr);
    Host host;
    mList->SetController(&host);
    mRoot.reset(new Plain);
    mFocus.reset();
    mColumn = 0;
    mNextID = 0;
    mAscends = true;
    std::string failure;
    for (const RandomStep& step : inSteps) {
      mRandom.seed(step.number);
      const bool suspends = Random(5) == 0;
      const std::set<unsigned int> before = SelectedIDs();
      if (suspends) mList->SuspendLayout(true);
      Do(step.act);
      if (suspends) mList->SuspendLayout(false);
      const std::string shown = Shown(), expected = Expected(), selected = Selected();
      if (shown != expected) failure = shown + "\nin place of\n" + expected;
      if (SelectedIDs() != before && host.mTold != selected)
        failure += "\ntold " + host.mTold + "in place of " + selected;
      if (!failure.empty()) break;
    }
    mList->SetController(nullptr);
    track.RemoveOverlay(mList);
    return failure;
  }

  EventLog mLog;
  RecordingPlatformView mView{mLog, tv::Point(200, 60)};
  UIMultiTreeListView* mList = nullptr;
  std::mt19937 mRandom;
  PlainP mRoot, mFocus;
  unsigned int mColumn = 0, mNextID = 0;
  bool mAscends = true;
};

TEST_F(MultiTreeListFuzz, ShowsSelectsAndTellsWhatAPlainModelSays) {
  const std::vector<const char*> kNames = {"insert", "insert many", "remove", "remove many",
                                           "turn",   "sort",        "select", "select many",
                                           "down",   "up"};
  const auto run = [this](const RandomSteps& inSteps) { return Run(inSteps); };
  for (const unsigned seed : test_support::Seeds(80)) {
    const RandomSteps steps = NewSteps(seed, 10, 150, kActs);
    ASSERT_EQ(Run(steps), "") << "seed " << seed << ", in short:\n"
                              << Shortened(steps, run, kNames);
  }
}

}  // namespace
