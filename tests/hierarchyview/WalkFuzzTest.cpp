// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <random>
#include <vector>

#include "support/Seeds.h"
#include "support/TestTree.h"
#include "vek/hierarchyview/CompareCellTexts.h"
#include "vek/hierarchyview/PlainWalk.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/TreeGeometry.h"
#include "vek/hierarchyview/TreeListGeometry.h"

namespace {

using namespace test_support;
using lumcore::geom::PointT;
using vek::hierarchyview::PlainWalk;
using vek::hierarchyview::RowIndex;
using vek::hierarchyview::TreeGeometry;
using vek::hierarchyview::TreeListGeometry;
using Traverse = HierarchyGeometry::TraverseEntry;

// A host's own geometry: heights by name, and levels that are not the base's.
class HostGeometry : public HierarchyGeometry {
 public:
  explicit HostGeometry(TestControl* inControl) : HierarchyGeometry(inControl, 3) {}
  PointT<float> EntryWidthHeight(const HierarchyEntryBase* inEntry) const override {
    const std::string name = NameOf(inEntry);
    return PointT<float>(static_cast<float>(9 * name.size()), static_cast<float>(name.back() % 7));
  }
  unsigned short EntryLevel(const HierarchyEntryBase* inEntry) const override {
    return static_cast<unsigned short>(HierarchyGeometry::EntryLevel(inEntry) + 2);
  }
};

// Steps as a geometry of any class does, or as the plain walk defines it.
class Walker : public HostGeometry {
 public:
  using HostGeometry::HostGeometry;
  static void Next(Traverse& ioRow, bool inSkip, bool inPlainly) {
    HierarchyGeometry& geometry = *ioRow.mGeometry;
    if (inPlainly) return PlainWalk::NextEntry(geometry, ioRow, inSkip);
    (geometry.*&Walker::NextEntry)(&ioRow, inSkip);
  }
  static Traverse At(HierarchyGeometry& ioGeometry, const HierarchyGeometry::iterator& inRow) {
    return Traverse(&ioGeometry, *inRow, false, (ioGeometry.*&Walker::GetTraverseCookie)(inRow));
  }
  static void Previous(Traverse& ioRow, bool inPlainly) {
    HierarchyGeometry& geometry = *ioRow.mGeometry;
    if (inPlainly) return PlainWalk::PreviousEntry(geometry, ioRow);
    (geometry.*&Walker::PreviousEntry)(&ioRow);
  }
};

class SometimesOpen : public NamedEntry {
 public:
  using NamedEntry::NamedEntry;
  ENodeState GetNodeState() override {
    return mName.size() % 2 == 0 ? kNodeExpanded : NamedEntry::GetNodeState();
  }
};

// A tree that is changed at random, also in ways that only a careless host finds, unless it is to
// stay regular. Ranks rise along both kinds of links, so that neither goes in a circle.
class RandomTree {
 public:
  RandomTree(unsigned int inSeed, bool inStaysRegular)
      : mRandom(inSeed), mStaysRegular(inStaysRegular), mControl(nullptr) {
    mControl.SetRootEntry(New(0, nullptr));
  }

  TestControl& GetControl() { return mControl; }
  unsigned int Below(std::size_t inLimit) { return mRandom() % static_cast<unsigned int>(inLimit); }

  void ChangeSomething() {
    const std::size_t first = Below(mPool.size());
    NamedEntry* const parent = mPool[first].entry.get();
    const Member child = mPool[Below(mPool.size())];
    const bool isBelow = child.rank > mPool[first].rank;
    if (mStaysRegular) return ChangeRegularly(*parent, mPool[first].rank, child);
    switch (Below(16)) {
      case 0:
        if (isBelow) parent->AddChild(child.entry, true);
        break;
      case 1:
        if (isBelow) child.entry->SetParent(parent);
        break;
      case 2:
        parent->RemoveChild(child.entry.get());
        break;
      case 3:
        if (Below(8) == 0) parent->RemoveAllChildren();
        break;
      case 4:
        if (Below(4) == 0) Sort(*parent);
        break;
      case 5:
        if (Below(12) == 0 && isBelow && !parent->GetChildren().empty()) {
          *parent->child_begin() = child.entry;
          if (Below(2) == 0) parent->RemoveChild(child.entry.get());
          if (child.entry->GetParent()) child.entry->GetParent()->AddChild(child.entry, false);
        }
        break;
      case 6:
        Copy(first);
        break;
      case 7:
        if (mPool.size() > 12) Drop(first);
        break;
      case 8:
        mControl.SetRootEntry(Below(3) == 0 ? parent : mPool[0].entry.get());
        break;
      case 9:
        parent->SetNodeState(Below(3) == 0 ? kNodeCollapsed : kNodeExpanded);
        break;
      default:
        if (mPool.size() < 40) parent->AddChild(New(mPool[first].rank + 1, parent), Below(2) == 0);
    }
  }

 private:
  struct Member {
    boost::intrusive_ptr<NamedEntry> entry;
    double rank;
  };

  void ChangeRegularly(NamedEntry& ioParent, double inRank, const Member& inChild) {
    NamedEntry& child = *inChild.entry;
    auto* const owner = static_cast<NamedEntry*>(child.GetParent());
    switch (Below(12)) {
      case 0:
        if (inChild.rank <= inRank || !owner) break;
        owner->RemoveChild(&child);
        if (Below(2) == 0) child.SetParent(&ioParent);
        ioParent.AddChild(&child, Below(2) == 0);
        child.SetParent(&ioParent);
        break;
      case 1:  // with all that is below it; it comes back as somebody's child
        if (owner && Below(3) == 0) owner->RemoveChild(&child);
        break;
      case 2:
        if (Below(3) == 0) Sort(ioParent);
        break;
      case 3:
        mControl.SetRootEntry(Below(9) == 0 && !ioParent.GetParent() ? &ioParent
                                                                     : mPool[0].entry.get());
        break;
      case 4:
        // The last one, which is found by its list.
        if (!ioParent.GetChildren().empty() && Below(2) == 0)
          ioParent.RemoveChild(ioParent.GetChildren().back().get());
        break;
      case 5:
      case 6:
        ioParent.SetNodeState(Below(3) == 0 ? kNodeCollapsed : kNodeExpanded);
        break;
      case 7:
        if (Below(30) == 0) ioParent.RemoveAllChildren();
        break;
      default:
        if (mPool.size() < 150) ioParent.AddChild(New(inRank + 1, &ioParent), Below(2) == 0);
    }
  }

  NamedEntry* New(double inRank, NamedEntry* inParent) {
    const std::string name = std::string(1 + Below(3), 'a') + std::to_string(mNext++);
    NamedEntry* const entry = !mStaysRegular && Below(9) == 0 ? new SometimesOpen(name, inParent)
                                                              : new NamedEntry(name, inParent);
    mPool.push_back({entry, inRank});
    return entry;
  }

  void Sort(NamedEntry& ioEntry) {
    using vek::hierarchyview::CompareFunction;
    boost::shared_ptr<CompareFunction> compare(
        new CompareFunction(vek::hierarchyview::CompareCellTexts()));
    if (Below(2) == 0) {
      *compare = [](unsigned int, const HierarchyEntryBase* inA, const HierarchyEntryBase* inB) {
        return NameOf(inA) < NameOf(inB);
      };
    }
    ioEntry.SortChildren(Below(2), Below(2) == 0, compare);
  }

  // A second list of the same children, of which some then belong to it.
  void Copy(std::size_t inFirst) {
    const Member source = mPool[inFirst];
    const double rank = source.rank + 0.25;
    for (const EntryP& child : source.entry->GetChildren()) {
      if (RankOf(child.get()) <= rank) return;
    }
    mPool.push_back({new NamedEntry("c" + std::to_string(mNext++), source.entry.get(),
                                    source.entry->GetChildren()),
                     rank});
    NamedEntry* const copy = mPool.back().entry.get();
    source.entry->AddChild(copy, false);
    if (Below(2) == 0) source.entry->RemoveAllChildren();
    for (const EntryP& child : copy->GetChildren()) {
      if (Below(2) == 0) child->SetParent(copy);
    }
    if (Below(4) == 0 && !copy->GetChildren().empty())
      copy->AddChild(copy->GetChildren().front(), false);
  }

  double RankOf(const HierarchyEntryBase* inEntry) const {
    for (const Member& member : mPool) {
      if (member.entry == inEntry) return member.rank;
    }
    return 0;
  }

  // The children live on, and get a parent again when theirs is dead already.
  void Drop(std::size_t inIndex) {
    const Member gone = mPool[inIndex];
    if (inIndex == 0 || gone.entry == mControl.GetRootEntry()) return;
    mPool.erase(mPool.begin() + static_cast<std::ptrdiff_t>(inIndex));
    std::vector<NamedEntry*> orphans;
    for (const Member& member : mPool) {
      for (std::size_t left = member.entry->GetChildren().size(); left > 0; --left)
        member.entry->RemoveChild(gone.entry.get());
      if (member.entry->GetParent() == gone.entry) orphans.push_back(member.entry.get());
    }
    const_cast<Member&>(gone).entry.reset();
    for (NamedEntry* const orphan : orphans)
      orphan->SetParent(Below(3) == 0 ? nullptr : mPool[0].entry.get());
  }

  std::mt19937 mRandom;
  const bool mStaysRegular;
  TestControl mControl;
  std::vector<Member> mPool;
  int mNext = 0;
};

std::string PlaceOf(const Traverse& inRow) {
  return NameOf(inRow.mEntry) + " " + std::to_string(inRow.mCookie.x) + "," +
         std::to_string(inRow.mCookie.y);
}

// All rows, and from each of them a step back and a step over its children. A child that stands
// twice in its parent's list makes the walk endless, and so it stays.
std::string WalkText(HierarchyGeometry& ioGeometry, bool inDeep, bool inPlainly) {
  Traverse row = PlainWalk::Begin(ioGeometry, inDeep);
  Traverse end = row;
  Walker::Next(end, true, inPlainly);
  std::string text = "end " + PlaceOf(end) + "\n";
  int rows = 0;
  for (; row.mEntry != end.mEntry && ++rows < 150; Walker::Next(row, false, inPlainly)) {
    Traverse back = row, over = row;
    Walker::Previous(back, inPlainly);
    Walker::Next(over, true, inPlainly);
    text += PlaceOf(row) + " < " + PlaceOf(back) + " > " + PlaceOf(over) + "\n";
  }
  if (inDeep || rows >= 150) return text;
  text += TextOf(inPlainly ? PlainWalk::Area(ioGeometry) : ioGeometry.Area()) + "\n";
  for (const float y : {-1.0f, 30.0f, 90.5f, 1e6f}) {
    const PointT<float> point(0, y);
    text +=
        NameOf(inPlainly ? *PlainWalk::FindEntry(ioGeometry, point) : *ioGeometry.FindEntry(point));
  }
  return text;
}

// What the index says of each row that the plain walk finds, where it says anything.
bool ExpectIndexed(HierarchyGeometry& ioGeometry) {
  const std::optional<RowIndex> index = RowIndex::Of(ioGeometry);
  if (!index) return false;
  std::string walked, indexed;
  RowIndex::Row number = 0;
  Traverse row = PlainWalk::Begin(ioGeometry, false);
  for (; row.mEntry && number < index->GetCount(); PlainWalk::NextEntry(ioGeometry, row, false)) {
    const Traverse found = Walker::At(ioGeometry, index->GetIterator(number));
    walked += PlaceOf(row) + " " + std::to_string(number) + "\n";
    indexed += PlaceOf(found) + " " + std::to_string(*index->Find(row.mEntry)) + "\n";
    ++number;
    for (const EntryP& child : row.mEntry->GetChildren()) {
      EXPECT_TRUE(row.mEntry->GetNodeState() == kNodeExpanded || !index->Find(child.get()));
    }
  }
  EXPECT_EQ(walked, indexed);
  EXPECT_EQ(row.mEntry, nullptr);
  EXPECT_EQ(number, index->GetCount());
  const EntryP stranger(new NamedEntry("s", *ioGeometry.begin()));
  EXPECT_FALSE(index->Find(stranger.get()));
  return true;
}

TEST(RowIndex, KnowsEveryRowOfARegularTree) {
  int asked = 0, answered = 0;
  for (const unsigned seed : test_support::Seeds(60)) {
    RandomTree tree(seed, true);
    TreeGeometry shown(&tree.GetControl(), 8, false, 19), hiding(&tree.GetControl(), 8, true, 7);
    TreeListGeometry list(&tree.GetControl(), 8, seed % 2 == 0);
    for (int change = 0; change < 600; ++change) {
      tree.ChangeSomething();
      if (tree.Below(3) != 0) continue;
      HierarchyGeometry* const kGeometries[] = {&shown, &hiding, &list};
      HierarchyGeometry& geometry = *kGeometries[tree.Below(3)];
      ++asked;
      answered += ExpectIndexed(geometry) ? 1 : 0;
      ASSERT_EQ(TextOf(geometry.Area()), TextOf(PlainWalk::Area(geometry)));
      ASSERT_FALSE(HasFailure()) << "seed " << seed << ", change " << change;
    }
  }
  EXPECT_EQ(answered, asked);
}

// Levels begin anew there: rows stand as the walk finds them all the same, and are found as fast.
TEST(RowIndex, KnowsRowsThatAreDeeperThanLevelsCanTell) {
  constexpr int kDepth = 65560, kFrom = 65530;
  const EntryP root(new NamedEntry("r", nullptr));
  HierarchyEntryBase* deepest = root.get();
  const auto add = [&] {
    const EntryP child(new NamedEntry("e", deepest));
    deepest->AddChild(child, false);
    deepest->SetNodeState(kNodeExpanded);
    return child.get();
  };
  for (int depth = 1; depth < kDepth; ++depth) {
    HierarchyEntryBase* const child = add();
    if (depth > kFrom) add();
    deepest = child;
  }
  TestControl control(root);
  TreeGeometry shown(&control, 8, false, 19), hiding(&control, 8, true, 7);
  TreeListGeometry list(&control, 8, false);
  HierarchyGeometry* const kGeometries[] = {&shown, &hiding, &list};
  for (HierarchyGeometry* const geometry : kGeometries) {
    const std::optional<RowIndex> index = RowIndex::Of(*geometry);
    ASSERT_TRUE(index);
    ASSERT_EQ(index->GetCount(), kDepth + (kDepth - 1 - kFrom));
    Traverse row = Walker::At(*geometry, index->GetIterator(kFrom));
    for (RowIndex::Row number = kFrom + 1; number < index->GetCount(); ++number) {
      PlainWalk::NextEntry(*geometry, row, false);
      const Traverse found = Walker::At(*geometry, index->GetIterator(number));
      ASSERT_EQ(row.mEntry, found.mEntry) << number;
      ASSERT_EQ(PlaceOf(row), PlaceOf(found)) << number;
    }
  }
}

TEST(Walks, AnswerAsThePlainOneInAnyTree) {
  for (const unsigned seed : test_support::Seeds(60)) {
    RandomTree tree(seed, false);
    for (int change = 0; change < 120; ++change) {
      tree.ChangeSomething();
      if (change % 3 != 0) continue;
      // New ones, which have not given up the index for a while.
      HostGeometry host(&tree.GetControl());
      TreeGeometry shown(&tree.GetControl(), 8, false, 19), hiding(&tree.GetControl(), 8, true, 7);
      TreeListGeometry list(&tree.GetControl(), 8, seed % 2 == 0);
      HierarchyGeometry* const kGeometries[] = {&host, &shown, &hiding, &list};
      HierarchyGeometry& geometry = *kGeometries[tree.Below(4)];
      const bool deep = tree.Below(4) == 0;
      ASSERT_EQ(WalkText(geometry, deep, false), WalkText(geometry, deep, true))
          << "seed " << seed << ", change " << change;
      ExpectIndexed(geometry);
      ASSERT_FALSE(HasFailure()) << "seed " << seed << ", change " << change;
    }
  }
}

}  // namespace
