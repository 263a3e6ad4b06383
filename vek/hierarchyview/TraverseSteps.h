// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/HierarchyGeometry.h"

namespace vek::hierarchyview {

// The two steps of a walk, for whoever answers what they ask: Rules has GetRoot, GetHeight,
// GetLevel, and GetNext and GetPrevious for the neighbours of an entry in its parent's list, null
// at the list's ends and for an entry that its parent's list does not hold. A level may go by the
// entry's depth, which is taken along from entry to entry.

// For rules that ask the geometry for every level.
struct AskedLevels {
  struct Depth {};

  static Depth GetDepth(HierarchyEntryBase const*) { return {}; }
  static Depth GetDepthAbove(Depth) { return {}; }
  static Depth GetDepthBeside(HierarchyEntryBase const*, Depth, HierarchyEntryBase const*) {
    return {};
  }
  int GetLevel(HierarchyEntryBase const* inEntry, Depth) const {
    return geometry.EntryLevel(inEntry);
  }

  HierarchyGeometry const& geometry;
};

template <class Rules>
void StepForward(Rules const& inRules, HierarchyGeometry::TraverseEntry& ioTraverse, float inIndent,
                 bool inSkipChildren) {
  HierarchyEntryBase* entry = ioTraverse.mEntry;
  if (!entry) return;
  ioTraverse.MoveBy(inRules.GetHeight(entry));
  // Right for a first child already: its x is one step in from its parent's.
  auto depth = inRules.GetDepth(entry);
  ioTraverse.mCookie.x = static_cast<float>(inRules.GetLevel(entry, depth)) * inIndent;
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
      depth = inRules.GetDepthBeside(entry, depth, next);
      entry = next;
      ioTraverse.mCookie.x = static_cast<float>(inRules.GetLevel(entry, depth) - 1) * inIndent;
      climbs = false;
    } else {
      entry = entry->GetParent();
      depth = inRules.GetDepthAbove(depth);
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
  ioTraverse.mCookie.x =
      static_cast<float>(inRules.GetLevel(entry, inRules.GetDepth(entry))) * inIndent;
  ioTraverse.mEntry = nullptr;
  for (; entry->GetParent(); entry = entry->GetParent(), ioTraverse.mEntry = entry) {
    HierarchyEntryBase* const previous = inRules.GetPrevious(entry);
    if (!previous) continue;
    ioTraverse.MoveBy(-inRules.GetHeight(previous));
    ioTraverse.mCookie.x =
        static_cast<float>(inRules.GetLevel(previous, inRules.GetDepth(previous))) * inIndent;
    ioTraverse.mEntry = previous;
    return;
  }
}

}  // namespace vek::hierarchyview
