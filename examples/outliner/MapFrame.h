// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>
#include <vector>

#include "MapLayout.h"
#include "MapLook.h"
#include "lumcore/Strings.h"

namespace outliner {

// How a box differs from the others of its level.
enum class MapMark : unsigned char { kNone, kSelected, kIdleSelected, kDropTarget };

// What one paint of a map has to draw, sorted by how it looks. What is too small to be told apart
// is one speck, so that a frame has no more in it than boxes and lines of pixels are damaged,
// however many rows the outline has.
struct MapFrame {
  using Point = MapLayout::Point;
  using Rect = MapLayout::Rect;
  using Node = MapLayout::Node;
  using Index = MapLayout::Index;

  // Where the texts and marks of boxes come from.
  struct Source {
    std::function<const lumcore::UTF16String&(const Node&)> text;
    std::function<MapMark(const Node&)> mark;
  };
  // Lines that bend, in units of the map: a curve is level at both ends, a bend is the quarter of a
  // circle from where it is upright to where it is level.
  struct Curve {
    std::size_t level;
    Point start, end;
  };
  using Bend = Curve;

  // Pixels. Smaller texts are left out.
  static constexpr float kLeastTextSize = 4;

  // inSource is null for boxes and branches alone. inDamage is in units of the map, which lies at
  // inOrigin of the view and is scaled by inScale there; inRatio is the pixels in a unit of the
  // view. Layout and source are borrowed.
  MapFrame(const MapLayout& inLayout, const Source* inSource, const Rect& inDamage,
           const Point& inScale, const Point& inOrigin, float inRatio);

  // From units of the map to whole pixels, and back from those to units of the view.
  float PixelX(float inX) const;
  float PixelY(float inY) const;
  Rect Pixels(const Rect& inRect) const;
  Rect FromPixels(const Rect& inPixels) const;

  const MapLayout& layout;
  const Source* const source;
  const Rect damage;  // and a pixel around it
  const Point scale;
  const Point origin;
  const float ratio;
  const bool hasBends;
  const bool hasTexts;
  const float lineWidth;  // units of the map
  std::vector<Index> boxes;
  // In units of the view, on whole pixels.
  std::array<std::vector<Rect>, maplook::kLevels> specks;
  std::array<std::vector<Rect>, maplook::kLevels> lines;
  std::vector<Curve> curves;
  std::vector<Bend> bends;

 private:
  void Visit(Index inIndex);
  void VisitChildren(Index inIndex);
  float StartOfLine(float inPixelY) const;
  Index NextLine(const Node& inParent, Index inChild, float inLeastBand) const;
  void AddTrunk(const Node& inNode);
  void AddTwig(const Node& inParent, const Node& inChild);
  void AddSpeck(std::size_t inLevel, const Rect& inRect);
  void AddLine(std::size_t inLevel, const Point& inStart, const Point& inEnd);
  void AddCurve(const Curve& inCurve);
  void AddBend(const Bend& inBend);
  bool IsDamaged(const Curve& inCurve) const;

  std::vector<Index> mWaiting{MapLayout::kRoot};
};

}  // namespace outliner
