// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyEntry.h"

namespace vek::hierarchyview {

// An entry whose children exist only while it is open: it builds them as it opens and drops them
// as it closes. Setting the state that it has already does so again; a host's BuildChildList has
// to allow for it.
class VEK_API DynamicHierarchyEntry : public HierarchyEntry {
 public:
  DynamicHierarchyEntry(ENodeState const& inState, HierarchyEntryBase* inParent);
  DynamicHierarchyEntry(ENodeState const& inState, HierarchyEntryBase* inParent,
                        List const& inChildren);

  // What a hook throws reaches the caller, with the new state stored.
  void SetNodeState(ENodeState inState) override;

  virtual void BuildChildList() = 0;
  virtual void ClearChildList() = 0;

 protected:
  virtual void EntryStateChanged();  // does nothing
};

}  // namespace vek::hierarchyview
