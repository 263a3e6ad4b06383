// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/DamageRects.h"

#include <cstdint>
#include <utility>

namespace lumui::ui {

namespace {

// Pixels. What a node spends on finding out what to draw in a rectangle, in pixels that it fills in
// the same time: measured with the map of 20,000 boxes that the benchmarks scroll.
constexpr std::int64_t kCostOfRect = 8192;
// More than this come from shapes, and are not worth the search for pairs.
constexpr int kMostRects = 16;

std::int64_t CostOf(const QRect& inRect) {
  return kCostOfRect + std::int64_t(inRect.width()) * inRect.height();
}

// Two of the rectangles as one, with all that it runs into, or false where that costs more.
bool Join(std::vector<QRect>& ioRects, std::size_t inFirst, std::size_t inSecond) {
  QRect joined = ioRects[inFirst] | ioRects[inSecond];
  std::int64_t costBefore = 0;
  std::vector<QRect> apart = ioRects;
  for (std::size_t i = 0; i < apart.size();) {
    if (!joined.intersects(apart[i])) {
      ++i;
      continue;
    }
    joined |= apart[i];
    costBefore += CostOf(apart[i]);
    apart.erase(apart.begin() + std::ptrdiff_t(i));
    i = 0;
  }
  if (CostOf(joined) > costBefore) return false;
  apart.push_back(joined);
  ioRects = std::move(apart);
  return true;
}

bool JoinOnePair(std::vector<QRect>& ioRects) {
  for (std::size_t i = 0; i < ioRects.size(); ++i) {
    for (std::size_t j = i + 1; j < ioRects.size(); ++j) {
      if (Join(ioRects, i, j)) return true;
    }
  }
  return false;
}

}  // namespace

std::vector<QRect> SplitDamage(const QRegion& inDamage) {
  if (inDamage.isEmpty()) return {};
  if (inDamage.rectCount() > kMostRects) return {inDamage.boundingRect()};
  std::vector<QRect> rects(inDamage.begin(), inDamage.end());
  while (JoinOnePair(rects)) {
  }
  return rects;
}

}  // namespace lumui::ui
