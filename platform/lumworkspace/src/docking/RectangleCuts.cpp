// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "docking/RectangleCuts.h"

#include <algorithm>
#include <utility>

namespace lumworkspace::docking {

namespace {

using layout::Item;
using layout::Rect;
using Kind = Item::Kind;
using Part = std::vector<PlacedItem>;

// The parts that lines across the row or column separate, in order.
std::vector<Part> Cut(Part inItems, bool inAcross) {
  const auto start = [&](const Rect& inRect) { return inAcross ? inRect.x : inRect.y; };
  const auto end = [&](const Rect& inRect) { return inAcross ? inRect.Right() : inRect.Bottom(); };
  std::stable_sort(inItems.begin(), inItems.end(),
                   [&](const PlacedItem& inA, const PlacedItem& inB) {
                     return start(inA.rect) < start(inB.rect);
                   });
  std::vector<Part> parts;
  int reached = 0;
  for (PlacedItem& item : inItems) {
    if (parts.empty() || start(item.rect) >= reached) parts.emplace_back();
    reached = parts.back().empty() ? end(item.rect) : std::max(reached, end(item.rect));
    parts.back().push_back(std::move(item));
  }
  return parts;
}

Rect BoundsOf(const Part& inPart) {
  Rect bounds;
  for (const PlacedItem& item : inPart)
    bounds = bounds.Join(item.rect);
  return bounds;
}

}  // namespace

Item CutIntoRowsAndColumns(std::vector<PlacedItem> inItems, bool inWidthIsSize) {
  if (inItems.empty()) return Item();
  const Rect bounds = BoundsOf(inItems);
  Item root;
  if (inItems.size() == 1) {
    root = std::move(inItems.front().item);
  } else {
    std::vector<Part> parts = Cut(inItems, true);
    root.kind = parts.size() > 1 ? Kind::kRow : Kind::kColumn;
    if (parts.size() == 1) parts = Cut(std::move(inItems), false);
    if (parts.size() == 1) {
      // No line goes through: docks that overlap, as while the window is too small for them.
      Part all = std::move(parts.front());
      parts.clear();
      for (PlacedItem& item : all)
        parts.push_back(Part{std::move(item)});
    }
    for (Part& part : parts)
      root.items.push_back(CutIntoRowsAndColumns(std::move(part), root.kind == Kind::kRow));
  }
  root.size = inWidthIsSize ? bounds.width : bounds.height;
  return root;
}

}  // namespace lumworkspace::docking
