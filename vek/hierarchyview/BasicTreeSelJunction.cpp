// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicTreeSelJunction.h"

#include <algorithm>

#include "vek/hierarchyview/BasicTreeNode.h"
#include "vek/hierarchyview/EntryWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

BasicTreeSelJunction::BasicTreeSelJunction(TreeControlBase const& inControl)
    : mControl(inControl), mJoined(new std::unordered_set<const selection::Node*>) {}

BasicTreeSelJunction::~BasicTreeSelJunction() = default;

std::list<selection::Node*> BasicTreeSelJunction::AllSelectables() {
  std::list<selection::Node*> nodes;
  HierarchyEntryBase* const root = mControl.GetRootEntry();
  ForEachEntry(root, [&](HierarchyEntryBase* inEntry) {
    if (inEntry == root && mControl.GetHideRoot()) return;
    selection::Node* const node = inEntry->GetDataAsSelNode();
    if (node && node->Selectable()) nodes.push_back(node);
  });
  return nodes;
}

bool BasicTreeSelJunction::Knows(const selection::Node* inNode) {
  if (mJoined->count(inNode) != 0) return inNode->Selectable();
  const std::list<selection::Node*> nodes = AllSelectables();
  return std::find(nodes.begin(), nodes.end(), inNode) != nodes.end();
}

HierarchyEntryBase* BasicTreeSelJunction::FindEntry(const selection::Node* inNode) {
  if (mJoined->count(inNode) == 0) return nullptr;
  return const_cast<BasicTreeNode*>(static_cast<const BasicTreeNode*>(inNode));
}

void BasicTreeSelJunction::Join(HierarchyEntryBase* inEntry) {
  ForEachEntry(inEntry, [&](HierarchyEntryBase* inJoining) {
    auto* const node = dynamic_cast<BasicTreeNode*>(inJoining);
    if (!node || node->GetDataAsSelNode() != node) return;
    if (node->mJoined && node->mJoined != mJoined) node->mJoined->erase(node);
    node->mJoined = mJoined;
    mJoined->insert(node);
  });
}

void BasicTreeSelJunction::Leave(HierarchyEntryBase* inEntry) {
  ForEachEntry(inEntry, [&](HierarchyEntryBase* inLeaving) {
    auto* const node = dynamic_cast<BasicTreeNode*>(inLeaving);
    if (!node || node->mJoined != mJoined) return;
    mJoined->erase(node);
    node->mJoined.reset();
  });
}

}  // namespace vek::hierarchyview
