// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/UniformRows.h"

#include "vek/hierarchyview/TreeGeometry.h"
#include "vek/hierarchyview/TreeListGeometry.h"

namespace vek::hierarchyview {

void UniformRows::Learn(HierarchyGeometry const& inGeometry) {
  const std::type_info& type = typeid(inGeometry);
  inGeometry.mUniformRows.reset();
  if (type == typeid(TreeListGeometry)) {
    inGeometry.mUniformRows.reset(
        new UniformRows(static_cast<TreeListGeometry const&>(inGeometry).GetUniformRows()));
  } else if (type == typeid(TreeGeometry)) {
    inGeometry.mUniformRows.reset(
        new UniformRows(static_cast<TreeGeometry const&>(inGeometry).GetUniformRows()));
  }
  inGeometry.mKnownType = &type;
}

}  // namespace vek::hierarchyview
