// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Color.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace lumui::controls {

// The triangle beside a row that opens and closes: a value, made for one drawing.
class LUMUI_API DrawTrianglePicture {
 public:
  // At scale (1, 1) the triangle is 10 units long and 6 deep. It points down or to the right.
  DrawTrianglePicture(const lumcore::geom::PointT<float>& inScale, bool inPointsDown)
      : mScale(inScale), mPointsDown(inPointsDown) {}

  // In place of the theme's, for a triangle on a ground that is not a tree's.
  void SetColor(const drawbot::ColorRGBA& inColor) { mColor = inColor; }

  // In the theme's colour, at the left of the rectangle and in the middle of its height, moved by
  // the offset. Without a theme it is grey.
  void Draw(drawbot::Drawbot& inDrawbot, const lumcore::geom::RectT<float>& inRect,
            const lumcore::geom::PointT<float>& inOffset) const;

 private:
  lumcore::geom::PointT<float> mScale;
  bool mPointsDown;
  std::optional<drawbot::ColorRGBA> mColor;
};

}  // namespace lumui::controls
