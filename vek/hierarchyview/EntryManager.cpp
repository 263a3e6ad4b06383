// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/EntryManager.h"

#include <list>
#include <vector>

#include "vek/hierarchyview/EntryWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/selection/Restorer.h"

namespace vek::hierarchyview {

using selection::Node;
using ManagerP = boost::intrusive_ptr<EntryManager>;

namespace {

// Goes by serial numbers, since an entry may be gone when its turn comes.
class EntryRestorer : public selection::Restorer {
 public:
  explicit EntryRestorer(ManagerP const& inManager) : mManager(inManager) {
    TreeControlBase const* const control = inManager->GetControl();
    if (!control) return;
    ForEachEntry(control->GetRootEntry(), [&](HierarchyEntryBase* inEntry) {
      if (inEntry->Selected(mManager.get())) mSelected.push_back(inEntry->GetSerial());
    });
    if (control->GetFocusItem()) mFocus = control->GetFocusItem()->GetSerial();
  }

  void Restore() override {
    std::list<Node*> nodes;
    for (const std::uint32_t serial : mSelected) {
      if (Node* const node = FindNode(serial)) nodes.push_back(node);
    }
    mManager->Select(nodes, selection::eDeselectOthers, selection::eSendMessages);
    // Who heard of it may have taken the control or the entry away.
    TreeControlBase* const control = mManager->GetControl();
    if (!control) return;
    Node const* const node = FindNode(mFocus);
    const bool isSelected = node && mManager->Selected(node);
    control->SetFocusItem(isSelected ? HierarchyEntryBase::FindSerial(mFocus) : nullptr, true);
  }

 private:
  // Null for an entry that is gone or not in the tree.
  Node* FindNode(std::uint32_t inSerial) const {
    HierarchyEntryBase const* const entry = HierarchyEntryBase::FindSerial(inSerial);
    Node* const node = entry && mManager->GetControl() ? entry->GetDataAsSelNode() : nullptr;
    auto* const junction = dynamic_cast<selection::KnowingJunction*>(mManager->GetJunction());
    return node && junction && junction->Knows(node) ? node : nullptr;
  }

  ManagerP mManager;
  std::vector<std::uint32_t> mSelected;
  std::uint32_t mFocus = 0;
};

class EntryRestorerFactory : public selection::RestorerFactory {
 public:
  explicit EntryRestorerFactory(ManagerP const& inManager) : mManager(inManager) {}
  selection::Restorer* NewRestorer() override { return new EntryRestorer(mManager); }

 private:
  ManagerP mManager;
};

}  // namespace

EntryManager::EntryManager(selection::KnowingJunction* inJunction, TreeControlBase* inControl)
    : Manager(inJunction), mControl(inControl) {}

selection::RestorerFactory* EntryManager::NewRestorerFactory() {
  return new EntryRestorerFactory(ManagerP(this));
}

}  // namespace vek::hierarchyview
