// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>

#include "lumcore/geom/Point.h"

namespace lumcore::geom {

// A rectangle by its corner of least x and y and its size. A width or height of 0 or less makes it
// empty, and an empty rectangle contains no point, meets nothing and adds nothing to a join.
template <class T>
struct RectT {
  T x = 0;
  T y = 0;
  T width = 0;
  T height = 0;

  constexpr RectT() = default;
  constexpr RectT(T inX, T inY, T inWidth, T inHeight)
      : x(inX), y(inY), width(inWidth), height(inHeight) {}

  constexpr T Right() const { return x + width; }
  constexpr T Bottom() const { return y + height; }
  constexpr PointT<T> Origin() const { return PointT<T>(x, y); }
  // Written so that a width or height that is not a number makes it empty too.
  constexpr bool IsEmpty() const { return !(width > 0 && height > 0); }

  // The edges of least x and y belong to the rectangle, the opposite ones do not.
  constexpr bool Contains(const PointT<T>& inPoint) const {
    return !IsEmpty() && inPoint.x >= x && inPoint.y >= y && inPoint.x < Right() &&
           inPoint.y < Bottom();
  }
  constexpr bool Intersects(const RectT& inOther) const { return !Intersection(inOther).IsEmpty(); }

  // (0, 0, 0, 0) where the two do not meet.
  constexpr RectT Intersection(const RectT& inOther) const {
    if (IsEmpty() || inOther.IsEmpty()) return RectT();
    const T left = std::max(x, inOther.x);
    const T top = std::max(y, inOther.y);
    const RectT meet(left, top, std::min(Right(), inOther.Right()) - left,
                     std::min(Bottom(), inOther.Bottom()) - top);
    return meet.IsEmpty() ? RectT() : meet;
  }
  // The least rectangle around both. A join with an empty rectangle yields the other one.
  constexpr RectT Join(const RectT& inOther) const {
    if (IsEmpty()) return inOther;
    if (inOther.IsEmpty()) return *this;
    const T left = std::min(x, inOther.x);
    const T top = std::min(y, inOther.y);
    return RectT(left, top, std::max(Right(), inOther.Right()) - left,
                 std::max(Bottom(), inOther.Bottom()) - top);
  }

  friend constexpr bool operator==(const RectT& inA, const RectT& inB) {
    return inA.x == inB.x && inA.y == inB.y && inA.width == inB.width && inA.height == inB.height;
  }
  friend constexpr bool operator!=(const RectT& inA, const RectT& inB) { return !(inA == inB); }
};

}  // namespace lumcore::geom
