// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <unordered_map>

#include "vek/config/Export.h"
#include "vek/hierarchyview/EntryJunction.h"

namespace vek::hierarchyview {

class TreeControlBase;

// What can be selected in a ready-made list: the nodes of all its entries, open or closed, that say
// they are selectable, from top to bottom. None once the control is gone.
//
// It remembers whose nodes it was asked for as long as no tree changes its shape, and with that no
// entry dies. After a change one walk over all entries finds those again.
class VEK_API BasicMultiColListSelJunction : public EntryJunction {
 public:
  explicit BasicMultiColListSelJunction(TreeControlBase const* inControl);
  ~BasicMultiColListSelJunction() override;

  std::list<selection::Node*> AllSelectables() override;
  bool Knows(const selection::Node* inNode) override;
  HierarchyEntryBase* FindEntry(const selection::Node* inNode) override;

  // An entry of the control whose node is about to be selected, so that it need not be looked for.
  void Note(HierarchyEntryBase* inEntry);
  // For a manager that outlives the control.
  void ForgetControl();

 private:
  using Entries = std::unordered_map<const selection::Node*, HierarchyEntryBase*>;

  void FindAgain(bool inAll);

  TreeControlBase const* mControl;  // borrowed; null when it is gone
  Entries mEntries;
  std::uint64_t mShape = 0;  // when the entries were found
};

}  // namespace vek::hierarchyview
