// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <vector>

#include "OutlineRow.h"
#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"

namespace outliner {

class OutlineTree;

// Where the rows of an outline lie in its map: a tree that grows to the right, its root at the
// left. Every branch has a band of its own, from top to bottom and as far as it reaches, which no
// other branch enters; a box stands in the middle between its first and its last child. The bands
// are what the map is searched by, so that a point, or the part of the map that needs drawing, is
// found without looking at the rest.
//
// All lengths are units of the map at scale 1. It knows rows by their numbers and keeps no pointer
// to them, and it is as it was built until it is built again.
class MapLayout {
 public:
  using Point = lumcore::geom::PointT<float>;
  using Rect = lumcore::geom::RectT<float>;
  using Index = std::uint32_t;
  using Measure = std::function<float(const OutlineRow& inRow, std::size_t inDepth)>;

  static constexpr Index kNone = static_cast<Index>(-1);
  static constexpr Index kRoot = 0;

  static constexpr float kBoxHeight = 26;
  static constexpr float kRootHeight = 42;
  static constexpr float kRowPitch = 34;  // a box and the gap to the next one
  static constexpr float kBranchGap = 8;  // around a branch of more than one box
  static constexpr float kColumnGap = 44;
  static constexpr float kMargin = 40;

  // One box, and the branch that begins with it. The children of a box are neighbours in the list,
  // from the top downward, behind all boxes of lesser depth.
  struct Node {
    OutlineRow::Id row = 0;
    Index parent = kNone;
    Index firstChild = 0;
    Index childCount = 0;
    float left = 0;
    float width = 0;
    float middle = 0;  // of the box's height
    float top = 0;     // of the branch, as what follows
    float bottom = 0;
    float right = 0;
    std::uint32_t depth = 0;
  };

  // Takes time linear in the rows. The widths of rows whose text and depth are those of the last
  // time are not asked for again; ForgetWidths has all of them asked for.
  void Build(const OutlineTree& inTree, const Measure& inMeasure);
  void ForgetWidths() { mTexts.clear(); }

  // The root stands for the outline itself, and is there before anything was built.
  const std::vector<Node>& GetNodes() const { return mNodes; }
  const Node& GetNode(Index inIndex) const { return mNodes[inIndex]; }
  Rect GetBox(Index inIndex) const;
  Point GetSize() const { return mSize; }
  // kNone for a row that is not in the map. Number 0 is the root.
  Index FindRow(OutlineRow::Id inRow) const;

  // The box that has the point in it, or kNone.
  Index FindBox(const Point& inPoint) const;
  // Whatever touches the rectangle, in no particular order.
  std::vector<Index> FindBoxes(const Rect& inRect) const;
  // The first child whose branch ends below inY; behind the last one if there is none.
  Index FirstChildBelow(const Node& inParent, float inY) const;
  // The same among the children from inFrom on, which costs less where it is near.
  Index NextChildBelow(const Node& inParent, Index inFrom, float inY) const;
  static Index EndOfChildren(const Node& inParent) {
    return inParent.firstChild + inParent.childCount;
  }

  std::size_t GetBytes() const;

 private:
  void ListNodes(const OutlineTree& inTree, const Measure& inMeasure);
  void MeasureBranches();
  void PlaceBranches();

  std::vector<Node> mNodes{Node()};
  std::vector<std::uint64_t> mTexts;  // of each node: what its width was measured of
  std::vector<Index> mIndexOfRow{kRoot};
  Point mSize;
};

}  // namespace outliner
