// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyGeometry.h"

namespace vek::hierarchyview {

// The walk as it is defined, with no help from what anything remembers: each step asks the
// geometry for the row's size and level, and looks for the entry in its parent's list from one end.
// Every quicker way through the rows has to answer as this does, and is compared with it.
class VEK_API PlainWalk {
 public:
  using TraverseEntry = HierarchyGeometry::TraverseEntry;

  static void NextEntry(HierarchyGeometry const& inGeometry, TraverseEntry& ioTraverse,
                        bool inSkipChildren);
  static void PreviousEntry(HierarchyGeometry const& inGeometry, TraverseEntry& ioTraverse);
  // Where the walk over the rows starts and stops.
  static TraverseEntry Begin(HierarchyGeometry& ioGeometry, bool inDeep);
  static TraverseEntry End(HierarchyGeometry& ioGeometry, bool inDeep);

  static lumcore::geom::RectT<float> Area(HierarchyGeometry& ioGeometry);
  static HierarchyGeometry::iterator FindEntry(HierarchyGeometry& ioGeometry,
                                               lumcore::geom::PointT<float> const& inPoint);
};

}  // namespace vek::hierarchyview
