// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicMultiColListSelJunction.h"

#include "vek/hierarchyview/EntryWalk.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/selection/Node.h"

namespace vek::hierarchyview {

using selection::Node;

namespace {

// More than these are not looked for among all entries: then those are remembered altogether.
constexpr std::size_t kFewNodes = 64;

Node* GetSelectable(HierarchyEntryBase const* inEntry) {
  Node* const node = inEntry->GetDataAsSelNode();
  return node && node->Selectable() ? node : nullptr;
}

}  // namespace

BasicMultiColListSelJunction::BasicMultiColListSelJunction(TreeControlBase const* inControl)
    : mControl(inControl) {}

BasicMultiColListSelJunction::~BasicMultiColListSelJunction() = default;

std::list<Node*> BasicMultiColListSelJunction::AllSelectables() {
  std::list<Node*> nodes;
  if (!mControl) return nodes;
  ForEachEntry(mControl->GetRootEntry(), [&](HierarchyEntryBase* inEntry) {
    if (Node* const node = GetSelectable(inEntry)) nodes.push_back(node);
  });
  return nodes;
}

bool BasicMultiColListSelJunction::Knows(const Node* inNode) {
  if (!mControl) return false;
  if (mShape != HierarchyEntryBase::GetShapeVersion()) FindAgain(false);
  if (FindEntry(inNode)) return true;
  FindAgain(true);
  return FindEntry(inNode) != nullptr;
}

// The entry lives, but it may answer otherwise than it did.
HierarchyEntryBase* BasicMultiColListSelJunction::FindEntry(const Node* inNode) {
  if (mShape != HierarchyEntryBase::GetShapeVersion()) return nullptr;
  const auto found = mEntries.find(inNode);
  const bool isThere = found != mEntries.end() && GetSelectable(found->second) == inNode;
  return isThere ? found->second : nullptr;
}

void BasicMultiColListSelJunction::FindAgain(bool inAll) {
  Entries found;
  const bool takesAll = inAll || mEntries.size() > kFewNodes;
  ForEachEntry(mControl->GetRootEntry(), [&](HierarchyEntryBase* inEntry) {
    const Node* const node = GetSelectable(inEntry);
    if (node && (takesAll || mEntries.count(node) != 0)) found.emplace(node, inEntry);
  });
  mEntries.swap(found);
  mShape = HierarchyEntryBase::GetShapeVersion();
}

void BasicMultiColListSelJunction::Note(HierarchyEntryBase* inEntry) {
  Node* const node = mControl ? GetSelectable(inEntry) : nullptr;
  if (!node) return;
  if (mShape != HierarchyEntryBase::GetShapeVersion()) FindAgain(false);
  mEntries.insert_or_assign(node, inEntry);
}

void BasicMultiColListSelJunction::ForgetControl() {
  mControl = nullptr;
  mEntries.clear();
}

}  // namespace vek::hierarchyview
