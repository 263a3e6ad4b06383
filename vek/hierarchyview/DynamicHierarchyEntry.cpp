// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/DynamicHierarchyEntry.h"

namespace vek::hierarchyview {

DynamicHierarchyEntry::DynamicHierarchyEntry(ENodeState const& inState,
                                             HierarchyEntryBase* inParent)
    : HierarchyEntry(inState, inParent) {}

DynamicHierarchyEntry::DynamicHierarchyEntry(ENodeState const& inState,
                                             HierarchyEntryBase* inParent, List const& inChildren)
    : HierarchyEntry(inState, inParent, inChildren) {}

void DynamicHierarchyEntry::SetNodeState(ENodeState inState) {
  HierarchyEntryBase::SetNodeState(inState);
  if (inState != kNodeCollapsed) {
    BuildChildList();
  } else {
    ClearChildList();
  }
  EntryStateChanged();
}

void DynamicHierarchyEntry::EntryStateChanged() {}

}  // namespace vek::hierarchyview
