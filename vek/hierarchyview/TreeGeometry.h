// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/hierarchyview/TextWidths.h"

namespace vek::hierarchyview {

struct UniformRows;

// The rows of a tree: all of one height, each as wide as its text in the control's font, without
// icon, twisty and indent. A hidden root is a row of no size, and its children are of level 1.
class VEK_API TreeGeometry : public HierarchyGeometry {
 public:
  TreeGeometry(TreeControlBase* inTreeControl, unsigned short inIndent, bool inHideRoot,
               float inRowHeight);

  unsigned short EntryLevel(HierarchyEntryBase const* inEntry) const override;
  lumcore::geom::PointT<float> EntryWidthHeight(HierarchyEntryBase const* inEntry) const override;
  UniformRows GetUniformRows() const;

 private:
  bool mHideRoot;
  float mRowHeight;
  mutable TextWidths mWidths;
};

}  // namespace vek::hierarchyview
