// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapLayout.h"

#include <algorithm>

#include "OutlineTree.h"

namespace outliner {

namespace {

// Two texts with one hash would have one width, which is 1 to 2^64 and would only shorten a text.
std::uint64_t HashOf(const lumcore::UTF16String& inText, std::uint32_t inDepth) {
  std::uint64_t hash = 1469598103934665603u ^ std::min(inDepth, 2u);
  for (const unsigned short unit : inText)
    hash = (hash ^ unit) * 1099511628211u;
  return hash;
}

float BoxHeight(const MapLayout::Node& inNode) {
  return inNode.depth == 0 ? MapLayout::kRootHeight : MapLayout::kBoxHeight;
}

}  // namespace

void MapLayout::Build(const OutlineTree& inTree, const Measure& inMeasure) {
  ListNodes(inTree, inMeasure);
  MeasureBranches();
  PlaceBranches();
  mSize = Point(mNodes[kRoot].right + kMargin, mNodes[kRoot].bottom + kMargin);
}

// Level by level, so that the children of a box are neighbours.
void MapLayout::ListNodes(const OutlineTree& inTree, const Measure& inMeasure) {
  const std::vector<Node> oldNodes = std::move(mNodes);
  const std::vector<std::uint64_t> oldTexts = std::move(mTexts);
  const std::vector<Index> oldIndexOfRow = std::move(mIndexOfRow);
  const std::size_t count = inTree.GetLines().size() + 1;
  mNodes.clear();
  mNodes.reserve(count);
  mTexts.clear();
  mTexts.reserve(count);
  mIndexOfRow.assign(oldIndexOfRow.size(), kNone);

  const auto widthOf = [&](const OutlineRow& inRow, const Node& inNode, std::uint64_t inText) {
    const Index old = inRow.GetId() < oldIndexOfRow.size() ? oldIndexOfRow[inRow.GetId()] : kNone;
    const bool isKnown = old < oldTexts.size() && oldTexts[old] == inText;
    return isKnown ? oldNodes[old].width : inMeasure(inRow, inNode.depth);
  };
  const auto add = [&](const OutlineRow& inRow, Index inParent) {
    Node node;
    node.row = inRow.GetId();
    node.parent = inParent;
    node.childCount = static_cast<Index>(inRow.GetChildCount());
    node.left = kMargin;
    if (inParent != kNone) {
      const Node& parent = mNodes[inParent];
      node.depth = parent.depth + 1;
      node.left = parent.left + parent.width + kColumnGap;
    }
    // The root's text is no row's: it is measured each time.
    const std::uint64_t text = inParent == kNone ? 0 : HashOf(inRow.GetText(), node.depth);
    node.width = inParent == kNone ? inMeasure(inRow, 0) : widthOf(inRow, node, text);
    if (node.row >= mIndexOfRow.size()) mIndexOfRow.resize(node.row + 1, kNone);
    mIndexOfRow[node.row] = static_cast<Index>(mNodes.size());
    mTexts.push_back(text);
    mNodes.push_back(node);
  };
  std::vector<const OutlineRow*> rows{&inTree.GetRoot()};
  rows.reserve(count);
  add(inTree.GetRoot(), kNone);
  for (Index index = 0; index < rows.size(); ++index) {
    const OutlineRow& row = *rows[index];
    mNodes[index].firstChild = static_cast<Index>(mNodes.size());
    for (std::size_t child = 0; child < row.GetChildCount(); ++child) {
      rows.push_back(row.GetChild(child));
      add(*row.GetChild(child), index);
    }
  }
}

// From the leaves to the root. The bottom holds the height until the top is known.
void MapLayout::MeasureBranches() {
  for (Node& node : mNodes) {
    node.right = node.left + node.width;
    node.bottom = 0;
  }
  for (Index index = static_cast<Index>(mNodes.size()); index-- > 0;) {
    Node& node = mNodes[index];
    const float own = BoxHeight(node) + kRowPitch - kBoxHeight;
    node.bottom = std::max(own, node.childCount > 0 ? node.bottom + kBranchGap : 0);
    if (node.parent == kNone) continue;
    Node& parent = mNodes[node.parent];
    parent.bottom += node.bottom;
    parent.right = std::max(parent.right, node.right);
  }
}

// From the root to the leaves, and the middles back again.
void MapLayout::PlaceBranches() {
  mNodes[kRoot].top = kMargin;
  mNodes[kRoot].bottom += kMargin;
  for (const Node& node : mNodes) {
    const Index end = EndOfChildren(node);
    double children = 0;  // a float loses units over tens of thousands of rows
    for (Index child = node.firstChild; child < end; ++child)
      children += mNodes[child].bottom;
    double top = (static_cast<double>(node.top) + node.bottom - children) / 2;
    for (Index child = node.firstChild; child < end; ++child) {
      const double bottom = top + mNodes[child].bottom;
      mNodes[child].top = static_cast<float>(top);
      mNodes[child].bottom = static_cast<float>(bottom);
      top = bottom;
    }
  }
  for (Index index = static_cast<Index>(mNodes.size()); index-- > 0;) {
    Node& node = mNodes[index];
    node.middle =
        node.childCount == 0
            ? (node.top + node.bottom) / 2
            : (mNodes[node.firstChild].middle + mNodes[EndOfChildren(node) - 1].middle) / 2;
  }
}

MapLayout::Rect MapLayout::GetBox(Index inIndex) const {
  const Node& node = mNodes[inIndex];
  const float height = BoxHeight(node);
  return Rect(node.left, node.middle - height / 2, node.width, height);
}

MapLayout::Index MapLayout::FindRow(OutlineRow::Id inRow) const {
  return inRow < mIndexOfRow.size() ? mIndexOfRow[inRow] : kNone;
}

MapLayout::Index MapLayout::FirstChildBelow(const Node& inParent, float inY) const {
  const auto first = mNodes.begin() + inParent.firstChild;
  const auto found = std::partition_point(first, first + inParent.childCount,
                                          [&](const Node& inNode) { return inNode.bottom <= inY; });
  return static_cast<Index>(found - mNodes.begin());
}

MapLayout::Index MapLayout::NextChildBelow(const Node& inParent, Index inFrom, float inY) const {
  const Index end = EndOfChildren(inParent);
  Index low = inFrom;
  Index step = 1;
  while (step < end - low && mNodes[low + step].bottom <= inY) {
    low += step;
    step *= 2;
  }
  const auto found =
      std::partition_point(mNodes.begin() + low, mNodes.begin() + low + std::min(step, end - low),
                           [&](const Node& inNode) { return inNode.bottom <= inY; });
  return static_cast<Index>(found - mNodes.begin());
}

// A point is in one band of each level at most.
MapLayout::Index MapLayout::FindBox(const Point& inPoint) const {
  Index index = kRoot;
  while (!GetBox(index).Contains(inPoint)) {
    const Node& node = mNodes[index];
    const Index child = FirstChildBelow(node, inPoint.y);
    const bool isBeside = child == EndOfChildren(node) || inPoint.y < mNodes[child].top ||
                          inPoint.x < mNodes[child].left || inPoint.x >= mNodes[child].right;
    if (isBeside) return kNone;
    index = child;
  }
  return index;
}

std::vector<MapLayout::Index> MapLayout::FindBoxes(const Rect& inRect) const {
  std::vector<Index> found;
  if (inRect.IsEmpty()) return found;
  std::vector<Index> waiting{kRoot};
  while (!waiting.empty()) {
    const Index index = waiting.back();
    waiting.pop_back();
    const Node& node = mNodes[index];
    if (GetBox(index).Intersects(inRect)) found.push_back(index);
    const Index end = EndOfChildren(node);
    for (Index child = FirstChildBelow(node, inRect.y);
         child < end && mNodes[child].top < inRect.Bottom(); ++child) {
      if (mNodes[child].left < inRect.Right() && mNodes[child].right > inRect.x) {
        waiting.push_back(child);
      }
    }
  }
  return found;
}

std::size_t MapLayout::GetBytes() const {
  return mNodes.capacity() * sizeof(Node) + mTexts.capacity() * sizeof(std::uint64_t) +
         mIndexOfRow.capacity() * sizeof(Index);
}

}  // namespace outliner
