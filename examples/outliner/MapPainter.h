// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <vector>

#include "MapLayout.h"
#include "lumcore/Strings.h"
#include "lumui/drawbot/Color.h"
#include "lumui/drawbot/Font.h"
#include "lumui/drawbot/Path.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace outliner {

// How a box differs from the others of its level.
enum class MapMark : unsigned char { kNone, kSelected, kIdleSelected, kDropTarget };

// Draws a map, and knows how wide its boxes have to be. What is too small to be told apart is drawn
// as one: a paint costs as much as there are boxes and lines of pixels in the damage, however many
// rows the outline has. It holds the fonts.
class MapPainter {
 public:
  using Point = MapLayout::Point;
  using Rect = MapLayout::Rect;
  using Node = MapLayout::Node;
  using Index = MapLayout::Index;

  // Where the texts and marks of boxes come from.
  struct Source {
    std::function<const lumcore::UTF16String&(const Node&)> text;
    std::function<MapMark(const Node&)> mark;
  };

  // Pixels. Smaller texts are left out.
  static constexpr float kLeastTextSize = 4;

  // Needs a running application object, for the fonts.
  MapPainter();

  float MeasureBox(const lumcore::UTF16String& inText, std::size_t inDepth) const;

  // Without its ground. inDamage is in units of the map, the drawbot in those of the view, where
  // the map is scaled by inScale and lies at inOrigin.
  void Draw(lumui::drawbot::Drawbot& inDrawbot, const MapLayout& inLayout, const Source& inSource,
            const Rect& inDamage, float inScale, const Point& inOrigin) const;
  // The same, but boxes and branches alone, as they are seen from far: each axis has its own scale.
  void DrawFromFar(lumui::drawbot::Drawbot& inDrawbot, const MapLayout& inLayout,
                   const Rect& inDamage, const Point& inScale) const;
  // A box that is on its way to another place, over the map; in units of the view.
  void DrawGhost(lumui::drawbot::Drawbot& inDrawbot, const lumcore::UTF16String& inText,
                 std::size_t inDepth, const Rect& inBox, float inScale) const;

 private:
  struct Frame;

  void Visit(Frame& ioFrame, Index inIndex) const;
  void VisitChildren(Frame& ioFrame, Index inIndex) const;
  void AddTrunk(Frame& ioFrame, const Node& inNode) const;
  void AddTwig(Frame& ioFrame, const Node& inParent, const Node& inChild) const;
  void VisitAll(Frame& ioFrame) const;
  void DrawSpecks(const Frame& inFrame) const;
  void DrawCurves(const Frame& inFrame) const;
  void DrawBoxes(const Frame& inFrame) const;
  void DrawTexts(const Frame& inFrame) const;
  const lumui::drawbot::FontP& FontOf(std::size_t inDepth) const;

  std::vector<lumui::drawbot::FontP> mFonts;  // by level
};

}  // namespace outliner
