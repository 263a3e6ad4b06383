// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeListControlBase.h"

namespace vek::hierarchyview {

TreeListControlBase::TreeListControlBase(trackview::TrackView* inTrackView, bool inHideRoot,
                                         unsigned short inIndent, bool inIsSingleSelect,
                                         bool inAllowsDragOut)
    : TreeControlBase(inTrackView, inHideRoot, inIndent, inIsSingleSelect, inAllowsDragOut) {}

TreeListControlBase::~TreeListControlBase() = default;

float TreeListControlBase::GetTotalColumnWidth() const {
  float width = 0;
  for (const HierarchyColumnInfo& column : mColumns)
    width += column.GetColumnWidth();
  return width;
}

}  // namespace vek::hierarchyview
