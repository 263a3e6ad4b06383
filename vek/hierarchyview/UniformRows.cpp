// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/UniformRows.h"

#include <typeinfo>

#include "vek/hierarchyview/TreeGeometry.h"
#include "vek/hierarchyview/TreeListGeometry.h"

namespace vek::hierarchyview {

std::optional<UniformRows> UniformRows::Of(HierarchyGeometry const& inGeometry) {
  const std::type_info& type = typeid(inGeometry);
  if (type == typeid(TreeListGeometry)) {
    return static_cast<TreeListGeometry const&>(inGeometry).GetUniformRows();
  }
  if (type == typeid(TreeGeometry)) {
    return static_cast<TreeGeometry const&>(inGeometry).GetUniformRows();
  }
  return std::nullopt;
}

}  // namespace vek::hierarchyview
