// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>

#include "vek/hierarchyview/HierarchyColumnInfo.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

// Shows a tree whose rows have columns.
class VEK_API TreeListControlBase : public TreeControlBase {
 public:
  TreeListControlBase(trackview::TrackView* inTrackView, bool inHideRoot, unsigned short inIndent,
                      bool inIsSingleSelect, bool inAllowsDragOut);
  ~TreeListControlBase() override;

  float GetTotalColumnWidth() const;

 protected:
  std::list<HierarchyColumnInfo> mColumns;  // from left to right
};

}  // namespace vek::hierarchyview
