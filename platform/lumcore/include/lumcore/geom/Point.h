// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace lumcore::geom {

template <class T>
struct PointT {
  T x = 0;
  T y = 0;

  constexpr PointT() = default;
  constexpr PointT(T inX, T inY) : x(inX), y(inY) {}

  friend constexpr bool operator==(const PointT& inA, const PointT& inB) {
    return inA.x == inB.x && inA.y == inB.y;
  }
  friend constexpr bool operator!=(const PointT& inA, const PointT& inB) { return !(inA == inB); }
  friend constexpr PointT operator+(const PointT& inA, const PointT& inB) {
    return PointT(inA.x + inB.x, inA.y + inB.y);
  }
  friend constexpr PointT operator-(const PointT& inA, const PointT& inB) {
    return PointT(inA.x - inB.x, inA.y - inB.y);
  }
};

}  // namespace lumcore::geom
