// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <unordered_set>

#include "vek/hierarchyview/EntryJunction.h"

namespace vek::hierarchyview {

class BasicTreeNode;
class TreeControlBase;

// What can be selected in a ready-made tree: the nodes of all its entries, open or closed, that say
// they are selectable, from top to bottom. The root counts where it is shown. Entries of a host's
// own class count too; those of the tree's own are also known one by one, from joining to leaving.
class VEK_API BasicTreeSelJunction : public EntryJunction {
 public:
  // It borrows the control.
  explicit BasicTreeSelJunction(TreeControlBase const& inControl);
  ~BasicTreeSelJunction() override;

  std::list<selection::Node*> AllSelectables() override;
  bool Knows(const selection::Node* inNode) override;
  HierarchyEntryBase* FindEntry(const selection::Node* inNode) override;

  // With everything below, as an entry comes into the tree and as it goes.
  void Join(HierarchyEntryBase* inEntry);
  void Leave(HierarchyEntryBase* inEntry);

 private:
  TreeControlBase const& mControl;
  std::shared_ptr<std::unordered_set<const selection::Node*>> mJoined;
};

}  // namespace vek::hierarchyview
