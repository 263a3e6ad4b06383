// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyGeometry.h"

namespace vek::hierarchyview {

class TreeListControlBase;
struct UniformRows;

// The rows of a tree list: each as wide as the columns together, less its indent. Indent and row
// height are fixed. Its control is a TreeListControlBase.
class VEK_API TreeListGeometry : public HierarchyGeometry {
 public:
  static constexpr unsigned short kIndent = 10;
  static constexpr float kRowHeight = 19.0f;

  // The second argument is the indent that a tree would have; a list does not look at it.
  TreeListGeometry(TreeControlBase* inTreeControl, unsigned short const& inIndent, bool inHideRoot);
  ~TreeListGeometry() override;

  unsigned short EntryLevel(HierarchyEntryBase const* inEntry) const override;
  lumcore::geom::PointT<float> EntryWidthHeight(HierarchyEntryBase const* inEntry) const override;
  int GetFirstColumnOffset() { return 0; }
  UniformRows GetUniformRows() const;

 private:
  bool mHideRoot;
  TreeListControlBase* mTreeListControl;
};

}  // namespace vek::hierarchyview
