// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIShellSelectionJunction.h"

#include "vek/hierarchyview/EntryWalk.h"
#include "vek/sharedui/UIShellEntries.h"
#include "vek/sharedui/UIShellTrackViewBase.h"

namespace vek::sharedui {

using hierarchyview::HierarchyEntryBase;

UIShellSelectionJunction::UIShellSelectionJunction(UIShellTrackViewBase* inTree) : mTree(inTree) {}

UIShellSelectionJunction::~UIShellSelectionJunction() = default;

std::list<selection::Node*> UIShellSelectionJunction::AllSelectables() {
  std::list<selection::Node*> nodes;
  HierarchyEntryBase* const root = mTree ? mTree->GetRootEntry() : nullptr;
  hierarchyview::ForEachEntry(root, [&](HierarchyEntryBase* inEntry) {
    selection::Node* const node = inEntry->GetDataAsSelNode();
    if (node && node->Selectable()) nodes.push_back(node);
  });
  return nodes;
}

bool UIShellSelectionJunction::Knows(const selection::Node* inNode) {
  if (!mTree || mJoined.count(inNode) == 0 || !inNode->Selectable()) return false;
  // Somebody may hold an entry that the tree has let go.
  HierarchyEntryBase const* entry = static_cast<const UIShellHierarchyEntryBase*>(inNode);
  while (entry != mTree->GetRootEntry()) {
    HierarchyEntryBase const* const parent = entry->GetParent();
    if (!parent || !entry->StandsOnlyUnder(parent)) return false;
    entry = parent;
  }
  return true;
}

void UIShellSelectionJunction::Join(UIShellHierarchyEntryBase* inEntry) {
  mJoined.insert(inEntry);
}

void UIShellSelectionJunction::Leave(UIShellHierarchyEntryBase* inEntry) {
  mJoined.erase(inEntry);
}

}  // namespace vek::sharedui
