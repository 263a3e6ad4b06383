// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeListGeometry.h"

#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/TreeListControlBase.h"
#include "vek/hierarchyview/UniformRows.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;

TreeListGeometry::TreeListGeometry(TreeControlBase* inTreeControl,
                                   unsigned short const& /*inIndent*/, bool inHideRoot)
    : HierarchyGeometry(inTreeControl, kIndent),
      mHideRoot(inHideRoot),
      mTreeListControl(dynamic_cast<TreeListControlBase*>(inTreeControl)) {}

TreeListGeometry::~TreeListGeometry() = default;

unsigned short TreeListGeometry::EntryLevel(HierarchyEntryBase const* inEntry) const {
  const unsigned short level = HierarchyGeometry::EntryLevel(inEntry);
  return static_cast<unsigned short>(mHideRoot && level != 0 ? level - 1 : level);
}

PointT<float> TreeListGeometry::EntryWidthHeight(HierarchyEntryBase const* inEntry) const {
  if (mHideRoot && !inEntry->GetParent()) return PointT<float>();
  // Signed: level 0 makes the row wider than the columns.
  const int indent = EntryLevel(inEntry) * kIndent - kIndent;
  return PointT<float>(mTreeListControl->GetTotalColumnWidth() - static_cast<float>(indent),
                       kRowHeight);
}

UniformRows TreeListGeometry::GetUniformRows() const {
  return UniformRows{kRowHeight, mHideRoot, mTreeListControl, nullptr};
}

}  // namespace vek::hierarchyview
