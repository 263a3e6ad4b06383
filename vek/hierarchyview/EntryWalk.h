// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>
#include <vector>

#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

// Calls the function with an entry, which may be null, and with all below it, from top to bottom
// and without regard to what is open. It needs no stack as deep as the tree. The function leaves
// the shape as it is.
template <class Function>
void ForEachEntry(HierarchyEntryBase* inEntry, Function const& inFunction) {
  if (!inEntry) return;
  inFunction(inEntry);
  using Place = HierarchyEntryBase::List::const_iterator;
  std::vector<std::pair<Place, Place>> path;
  path.emplace_back(inEntry->GetChildren().begin(), inEntry->GetChildren().end());
  while (!path.empty()) {
    if (path.back().first == path.back().second) {
      path.pop_back();
      continue;
    }
    HierarchyEntryBase* const entry = (path.back().first++)->get();
    if (!entry) continue;
    inFunction(entry);
    if (!entry->GetChildren().empty())
      path.emplace_back(entry->GetChildren().begin(), entry->GetChildren().end());
  }
}

}  // namespace vek::hierarchyview
