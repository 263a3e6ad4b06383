// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "layout/Layout.h"

namespace lumworkspace::docking {

struct PlacedItem {
  layout::Rect rect;
  layout::Item item;
};

// The tree of rows and columns that puts the items where they stand: rectangles that do not overlap
// are cut apart by straight lines, as far as that goes. The root's size is its width where
// inWidthIsSize says so, else its height. No items give an empty one.
layout::Item CutIntoRowsAndColumns(std::vector<PlacedItem> inItems, bool inWidthIsSize);

}  // namespace lumworkspace::docking
