// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <typeinfo>

#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/HierarchyGeometry.h"

namespace vek::hierarchyview {

class TextWidths;
class TreeListControlBase;

// What is known of every row beforehand where a geometry is one of the library's own: rows of one
// height, but for a hidden root, and levels that nobody overrides. A class that a host derives may
// answer otherwise, so only the exact classes count, and they only once they are constructed.
struct UniformRows {
  // Null for any other; the geometry's as long as that lives.
  static UniformRows const* Of(HierarchyGeometry const& inGeometry) {
    if (&typeid(inGeometry) != inGeometry.mKnownType) Learn(inGeometry);
    return inGeometry.mUniformRows.get();
  }

  bool IsHidden(HierarchyEntryBase const* inEntry) const {
    return hideRoot && !inEntry->GetParent();
  }
  float GetHeight(HierarchyEntryBase const* inEntry) const {
    return IsHidden(inEntry) ? 0.0f : rowHeight;
  }
  // Of a row at a depth that counts from 1 at the root.
  int GetLevel(unsigned short inDepth) const {
    return hideRoot && inDepth != 0 ? inDepth - 1 : inDepth;
  }

  float rowHeight;
  bool hideRoot;
  // Rows are as wide as its columns less their indent, or, where it is null, as their texts.
  TreeListControlBase const* columns;
  TextWidths* widths;  // null where there are columns

 private:
  static void Learn(HierarchyGeometry const& inGeometry);
};

}  // namespace vek::hierarchyview
