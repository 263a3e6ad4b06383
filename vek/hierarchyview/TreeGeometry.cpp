// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeGeometry.h"

#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/hierarchyview/UniformRows.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;

TreeGeometry::TreeGeometry(TreeControlBase* inTreeControl, unsigned short inIndent, bool inHideRoot,
                           float inRowHeight)
    : HierarchyGeometry(inTreeControl, inIndent), mHideRoot(inHideRoot), mRowHeight(inRowHeight) {}

unsigned short TreeGeometry::EntryLevel(HierarchyEntryBase const* inEntry) const {
  const unsigned short level = HierarchyGeometry::EntryLevel(inEntry);
  return static_cast<unsigned short>(mHideRoot && level != 0 ? level - 1 : level);
}

PointT<float> TreeGeometry::EntryWidthHeight(HierarchyEntryBase const* inEntry) const {
  if (mHideRoot && !inEntry->GetParent()) return PointT<float>();
  lumcore::UTF16String text;
  inEntry->GetCellText(0, text);
  return PointT<float>(GetTreeControl()->GetFont()->MeasureWidth(text), mRowHeight);
}

UniformRows TreeGeometry::GetUniformRows() const {
  return UniformRows{mRowHeight, mHideRoot, nullptr, &mWidths};
}

}  // namespace vek::hierarchyview
