// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include "support/TestTree.h"
#include "vek/hierarchyview/TreeGeometry.h"
#include "vek/hierarchyview/TreeListGeometry.h"

namespace {

using namespace test_support;
using lumcore::geom::PointT;
using vek::hierarchyview::TreeGeometry;
using vek::hierarchyview::TreeListGeometry;
using Iterator = HierarchyGeometry::iterator;

// Rows of unequal heights: 10, 11, 12 ... from the letter a on.
class UnequalGeometry : public HierarchyGeometry {
 public:
  explicit UnequalGeometry(TestControl* inControl) : HierarchyGeometry(inControl, 5) {}
  PointT<float> EntryWidthHeight(const HierarchyEntryBase* inEntry) const override {
    const auto letter = static_cast<float>(std::tolower(NameOf(inEntry)[0]) - 'a');
    return PointT<float>(50 + letter, mBase + letter);
  }
  Iterator At(HierarchyEntryBase* inEntry, float inY) {
    return Iterator(TraverseEntry(this, inEntry, false, PointT<float>(0, inY)));
  }
  float TopOf(const Iterator& inRow) { return GetTraverseCookie(inRow).y; }
  float mBase = 10;
};

std::string RowsOf(HierarchyGeometry& ioGeometry, bool inDeep = false) {
  std::string text;
  Iterator row = inDeep ? ioGeometry.beginDeep() : ioGeometry.begin();
  for (; row != (inDeep ? ioGeometry.endDeep() : ioGeometry.end()); ++row)
    text += NameOf(*row) + " " + TextOf(ioGeometry.EntryArea(row)) + "|";
  return text;
}

TEST(Rows, FollowTheTreeInTheirOrderAndAtTheirPlaces) {
  TestControl control(ReadTree("a [b [c [d]] E [f] g]"));
  UnequalGeometry geometry(&control);
  EXPECT_EQ(RowsOf(geometry),
            "a 0,0 50x10|b 5,10 51x11|c 10,21 52x12|d 15,33 53x13|E 5,46 54x14|g 5,60 56x16|");
  EXPECT_EQ(RowsOf(geometry, true),
            "a 0,0 50x10|b 5,10 51x11|c 10,21 52x12|d 15,33 53x13|E 5,46 54x14|f 10,60 55x15|"
            "g 5,75 56x16|");
  EXPECT_EQ(TextOf(geometry.Area()), "0,0 68x76");
  control.SetRootEntry(ReadTree("a"));
  EXPECT_EQ(RowsOf(geometry), "a 0,0 50x10|");
  control.SetRootEntry(nullptr);
  EXPECT_EQ(RowsOf(geometry), "");
}

TEST(Rows, OfASubtreeEndAtWhateverFollowsIt) {
  const EntryP all = ReadTree("a [b [c [d]] e [f]]");
  struct {
    char root;
    const char* rows;
    const char* end;
  } const kCases[] = {
      {'b', "b 0,0 51x11|c 5,11 52x12|d 10,23 53x13|", "e"},
      {'d', "d 0,0 53x13|", "e"},
      {'f', "f 0,0 55x15|", "a"},  // nothing follows: the climb ends at the top
      {'a', "a 0,0 50x10|b 5,10 51x11|c 10,21 52x12|d 15,33 53x13|e 5,46 54x14|f 10,60 55x15|",
       "-"},
  };
  for (const auto& [root, rows, end] : kCases) {
    TestControl control(Find(all, root));
    UnequalGeometry geometry(&control);
    EXPECT_EQ(RowsOf(geometry), rows) << root;
    EXPECT_EQ(NameOf(*geometry.end()), end) << root;
  }
}

// In a tree the text makes the width, in a list the columns less the indent; a hidden root has no
// size and its children no indent.
TEST(Rows, HaveTheSizesOfTheirKind) {
  const EntryP all = ReadTree("a [b [c]]");
  TestControl control(all);
  TreeGeometry tree(&control, 12, false, 20), hiding(&control, 12, true, 20);
  TreeListGeometry list(&control, 12, false), hidingList(&control, 12, true);
  EXPECT_EQ(RowsOf(tree), "a 0,0 7x20|b 12,20 7x20|c 24,40 7x20|");
  EXPECT_EQ(RowsOf(hiding), "a 0,0 0x0|b 0,0 7x20|c 12,20 7x20|");
  EXPECT_EQ(RowsOf(list), "a 0,0 100.5x19|b 10,19 90.5x19|c 20,38 80.5x19|");
  EXPECT_EQ(RowsOf(hidingList), "a 0,0 0x0|b 0,0 100.5x19|c 10,19 90.5x19|");
  EXPECT_EQ(TextOf(hiding.Area()), "0,0 19x40");
  // A subtree's root has a parent and shows, and lies on level 0: wider than the columns.
  control.SetRootEntry(Find(all, 'b'));
  EXPECT_EQ(RowsOf(hidingList), "b 0,0 110.5x19|c 0,19 100.5x19|");
}

// A remembered width is that of one font and one text.
TEST(Rows, AreMeasuredAnewInAnotherFont) {
  struct WideFont : FixedFont {
    float MeasureWidthOnce(const lumcore::UTF16String&) const override { return 40; }
  };
  TestControl control(ReadTree("a [b]"));
  TreeGeometry tree(&control, 10, false, 20);
  EXPECT_EQ(TextOf(tree.Area()), "0,0 17x40");
  control.SetFont(lumui::drawbot::FontP(new WideFont));
  EXPECT_EQ(TextOf(tree.Area()), "0,0 50x40");
}

TEST(Rows, AreFoundByTheirLowerEdge) {
  TestControl control(ReadTree("a [b [c] D]"));
  TreeGeometry shown(&control, 12, false, 20), hiding(&control, 12, true, 20);
  struct {
    float y;
    const char* shown;
    const char* hiding;
  } const kCases[] = {{-5, "a", "b"}, {20, "a", "b"}, {20.5, "b", "c"},
                      {60, "c", "D"}, {80, "D", "-"}, {81, "-", "-"}};
  for (const auto& [y, inShown, inHiding] : kCases) {
    EXPECT_EQ(NameOf(*shown.FindEntry(PointT<float>(-900, y))), inShown) << y;
    EXPECT_EQ(NameOf(*hiding.FindEntry(PointT<float>(900, y))), inHiding) << y;
  }
  EXPECT_EQ(TextOf(shown.EntryArea(shown.FindEntry(PointT<float>(0, 50)))), "24,40 7x20");
}

TEST(SteppingBack, GoesToThePreviousSiblingOfTheNearestThatHasOne) {
  const EntryP all = ReadTree("a [b [c d] e [f [g]] h]");
  TestControl control(all);
  UnequalGeometry geometry(&control);
  struct {
    char from;
    const char* to;
    float y;
  } const kCases[] = {{'h', "e", 1000 - 17 - 14},
                      {'g', "b", 1000 - 16 - 11},
                      {'d', "c", 1000 - 13 - 12},
                      {'c', "a", 1000 - 12},
                      {'a', "-", 1000 - 10}};
  for (const auto& [from, to, y] : kCases) {
    Iterator row = geometry.At(Find(all, from), 1000);
    const Iterator stood = row--;
    EXPECT_EQ(NameOf(*stood), std::string(1, from));
    EXPECT_EQ(NameOf(*row), to);
    EXPECT_EQ(geometry.TopOf(row), y) << from;
  }
  // Back from what follows a subtree comes the subtree's root.
  control.SetRootEntry(Find(all, 'e'));
  EXPECT_EQ(NameOf(*geometry.rbegin()), "e");
  EXPECT_EQ(NameOf(*++geometry.rbegin()), "b");
}

// A caller's slip: the list holds an entry whose parent is another. The climb goes by the parent,
// in whose list the entry is not, so that it counts as the last one there.
TEST(Rows, ClimbByTheParentWhateverListHoldsTheEntry) {
  const EntryP root = ReadTree("a [b c]");
  Find(root, 'b')->AddChild(new NamedEntry("x", root.get()), false);
  TestControl control(root);
  UnequalGeometry geometry(&control);
  EXPECT_EQ(RowsOf(geometry), "a 0,0 50x10|b 5,10 51x11|x 10,21 73x33|");
}

TEST(Positions, AreFloatsOfAnExactSumUnlessSomebodyWritesThem) {
  const EntryP root = ReadTree("a [a [a [a [a [a]]]]]");
  TestControl control(root);
  UnequalGeometry geometry(&control);
  geometry.mBase = 0.75f;
  Iterator row = geometry.At(root.get(), 1 << 24);
  std::string ys;
  for (; *row; ++row)
    ys += std::to_string(static_cast<int>(geometry.TopOf(row)) - (1 << 24)) + " ";
  EXPECT_EQ(ys, "0 0 2 2 4 4 ");
  HierarchyGeometry::TraverseEntry written(&geometry, root.get(), false, PointT<float>(0, 5));
  written.mCookie.y = 100;
  written.MoveBy(1);
  EXPECT_EQ(written.mCookie.y, 101);
}

}  // namespace
