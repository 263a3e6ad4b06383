// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapFrame.h"

#include <algorithm>
#include <cmath>

namespace outliner {

using maplook::kBend;
using maplook::kLevels;
using maplook::kRing;

namespace {

// Pixels in the height of a box, below which corners and bends cannot be seen.
constexpr float kLeastRoundBox = 6;
constexpr float kLeastBranchPixels = 1;
constexpr float kLeastLinePixels = 0.75f;

// What ends beside the damage may be drawn on pixels in it, as all ends are on whole pixels.
MapFrame::Rect GrownByAPixel(const MapFrame::Rect& inRect, float inPixelsX, float inPixelsY) {
  if (inRect.IsEmpty()) return inRect;
  return MapFrame::Rect(inRect.x - 1 / inPixelsX, inRect.y - 1 / inPixelsY,
                        inRect.width + 2 / inPixelsX, inRect.height + 2 / inPixelsY);
}

}  // namespace

MapFrame::MapFrame(const MapLayout& inLayout, const Source* inSource, const Rect& inDamage,
                   const Point& inScale, const Point& inOrigin, float inRatio)
    : layout(inLayout),
      source(inSource),
      damage(GrownByAPixel(inDamage, inScale.x * inRatio, inScale.y * inRatio)),
      scale(inScale),
      origin(inOrigin),
      ratio(inRatio),
      hasBends(inSource && inScale.y * ratio * MapLayout::kBoxHeight >= kLeastRoundBox),
      hasTexts(inSource && inScale.y * maplook::kTextSizes[kLevels - 1] >= kLeastTextSize),
      lineWidth(std::max(maplook::kLineWidth, kLeastLinePixels / (inScale.x * ratio))) {
  while (!mWaiting.empty()) {
    const Index index = mWaiting.back();
    mWaiting.pop_back();
    Visit(index);
  }
}

float MapFrame::PixelX(float inX) const {
  return std::round((inX * scale.x + origin.x) * ratio);
}

float MapFrame::PixelY(float inY) const {
  return std::round((inY * scale.y + origin.y) * ratio);
}

// At least one pixel: what is this small would blur between them.
MapFrame::Rect MapFrame::Pixels(const Rect& inRect) const {
  const float left = PixelX(inRect.x);
  const float top = PixelY(inRect.y);
  return Rect(left, top, std::max(1.0f, PixelX(inRect.Right()) - left),
              std::max(1.0f, PixelY(inRect.Bottom()) - top));
}

MapFrame::Rect MapFrame::FromPixels(const Rect& inPixels) const {
  return Rect(inPixels.x / ratio, inPixels.y / ratio, inPixels.width / ratio,
              inPixels.height / ratio);
}

void MapFrame::AddSpeck(std::size_t inLevel, const Rect& inRect) {
  specks[inLevel].push_back(FromPixels(Pixels(inRect)));
}

// An upright or level line between two points.
void MapFrame::AddLine(std::size_t inLevel, const Point& inStart, const Point& inEnd) {
  const float half = lineWidth / 2;
  const bool isUpright = inStart.x == inEnd.x;
  const auto [left, right] = std::minmax(inStart.x, inEnd.x);
  const auto [top, bottom] = std::minmax(inStart.y, inEnd.y);
  const Rect line = isUpright ? Rect(left - half, top, lineWidth, bottom - top)
                              : Rect(left, top - half, right - left, lineWidth);
  if (line.Intersects(damage)) {
    lines[inLevel].push_back(FromPixels(Pixels(line.Intersection(damage))));
  }
}

bool MapFrame::IsDamaged(const Curve& inCurve) const {
  const auto [left, right] = std::minmax(inCurve.start.x, inCurve.end.x);
  const auto [top, bottom] = std::minmax(inCurve.start.y, inCurve.end.y);
  return Rect(left - lineWidth, top - lineWidth, right - left + 2 * lineWidth,
              bottom - top + 2 * lineWidth)
      .Intersects(damage);
}

void MapFrame::AddCurve(const Curve& inCurve) {
  if (IsDamaged(inCurve)) curves.push_back(inCurve);
}

void MapFrame::AddBend(const Bend& inBend) {
  if (IsDamaged(inBend)) bends.push_back(inBend);
}

void MapFrame::Visit(Index inIndex) {
  const Node& node = layout.GetNode(inIndex);
  const Rect box = layout.GetBox(inIndex);
  const Rect reach(box.x - kRing, box.y - kRing, box.width + 2 * kRing, box.height + 2 * kRing);
  if (reach.Intersects(damage)) {
    const bool isPlain = !hasBends && (!source || source->mark(node) == MapMark::kNone);
    if (isPlain) {
      AddSpeck(maplook::LevelOf(node.depth), box);
    } else {
      boxes.push_back(inIndex);
    }
  }
  if (node.childCount > 0 && node.left + node.width < damage.Right()) {
    VisitChildren(inIndex);
  }
}

void MapFrame::VisitChildren(Index inIndex) {
  const Node& parent = layout.GetNode(inIndex);
  const float childLeft = parent.left + parent.width + MapLayout::kColumnGap;
  const bool showsLines = source && damage.x < childLeft;
  if (showsLines) AddTrunk(parent);
  // A line reaches out of its child's band by as much as it bends.
  const float reach = showsLines ? 2 * kBend : kRing;
  const float leastBand = kLeastBranchPixels / (scale.y * ratio);
  const Index end = MapLayout::EndOfChildren(parent);
  // From the start of a line of pixels, so that each paint finds the same child first in it.
  Index index = layout.FirstChildBelow(parent, StartOfLine(PixelY(damage.y - reach)));
  while (index < end && layout.GetNode(index).top < damage.Bottom() + reach) {
    const Node& child = layout.GetNode(index);
    if (child.bottom - child.top < leastBand) {
      // All that begins in this line.
      AddSpeck(maplook::LevelOf(child.depth),
               Rect(child.left, child.top, child.right - child.left, leastBand));
      index = NextLine(parent, index, leastBand);
      continue;
    }
    if (showsLines) AddTwig(parent, child);
    if (child.left - kRing < damage.Right() && child.right + kRing > damage.x) {
      mWaiting.push_back(index);
    }
    ++index;
  }
}

// In units of the map: what is below it is drawn on the line of pixels, or on a later one.
float MapFrame::StartOfLine(float inPixelY) const {
  return ((inPixelY - 0.5f) / ratio - origin.y) / scale.y;
}

// The first child that begins below the line of pixels on which the given one is drawn, or that is
// too high to be a part of a speck.
MapFrame::Index MapFrame::NextLine(const Node& inParent, Index inChild, float inLeastBand) const {
  const float y = StartOfLine(PixelY(layout.GetNode(inChild).top) + 1);
  const Index next = std::max(layout.NextChildBelow(inParent, inChild, y), inChild);
  if (next == inChild) return inChild + 1;
  if (next == MapLayout::EndOfChildren(inParent)) return next;
  const Node& node = layout.GetNode(next);
  return node.top < y && node.bottom - node.top < inLeastBand ? next + 1 : next;
}

// What all children have in common: the way out of the parent, and up and down beside it.
void MapFrame::AddTrunk(const Node& inNode) {
  const std::size_t level = maplook::LevelOf(inNode.depth);
  const float start = inNode.left + inNode.width;
  const float trunk = start + kBend;
  const float y = inNode.middle;
  const float first = layout.GetNode(inNode.firstChild).middle;
  const float last = layout.GetNode(MapLayout::EndOfChildren(inNode) - 1).middle;
  if (!hasBends) {
    AddLine(level, {start, y}, {trunk, y});
    AddLine(level, {trunk, first}, {trunk, last});
    return;
  }
  const auto add = [&](float inEnd, float inSign) {
    const float bend = y + inSign * kBend;
    const float end = inEnd - inSign * kBend;
    if ((end - bend) * inSign < 0) return;  // near enough for a line of its own
    AddBend({level, {trunk, bend}, {start, y}});
    AddLine(level, {trunk, bend}, {trunk, end});
  };
  add(first, -1);
  add(last, 1);
}

// The way into a child: from the trunk, or from the parent itself where that is near.
void MapFrame::AddTwig(const Node& inParent, const Node& inChild) {
  const std::size_t level = maplook::LevelOf(inParent.depth);
  const float start = inParent.left + inParent.width;
  const float trunk = start + kBend;
  const Point end(inChild.left, inChild.middle);
  const float distance = inChild.middle - inParent.middle;
  if (!hasBends) {
    AddLine(level, {trunk, end.y}, end);
  } else if (std::abs(distance) < 2 * kBend) {
    AddCurve({level, {start, inParent.middle}, end});
  } else {
    const float bend = end.y - std::copysign(kBend, distance);
    AddBend({level, {trunk, bend}, end});
  }
}

}  // namespace outliner
