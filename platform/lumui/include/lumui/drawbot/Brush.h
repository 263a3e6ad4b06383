// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Point.h"
#include "lumui/drawbot/Color.h"

namespace lumui::drawbot {

// What an area is filled with: one colour, or a linear gradient from one point to another in the
// drawbot's units. Before the start the gradient has its first colour, behind the end its last. A
// colour is a brush by itself: FillRect(rect, color) is all that most callers need.
class Brush {
 public:
  Brush() = default;
  Brush(const ColorRGBA& inColor) : mStartColor(inColor), mEndColor(inColor) {}
  Brush(const lumcore::geom::PointT<float>& inStart, const ColorRGBA& inStartColor,
        const lumcore::geom::PointT<float>& inEnd, const ColorRGBA& inEndColor)
      : mIsGradient(true),
        mStart(inStart),
        mEnd(inEnd),
        mStartColor(inStartColor),
        mEndColor(inEndColor) {}

  bool IsGradient() const { return mIsGradient; }
  const lumcore::geom::PointT<float>& GetStart() const { return mStart; }
  const lumcore::geom::PointT<float>& GetEnd() const { return mEnd; }
  const ColorRGBA& GetStartColor() const { return mStartColor; }
  const ColorRGBA& GetEndColor() const { return mEndColor; }

 private:
  bool mIsGradient = false;
  lumcore::geom::PointT<float> mStart;
  lumcore::geom::PointT<float> mEnd;
  ColorRGBA mStartColor;
  ColorRGBA mEndColor;
};

}  // namespace lumui::drawbot
