// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/drawbot/Path.h"

#include <algorithm>
#include <cmath>

#include "lumcore/debug/Contract.h"

namespace lumui::drawbot {

namespace {

constexpr double kPi = 3.14159265358979323846;
// One cubic curve follows an arc of up to a quarter turn to within 0.03 % of the radius.
constexpr double kLargestArcOfOneCurve = 90.0;

using Point = Path::Point;

double BezierAt(double inA, double inB, double inC, double inD, double inT) {
  const double u = 1.0 - inT;
  return u * u * u * inA + 3 * u * u * inT * inB + 3 * u * inT * inT * inC + inT * inT * inT * inD;
}

// Widens the range by the places where one coordinate of the curve turns back.
void AddTurns(double inA, double inB, double inC, double inD, double& ioLeast, double& ioMost) {
  // The derivative is 3 (qa t^2 + qb t + qc).
  const double qa = -inA + 3 * inB - 3 * inC + inD;
  const double qb = 2 * (inA - 2 * inB + inC);
  const double qc = inB - inA;
  double turns[2];
  int count = 0;
  const double discriminant = qb * qb - 4 * qa * qc;
  if (discriminant >= 0) {
    // This form keeps its precision where qa is next to nothing and the textbook's does not.
    const double q = -0.5 * (qb + std::copysign(std::sqrt(discriminant), qb));
    if (qa != 0) turns[count++] = q / qa;
    if (q != 0) turns[count++] = qc / q;
  }
  for (int i = 0; i < count; ++i) {
    if (!(turns[i] > 0 && turns[i] < 1)) continue;
    const double value = BezierAt(inA, inB, inC, inD, turns[i]);
    ioLeast = std::min(ioLeast, value);
    ioMost = std::max(ioMost, value);
  }
}

}  // namespace

void Path::MoveTo(const Point& inPoint) {
  mElements.push_back({Verb::kMove, {inPoint, Point(), Point()}});
  mFigureStart = mCurrent = inPoint;
}

void Path::LineTo(const Point& inPoint) {
  ContinueFigure();
  mElements.push_back({Verb::kLine, {inPoint, Point(), Point()}});
  mCurrent = inPoint;
}

void Path::BezierTo(const Point& inControl1, const Point& inControl2, const Point& inEnd) {
  ContinueFigure();
  mElements.push_back({Verb::kBezier, {inControl1, inControl2, inEnd}});
  mCurrent = inEnd;
}

void Path::Close() {
  LUM_INPUT_CONTRACT(!mElements.empty());
  if (!HasOpenFigure()) return;
  mElements.push_back({Verb::kClose, {}});
  mCurrent = mFigureStart;
}

void Path::AddRect(const Rect& inRect) {
  if (inRect.IsEmpty()) return;
  MoveTo(inRect.Origin());
  LineTo(Point(inRect.Right(), inRect.y));
  LineTo(Point(inRect.Right(), inRect.Bottom()));
  LineTo(Point(inRect.x, inRect.Bottom()));
  Close();
}

void Path::AddRoundedRect(const Rect& inRect, float inRadius) {
  if (inRect.IsEmpty()) return;
  const float radius = std::min(inRadius, 0.5f * std::min(inRect.width, inRect.height));
  if (!(radius > 0)) return AddRect(inRect);
  const float side = 2 * radius;
  MoveTo(Point(inRect.x + radius, inRect.y));
  AddArc(Rect(inRect.Right() - side, inRect.y, side, side), -90, 90);
  AddArc(Rect(inRect.Right() - side, inRect.Bottom() - side, side, side), 0, 90);
  AddArc(Rect(inRect.x, inRect.Bottom() - side, side, side), 90, 90);
  AddArc(Rect(inRect.x, inRect.y, side, side), 180, 90);
  Close();
}

void Path::AddEllipse(const Rect& inBounds) {
  if (inBounds.IsEmpty()) return;
  if (HasOpenFigure()) MoveTo(Point(inBounds.Right(), inBounds.y + 0.5f * inBounds.height));
  AddArc(inBounds, 0, 360);
  Close();
}

void Path::AddArc(const Rect& inBounds, float inStartAngle, float inSweepAngle) {
  if (inBounds.IsEmpty()) return;
  const double radiusX = 0.5 * inBounds.width;
  const double radiusY = 0.5 * inBounds.height;
  const auto at = [&](double inCos, double inSin) {
    return Point(static_cast<float>(inBounds.x + radiusX + radiusX * inCos),
                 static_cast<float>(inBounds.y + radiusY + radiusY * inSin));
  };
  const double sweep = std::clamp(static_cast<double>(inSweepAngle), -360.0, 360.0);
  const int curves =
      std::max(1, static_cast<int>(std::ceil(std::abs(sweep) / kLargestArcOfOneCurve)));
  const double step = sweep / curves * kPi / 180;
  const double handle = 4.0 / 3.0 * std::tan(step / 4);
  double angle = inStartAngle * kPi / 180;

  const Point start = at(std::cos(angle), std::sin(angle));
  if (!HasOpenFigure()) {
    MoveTo(start);
  } else if (start != mCurrent) {
    LineTo(start);
  }
  for (int i = 0; i < curves; ++i) {
    const double c0 = std::cos(angle), s0 = std::sin(angle);
    const double c1 = std::cos(angle + step), s1 = std::sin(angle + step);
    BezierTo(at(c0 - handle * s0, s0 + handle * c0), at(c1 + handle * s1, s1 - handle * c1),
             at(c1, s1));
    angle += step;
  }
}

Path::Rect Path::GetBounds() const {
  if (mElements.empty()) return Rect();
  const Point first = mElements.front().points[0];
  double left = first.x, right = first.x, top = first.y, bottom = first.y;
  Point current = first;
  for (const auto& element : mElements) {
    if (element.verb == Verb::kClose) continue;
    const Point* p = element.points;
    const Point end = element.verb == Verb::kBezier ? p[2] : p[0];
    left = std::min<double>(left, end.x);
    right = std::max<double>(right, end.x);
    top = std::min<double>(top, end.y);
    bottom = std::max<double>(bottom, end.y);
    if (element.verb == Verb::kBezier) {
      AddTurns(current.x, p[0].x, p[1].x, p[2].x, left, right);
      AddTurns(current.y, p[0].y, p[1].y, p[2].y, top, bottom);
    }
    current = end;
  }
  return Rect(static_cast<float>(left), static_cast<float>(top), static_cast<float>(right - left),
              static_cast<float>(bottom - top));
}

bool Path::HasOpenFigure() const {
  return !mElements.empty() && mElements.back().verb != Verb::kClose;
}

void Path::ContinueFigure() {
  LUM_INPUT_CONTRACT(!mElements.empty());
  if (!HasOpenFigure()) MoveTo(mCurrent);
}

}  // namespace lumui::drawbot
