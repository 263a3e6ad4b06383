// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <string>
#include <vector>

#include "lumcore/utility/StringUtils.h"
#include "outliner/MapLayout.h"
#include "outliner/OutlineTree.h"

namespace {

using outliner::MapLayout;
using outliner::OutlineRow;
using outliner::OutlineTree;
using Index = MapLayout::Index;
using Point = MapLayout::Point;
using Rect = MapLayout::Rect;

float WidthOf(const OutlineRow& inRow, std::size_t inDepth) {
  return inDepth == 0 ? 150 : 50 + 7 * static_cast<float>(inRow.GetText().size());
}

// Deep chains and wide branches both: a parent is one of the last few rows, or any.
void Grow(OutlineTree& ioTree, int inRows, std::mt19937& ioRandom) {
  std::vector<OutlineRow*> rows{&ioTree.GetRoot()};
  for (int row = 0; row < inRows; ++row) {
    const std::size_t reach =
        ioRandom() % 3 == 0 ? rows.size() : std::min<std::size_t>(3, rows.size());
    OutlineRow& added = ioTree.AppendRow(*rows[rows.size() - 1 - ioRandom() % reach]);
    ioTree.SetText(added, lumcore::utility::ToUTF16(std::string(ioRandom() % 12, 'x')));
    rows.push_back(&added);
  }
}

// The rules once more, in the plainest words: each row by itself, from the tree alone.
struct Plain {
  static double Height(const OutlineRow& inRow) {
    double children = 0;
    for (std::size_t child = 0; child < inRow.GetChildCount(); ++child)
      children += Height(*inRow.GetChild(child));
    const double own = inRow.GetParent() ? 34 : 50;
    return inRow.GetChildCount() == 0 ? own : std::max(own, children + 8);
  }
  static double Left(const OutlineRow& inRow) {
    const OutlineRow* const parent = inRow.GetParent();
    return parent ? Left(*parent) + WidthOf(*parent, parent->GetDepth()) + 44 : 40;
  }
  static double Top(const OutlineRow& inRow) {
    const OutlineRow* const parent = inRow.GetParent();
    if (!parent) return 40;
    double before = 0;
    double all = 0;
    for (std::size_t child = 0; child < parent->GetChildCount(); ++child) {
      if (child < inRow.GetIndex()) before += Height(*parent->GetChild(child));
      all += Height(*parent->GetChild(child));
    }
    return Top(*parent) + (Height(*parent) - all) / 2 + before;
  }
  static double Middle(const OutlineRow& inRow) {
    const std::size_t count = inRow.GetChildCount();
    if (count == 0) return Top(inRow) + Height(inRow) / 2;
    return (Middle(*inRow.GetChild(0)) + Middle(*inRow.GetChild(count - 1))) / 2;
  }
};

TEST(MapLayout, IsThePlainOneWithEachBoxBesideTheOthers) {
  for (unsigned seed = 0; seed < 8; ++seed) {
    SCOPED_TRACE(seed);
    std::mt19937 random(seed);
    OutlineTree tree;
    Grow(tree, 1 + 40 * static_cast<int>(seed), random);
    MapLayout layout;
    layout.Build(tree, WidthOf);
    ASSERT_EQ(layout.GetNodes().size(), tree.GetLines().size() + 1);
    std::vector<Rect> boxes;
    for (Index index = 0; index < layout.GetNodes().size(); ++index) {
      const MapLayout::Node& node = layout.GetNode(index);
      const OutlineRow& row = *tree.FindRow(node.row);
      EXPECT_EQ(layout.FindRow(node.row), index);
      EXPECT_NEAR(node.left, Plain::Left(row), 0.1) << node.row;
      EXPECT_NEAR(node.middle, Plain::Middle(row), 0.1) << node.row;
      const Rect box = layout.GetBox(index);
      if (index != MapLayout::kRoot) {
        EXPECT_GE(box.y, node.top);
        EXPECT_LE(box.Bottom(), node.bottom);
      }
      EXPECT_LE(box.Right(), node.right);
      EXPECT_LE(node.right, layout.GetSize().x);
      for (const Rect& other : boxes)
        EXPECT_FALSE(other.Intersects(box)) << node.row;
      boxes.push_back(box);
    }
  }
}

TEST(MapLayout, FindsWhatALookAtEveryBoxFinds) {
  std::mt19937 random(5);
  OutlineTree tree;
  Grow(tree, 600, random);
  MapLayout layout;
  layout.Build(tree, WidthOf);
  const auto count = static_cast<Index>(layout.GetNodes().size());
  const auto any = [&](float inEnd) {
    return std::uniform_real_distribution<float>(-20, inEnd + 20)(random);
  };
  const Point size = layout.GetSize();
  int hits = 0;
  for (int turn = 0; turn < 4000; ++turn) {
    // Every other one lies in a box or on its edges.
    const Rect box = layout.GetBox(random() % count);
    const Point point = turn % 2 == 0 ? Point(any(size.x), any(size.y))
                                      : Point(box.x + box.width * float(random() % 5) / 4,
                                              box.y + box.height * float(random() % 5) / 4);
    Index expected = MapLayout::kNone;
    for (Index index = 0; index < count; ++index)
      if (layout.GetBox(index).Contains(point)) expected = index;
    hits += expected != MapLayout::kNone;
    ASSERT_EQ(layout.FindBox(point), expected) << point.x << " " << point.y;
  }
  EXPECT_GT(hits, 500);
  for (int turn = 0; turn < 500; ++turn) {
    const Rect rect(any(size.x), any(size.y), any(400), any(turn % 2 == 0 ? 300 : 5000));
    std::vector<Index> expected;
    for (Index index = 0; index < count; ++index)
      if (layout.GetBox(index).Intersects(rect)) expected.push_back(index);
    std::vector<Index> found = layout.FindBoxes(rect);
    std::sort(found.begin(), found.end());
    ASSERT_EQ(found, expected);
  }
}

TEST(MapLayout, StepsOverChildrenThatEndAbove) {
  OutlineTree tree;
  for (int row = 0; row < 100; ++row)
    tree.AppendRow(tree.GetRoot());
  MapLayout layout;
  layout.Build(tree, WidthOf);
  const MapLayout::Node& root = layout.GetNode(MapLayout::kRoot);
  for (Index from = 1; from <= 100; from += 3) {
    for (Index to = from; to <= 101; ++to) {
      const float y = to == 1 ? 0 : layout.GetNode(to - 1).bottom;
      EXPECT_EQ(layout.NextChildBelow(root, from, y), to);
      EXPECT_EQ(layout.FirstChildBelow(root, y), to);
    }
  }
}

TEST(MapLayout, MeasuresOnlyWhatHasChanged) {
  std::mt19937 random(9);
  OutlineTree tree;
  Grow(tree, 5000, random);
  MapLayout layout;
  std::vector<OutlineRow::Id> measured;
  const auto measure = [&](const OutlineRow& inRow, std::size_t inDepth) {
    measured.push_back(inRow.GetId());
    return WidthOf(inRow, inDepth);
  };
  layout.Build(tree, measure);
  EXPECT_EQ(measured.size(), 5001U);
  measured.clear();
  // A row of the third level and deeper ones look alike, so a move from there to there is none.
  tree.SetText(*tree.GetRoot().GetChild(0), lumcore::utility::ToUTF16("a text that is longer"));
  OutlineRow& deep = *tree.FindRow(4000);
  ASSERT_GT(deep.GetDepth(), 3U);
  tree.InsertRows(*tree.FindRow(3000), 0, tree.RemoveRows(*deep.GetParent(), deep.GetIndex(), 1));
  layout.Build(tree, measure);
  EXPECT_EQ(measured, (std::vector<OutlineRow::Id>{0, tree.GetRoot().GetChild(0)->GetId()}));
  MapLayout anew;
  anew.Build(tree, WidthOf);
  for (Index index = 0; index < layout.GetNodes().size(); ++index)
    ASSERT_EQ(layout.GetBox(index), anew.GetBox(index));
}

TEST(MapLayout, IsAsDeepAsTheOutline) {
  OutlineTree tree;
  OutlineRow* row = &tree.GetRoot();
  for (int depth = 0; depth < 50000; ++depth)
    row = &tree.AppendRow(*row);
  MapLayout layout;
  layout.Build(tree, WidthOf);
  const Index last = layout.FindRow(row->GetId());
  const Rect box = layout.GetBox(last);
  EXPECT_EQ(layout.FindBox(Point(box.x + 1, box.y + 1)), last);
  EXPECT_EQ(layout.GetNode(last).depth, 50000U);
}

}  // namespace
