// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>

#include "vek/hierarchyview/HierarchyColumnInfo.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

// What shows a tree with columns, as far as its geometry asks it: how wide the columns are.
class VEK_API TreeListControlBase : public TreeControlBase {
 public:
  TreeListControlBase();
  ~TreeListControlBase() override;

  float GetTotalColumnWidth() const;

 protected:
  std::list<HierarchyColumnInfo> mColumns;  // from left to right
};

}  // namespace vek::hierarchyview
