// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <unordered_map>

#include "lumcore/geom/Rect.h"
#include "lumui/drawbot/Color.h"
#include "lumui/drawbot/Image.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace outliner {

// The round parts of a map as pictures, since a picture is laid down in a tenth of the time that a
// curve takes: lines that bend, and both ends of boxes. A picture is made when it is first drawn
// and serves every place that looks the same, as all places are whole pixels of the screen.
//
// Lengths are pixels; the drawbot is in units of the view, of which it knows the pixels.
class MapStamps {
 public:
  using Drawbot = lumui::drawbot::Drawbot;
  using ColorRGBA = lumui::drawbot::ColorRGBA;
  using Rect = lumcore::geom::RectT<float>;

  // A box with round corners, on whole pixels.
  void DrawBox(Drawbot& inDrawbot, const Rect& inBox, float inRadius, const ColorRGBA& inColor);
  // The quarter of a ring in a rectangle on whole pixels, from the upright end at its left or right
  // edge to the level end at its top or bottom edge; each line keeps inside of its edge.
  struct Bend {
    Rect place;
    float width;  // of the line
    bool isUprightAtLeft;
    bool isLevelAtTop;
  };
  void DrawBend(Drawbot& inDrawbot, const Bend& inBend, const ColorRGBA& inColor);
  // A line that is level at both ends, from the left edge of a rectangle on whole pixels to the
  // right one, and keeps inside of the other two.
  void DrawCurve(Drawbot& inDrawbot, const Rect& inPlace, float inWidth, bool inGoesDown,
                 const ColorRGBA& inColor);

 private:
  enum class Kind : unsigned char { kLeftEnd, kRightEnd, kBend, kCurve };
  // What makes a picture another one.
  struct Key {
    Kind kind;
    bool isUprightAtLeft;
    bool isLevelAtTop;  // of a curve: whether it goes down
    float width;
    float height;
    float detail;  // the radius of a corner, the width of a line
    ColorRGBA color;

    bool operator==(const Key& inOther) const;
  };
  struct Hash {
    std::size_t operator()(const Key& inKey) const;
  };
  using Image = boost::intrusive_ptr<lumui::drawbot::ImageInterface>;

  void Stamp(Drawbot& inDrawbot, const Key& inKey, float inX, float inY);
  static void DrawShape(Drawbot& inDrawbot, const Key& inKey);

  std::unordered_map<Key, Image, Hash> mImages;
  double mPixels = 0;  // of all images
};

}  // namespace outliner
