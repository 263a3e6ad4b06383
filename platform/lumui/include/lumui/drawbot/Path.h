// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumui/Export.h"

namespace lumui::drawbot {

// An outline of lines and cubic curves in the drawbot's units: a value that callers build, copy and
// keep. It may have several figures; filling counts crossings by the non-zero rule, and an open
// figure is filled as if it were closed. Shapes run clockwise on the screen, where y grows
// downward.
class LUMUI_API Path {
 public:
  using Point = lumcore::geom::PointT<float>;
  using Rect = lumcore::geom::RectT<float>;

  enum class Verb : unsigned char { kMove, kLine, kBezier, kClose };
  // kMove and kLine use the first point, kBezier all three: two controls and the end.
  struct Element {
    Verb verb;
    Point points[3];
  };

  void MoveTo(const Point& inPoint);
  // LineTo, BezierTo and Close need a figure that was begun; otherwise they fail the contract.
  // Close leaves the current point at the start of the figure.
  void LineTo(const Point& inPoint);
  void BezierTo(const Point& inControl1, const Point& inControl2, const Point& inEnd);
  void Close();

  // Closed figures. An empty rectangle adds nothing.
  void AddRect(const Rect& inRect);
  // The radius is cut down to half of the shorter side; 0 or less gives the plain rectangle.
  void AddRoundedRect(const Rect& inRect, float inRadius);
  void AddEllipse(const Rect& inBounds);
  // Part of the ellipse in inBounds. Angles are in degrees, 0 to the right, positive clockwise; the
  // sweep is cut off at one full turn. A line joins it to a figure that is open, otherwise it
  // begins one; it is left open.
  void AddArc(const Rect& inBounds, float inStartAngle, float inSweepAngle);

  bool IsEmpty() const { return mElements.empty(); }
  // Around all points and the curves themselves, without any pen's width.
  Rect GetBounds() const;
  const std::vector<Element>& GetElements() const { return mElements; }

 private:
  bool HasOpenFigure() const;
  void ContinueFigure();

  Point mFigureStart;
  Point mCurrent;
  std::vector<Element> mElements;
};

}  // namespace lumui::drawbot
