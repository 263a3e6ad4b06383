// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/NodeStateSlot.h"

namespace vek::hierarchyview {

bool AnswersItsOwnState(HierarchyEntryBase const& /*inEntry*/) {
  return false;
}

}  // namespace vek::hierarchyview
