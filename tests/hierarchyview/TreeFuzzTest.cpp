// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <functional>
#include <random>
#include <sstream>
#include <vector>

#include "support/RandomSteps.h"
#include "support/RecordingDrawbot.h"
#include "support/Seeds.h"
#include "support/TreeRig.h"

namespace {

using namespace test_support;

// A tree as one would write it down: no positions, no cache, everything anew for each question.
struct Plain {
  std::string name;
  Plain* parent = nullptr;
  bool isOpen = false, isSelected = false, isSorted = false;
  std::vector<std::shared_ptr<Plain>> children;
  EntryP entry;
};
using PlainP = std::shared_ptr<Plain>;

class TreeFuzz : public TreeRig {
 protected:
  struct Row {
    Plain* node;
    int level;
  };

  int Random(int inBelow) { return static_cast<int>(mRandom() % static_cast<unsigned>(inBelow)); }

  static void Gather(Plain& inNode, int inLevel, bool inAll, std::vector<Row>& outRows) {
    if (inLevel > 0) outRows.push_back({&inNode, inLevel});
    if (!inAll && !inNode.isOpen) return;
    for (const PlainP& child : inNode.children)
      Gather(*child, inLevel + 1, inAll, outRows);
  }
  std::vector<Row> List(bool inAll) {
    std::vector<Row> rows;
    Gather(mRoot, 0, inAll, rows);
    return rows;
  }
  Plain& Any(bool inWithRoot) {
    const std::vector<Row> all = List(true);
    const int index = Random(static_cast<int>(all.size()) + (inWithRoot ? 1 : 0));
    return index < static_cast<int>(all.size()) ? *all[static_cast<std::size_t>(index)].node
                                                : mRoot;
  }
  static bool IsWithin(const Plain* inNode, const Plain* inTop) {
    while (inNode && inNode != inTop)
      inNode = inNode->parent;
    return inNode != nullptr;
  }

  void Put(Plain& ioParent, const PlainP& inNode) {
    inNode->parent = &ioParent;
    ioParent.children.insert(
        ioParent.isSorted ? ioParent.children.begin() : ioParent.children.end(), inNode);
    mTree->AddEntry(ioParent.entry.get(), inNode->entry);
  }
  PlainP Take(Plain& ioNode) {
    std::vector<Row> below;
    Gather(ioNode, 1, true, below);
    for (const Row& row : below) {
      row.node->isSelected = false;
      if (row.node == mFocus) mFocus = nullptr;
    }
    auto& siblings = ioNode.parent->children;
    const auto place = std::find_if(siblings.begin(), siblings.end(),
                                    [&](const PlainP& inP) { return inP.get() == &ioNode; });
    const PlainP taken = *place;
    siblings.erase(place);
    mTree->RemoveNode(ioNode.entry.get());
    return taken;
  }
  static void Sort(Plain& ioNode, bool inAscending) {
    ioNode.isSorted = true;
    std::stable_sort(ioNode.children.begin(), ioNode.children.end(),
                     [&](const PlainP& inA, const PlainP& inB) {
                       return inAscending ? inA->name > inB->name : inB->name > inA->name;
                     });
    for (const PlainP& child : ioNode.children)
      Sort(*child, inAscending);
  }

  void Add() {
    const PlainP node(new Plain);
    mAll.push_back(node);
    node->name = "n" + std::to_string(mCount * 37 % 101) + "_" + std::to_string(mCount);
    ++mCount;
    auto* const entry = new BasicTreeNode(lumcore::utility::ToUTF16(node->name));
    node->entry = entry;
    Put(Any(true), node);
    mUndo.push_back([this, node] {
      if (node->parent && IsWithin(node.get(), &mRoot)) Take(*node)->parent = nullptr;
    });
  }
  void Remove() {
    Plain& node = Any(false);
    Plain* const parent = node.parent;
    const PlainP taken = Take(node);
    taken->parent = nullptr;
    mUndo.push_back([this, taken, parent] {
      if (!taken->parent && IsWithin(parent, &mRoot)) Put(*parent, taken);
    });
  }
  void Move() {
    Plain& node = Any(false);
    Plain& target = Any(true);
    if (!IsWithin(&target, &node)) Put(target, Take(node));
  }
  void Turn() {
    Plain& node = Any(false);
    node.isOpen = !node.isOpen;
    if (node.isOpen) {
      mTree->ExpandNode(node.entry.get(), false);
    } else {
      mTree->CollapseNode(node.entry.get(), false);
    }
  }
  void SortSome() {
    Plain& node = Any(true);
    const bool isAscending = Random(2) == 0;
    Sort(node, isAscending);
    node.entry->SortChildren(1, isAscending, mTree->GetDefaultCompareFxn());
  }
  void SelectSome() {
    Plain& node = Any(false);
    const bool extends = Random(2) == 0;
    const bool was = node.isSelected;
    if (!extends) {
      for (const Row& row : List(true))
        row.node->isSelected = false;
    }
    node.isSelected = !extends || !was;
    if (node.isSelected) {
      mFocus = &node;
    } else if (mFocus == &node) {
      mFocus = nullptr;
    }
    mTree->SelectEntry(node.entry.get(), extends);
  }
  // A step of the keyboard, on rows that are counted.
  void MoveOn(bool inDown) {
    const std::vector<Row> all = List(true), rows = List(false);
    const auto count = std::count_if(all.begin(), all.end(),
                                     [](const Row& inRow) { return inRow.node->isSelected; });
    int from = -1;
    std::vector<Plain*> toggle;
    for (std::size_t i = 0; i < rows.size() && !(from >= 0 && count == 1); ++i) {
      if (!rows[i].node->isSelected) continue;
      toggle.push_back(rows[i].node);
      if (count == 1 || rows[i].node == mFocus) from = static_cast<int>(i);
    }
    const int last = static_cast<int>(rows.size()) - 1;
    const int to = inDown ? (from < 0 ? -1 : std::min(from + 1, last))
                          : (from < 0 ? last : std::max(from - 1, 0));
    inDown ? mTree->SelectNext() : mTree->SelectPrevious();
    if (to < 0) return;
    Plain* const target = rows[static_cast<std::size_t>(to)].node;
    toggle.push_back(target);
    for (Plain* const node : toggle)
      node->isSelected = !node->isSelected;
    if (mFocus && !mFocus->isSelected) mFocus = nullptr;
    if (from >= 0 && (!inDown || to != from)) mFocus = target;
  }
  void Undo() {
    if (mUndo.empty()) return;
    const std::function<void()> undo = mUndo.back();
    mUndo.pop_back();
    undo();
  }

  // "x,y name*!" a row, by the control's walk and by the model.
  std::string Shown() {
    std::ostringstream text;
    HierarchyGeometry& geometry = *mTree->GetGeometry();
    for (auto row = geometry.begin(); row != geometry.end(); ++row) {
      const auto area = geometry.EntryArea(row);
      if (area.height == 0) continue;
      text << area.x << ',' << area.y << ' ' << NameOf(*row)
           << ((*row)->Selected(mTree->GetSelectionManager()) ? "*" : "")
           << (*row == mTree->GetFocusItem() ? "!" : "") << '\n';
    }
    text << mTree->NumSelectedEntries();
    return text.str();
  }
  std::string Expected() {
    std::ostringstream text;
    float y = 0;
    for (const Row& row : List(false)) {
      text << (row.level - 1) * 10 << ',' << y << ' ' << row.node->name
           << (row.node->isSelected ? "*" : "") << (row.node == mFocus ? "!" : "") << '\n';
      y += 19;
    }
    int count = 0;
    for (const Row& row : List(true))
      count += row.node->isSelected ? 1 : 0;
    text << count;
    return text.str();
  }
  // The texts that a paint of some damage draws, and those that it has to.
  std::string Painted(const tv::Rect& inDamage) {
    RecordingDrawbot drawbot;
    mTrack.ImageRect(inDamage, drawbot, nullptr);
    std::istringstream lines(drawbot.Take());
    std::string texts;
    for (std::string line; std::getline(lines, line);)
      texts += line.compare(0, 5, "text ") == 0 ? line + '\n' : "";
    return texts;
  }
  std::string ToPaint(const tv::Rect& inDamage) {
    std::ostringstream text;
    float y = 0;
    for (const Row& row : List(false)) {
      // The row that begins where the damage ends is the one that ends the paint.
      if (y + 19 > inDamage.y && y <= inDamage.Bottom())
        text << "text " << row.node->name << ' ' << (row.level - 1) * 10 + 22 << ',' << y + 11
             << '\n';
      y += 19;
    }
    return text.str();
  }

  enum Act { kAdd, kRemove, kMove, kTurn, kSort, kSelect, kDown, kUp, kUndo, kActs };
  void Do(int inAct) {
    switch (mRoot.children.empty() ? kAdd : inAct) {
      case kAdd:
        return Add();
      case kRemove:
        return Remove();
      case kMove:
        return Move();
      case kTurn:
        return Turn();
      case kSort:
        return SortSome();
      case kSelect:
        return SelectSome();
      case kDown:
      case kUp:
        return MoveOn(inAct == kDown);
      default:
        return Undo();
    }
  }
  // Nothing, or what differed first.
  std::string Run(const RandomSteps& inSteps) {
    Build("");
    mRoot = Plain();
    mRoot.isOpen = true;
    mRoot.entry = mTree->GetRootEntry();
    mFocus = nullptr;
    mCount = 0;
    mUndo.clear();
    mAll.clear();
    for (const RandomStep& step : inSteps) {
      mRandom.seed(step.number);
      Do(step.act);
      if (Random(4) != 0) mTree->ResizeHierarchy();
      const tv::Rect damage(0, static_cast<float>(Random(400)), 200,
                            static_cast<float>(1 + Random(90)));
      const std::string shown = Shown(), expected = Expected();
      if (shown != expected) return "rows\n" + shown + "\nin place of\n" + expected;
      const std::string painted = Painted(damage), toPaint = ToPaint(damage);
      if (painted != toPaint)
        return AsText(damage) + " painted\n" + painted + "in place of\n" + toPaint;
    }
    return "";
  }
  std::mt19937 mRandom;
  Plain mRoot;
  Plain* mFocus = nullptr;
  std::vector<PlainP> mAll;  // also those that are out, which others may name as their parent
  int mCount = 0;
  std::vector<std::function<void()>> mUndo;
};

TEST_F(TreeFuzz, ShowsAndPaintsWhatAPlainModelSays) {
  const std::vector<const char*> kNames = {"add",    "remove", "move", "turn", "sort",
                                           "select", "down",   "up",   "undo"};
  const auto run = [this](const RandomSteps& inSteps) { return Run(inSteps); };
  for (const unsigned seed : test_support::Seeds(120)) {
    mWalks = seed % 2 == 0;
    const RandomSteps steps = NewSteps(seed, 12, 150, kActs);
    ASSERT_EQ(Run(steps), "") << "seed " << seed << ", in short:\n"
                              << Shortened(steps, run, kNames);
  }
}

}  // namespace
