// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include "MapFrame.h"
#include "MapLayout.h"
#include "MapStamps.h"
#include "lumcore/Strings.h"
#include "lumui/drawbot/Font.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace outliner {

// Draws a map, and knows how wide its boxes have to be. What is too small to be told apart is drawn
// as one: a paint costs as much as there are boxes and lines of pixels in the damage, however many
// rows the outline has. It holds the fonts and the
// pictures of what is round.
class MapPainter {
 public:
  using Point = MapLayout::Point;
  using Rect = MapLayout::Rect;
  using Node = MapLayout::Node;
  using Index = MapLayout::Index;
  using Drawbot = lumui::drawbot::Drawbot;

  using Source = MapFrame::Source;

  // Needs a running application object, for the fonts.
  MapPainter();

  float MeasureBox(const lumcore::UTF16String& inText, std::size_t inDepth) const;

  // Without its ground. inDamage is in units of the map, the drawbot in those of the view, where
  // the map is scaled by inScale and lies at inOrigin.
  void Draw(Drawbot& inDrawbot, const MapLayout& inLayout, const Source& inSource,
            const Rect& inDamage, float inScale, const Point& inOrigin) const;
  // The same, but boxes and branches alone, as they are seen from far: each axis has its own scale.
  void DrawFromFar(Drawbot& inDrawbot, const MapLayout& inLayout, const Rect& inDamage,
                   const Point& inScale) const;
  // A box that is on its way to another place, over the map; in units of the view.
  void DrawGhost(Drawbot& inDrawbot, const lumcore::UTF16String& inText, std::size_t inDepth,
                 const Rect& inBox, float inScale) const;

 private:
  void DrawSpecks(Drawbot& inDrawbot, const MapFrame& inFrame) const;
  void DrawBends(Drawbot& inDrawbot, const MapFrame& inFrame) const;
  void DrawBoxes(Drawbot& inDrawbot, const MapFrame& inFrame) const;
  void DrawMark(Drawbot& inDrawbot, const Rect& inPixels, float inRadius, MapMark inMark,
                const MapFrame& inFrame) const;
  void DrawTexts(Drawbot& inDrawbot, const MapFrame& inFrame) const;
  const lumui::drawbot::FontP& FontOf(std::size_t inDepth) const;

  std::vector<lumui::drawbot::FontP> mFonts;  // by level
  mutable MapStamps mStamps;
};

}  // namespace outliner
