// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/HierarchyGeometry.h"

namespace vek::hierarchyview {

// The two steps of a walk, for whoever answers what they ask: Rules has GetRoot, GetHeight,
// GetLevel, and GetNext and GetPrevious for the neighbours of an entry in its parent's list, null
// at the list's ends and for an entry that its parent's list does not hold.

template <class Rules>
void StepForward(Rules const& inRules, HierarchyGeometry::TraverseEntry& ioTraverse, float inIndent,
                 bool inSkipChildren) {
  HierarchyEntryBase* entry = ioTraverse.mEntry;
  if (!entry) return;
  ioTraverse.MoveBy(inRules.GetHeight(entry));
  // Right for a first child already: its x is one step in from its parent's.
  ioTraverse.mCookie.x = static_cast<float>(inRules.GetLevel(entry)) * inIndent;
  if (!inSkipChildren && (ioTraverse.mDeep || entry->GetNodeState() != kNodeCollapsed) &&
      !entry->GetChildren().empty()) {
    ioTraverse.mEntry = entry->GetChildren().front().get();
    return;
  }
  if (!entry->GetParent()) {
    ioTraverse.mEntry = nullptr;
    return;
  }
  for (bool climbs = true; climbs;) {
    if (HierarchyEntryBase* const next = inRules.GetNext(entry)) {
      entry = next;
      ioTraverse.mCookie.x = static_cast<float>(inRules.GetLevel(entry) - 1) * inIndent;
      climbs = false;
    } else {
      entry = entry->GetParent();
      climbs = entry->GetParent() != nullptr;
    }
    if (entry == inRules.GetRoot() && !entry->GetParent()) {
      entry = nullptr;
      climbs = false;
    }
  }
  ioTraverse.mEntry = entry;
}

template <class Rules>
void StepBack(Rules const& inRules, HierarchyGeometry::TraverseEntry& ioTraverse, float inIndent) {
  HierarchyEntryBase* entry = ioTraverse.mEntry;
  if (!entry) return;
  ioTraverse.MoveBy(-inRules.GetHeight(entry));
  ioTraverse.mCookie.x = static_cast<float>(inRules.GetLevel(entry)) * inIndent;
  ioTraverse.mEntry = nullptr;
  for (; entry->GetParent(); entry = entry->GetParent(), ioTraverse.mEntry = entry) {
    HierarchyEntryBase* const previous = inRules.GetPrevious(entry);
    if (!previous) continue;
    ioTraverse.MoveBy(-inRules.GetHeight(previous));
    ioTraverse.mCookie.x = static_cast<float>(inRules.GetLevel(previous)) * inIndent;
    ioTraverse.mEntry = previous;
    return;
  }
}

}  // namespace vek::hierarchyview
