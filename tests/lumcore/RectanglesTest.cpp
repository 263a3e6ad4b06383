// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <limits>

#include "lumcore/geom/Rect.h"

namespace {

using Rect = lumcore::geom::RectT<float>;
using Point = lumcore::geom::PointT<float>;

const float kNaN = std::numeric_limits<float>::quiet_NaN();

TEST(Rectangles, EmptyOnesAddAndMeetNothing) {
  const Rect full(1, 2, 10, 20);
  const Rect empties[] = {Rect(),
                          Rect(100, 100, 0, 5),
                          Rect(5, 5, 5, 0),
                          Rect(-50, 3, -1, 5),
                          Rect(5, 5, kNaN, 5),
                          Rect(5, 5, 5, kNaN)};
  for (const Rect& empty : empties) {
    EXPECT_TRUE(empty.IsEmpty());
    EXPECT_EQ(full.Join(empty), full);
    EXPECT_EQ(empty.Join(full), full);
    EXPECT_EQ(full.Intersection(empty), Rect());
    EXPECT_FALSE(empty.Intersects(full));
    EXPECT_FALSE(empty.Contains(empty.Origin()));
  }
}

TEST(Rectangles, JoinAndIntersectionAreSymmetric) {
  struct Row {
    Rect a, b, join, meet;
  };
  const Row rows[] = {
      {Rect(0, 0, 10, 5), Rect(4, -3, 20, 6), Rect(0, -3, 24, 8), Rect(4, 0, 6, 3)},
      {Rect(0, 0, 10, 10), Rect(2, 3, 4, 5), Rect(0, 0, 10, 10), Rect(2, 3, 4, 5)},
      // They share an edge, which belongs to one of them only.
      {Rect(0, 0, 10, 10), Rect(10, 0, 5, 10), Rect(0, 0, 15, 10), Rect()},
      {Rect(-9, -9, 1, 1), Rect(8, 8, 1, 2), Rect(-9, -9, 18, 19), Rect()},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.a.Join(row.b), row.join);
    EXPECT_EQ(row.b.Join(row.a), row.join);
    EXPECT_EQ(row.a.Intersection(row.b), row.meet);
    EXPECT_EQ(row.b.Intersection(row.a), row.meet);
  }
}

TEST(Rectangles, ContainTheirNearEdgesAndNotTheFarOnes) {
  const Rect rect(1, 2, 3, 4);
  EXPECT_TRUE(rect.Contains(Point(1, 2)));
  EXPECT_FALSE(rect.Contains(Point(4, 2)));
  EXPECT_FALSE(rect.Contains(Point(1, 6)));
  EXPECT_FALSE(rect.Contains(Point(kNaN, 3)));
  EXPECT_FALSE(Rect(kNaN, 2, 3, 4).Contains(Point(2, 3)));
}

}  // namespace
