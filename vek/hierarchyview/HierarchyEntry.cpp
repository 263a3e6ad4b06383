// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyEntry.h"

#include <utility>
#include <vector>

#include "vek/hierarchyview/TreeListComparator.h"
#include "vek/selection/Manager.h"
#include "vek/selection/Node.h"

namespace vek::hierarchyview {

HierarchyEntry::HierarchyEntry(ENodeState const& inState, HierarchyEntryBase* inParent)
    : HierarchyEntryBase(inState, inParent) {
  mIsHierarchyEntry = true;
}

HierarchyEntry::HierarchyEntry(ENodeState const& inState, HierarchyEntryBase* inParent,
                               List const& inChildren)
    : HierarchyEntryBase(inState, inParent, inChildren) {
  mIsHierarchyEntry = true;
}

void HierarchyEntry::SortChildren(unsigned int const& inAxis, bool inAscending,
                                  boost::shared_ptr<CompareFunction> inCompare) {
  mCompareFunction = inCompare;
  TreeListComparator comparator(inAxis, inAscending, std::move(inCompare));
  SortChildrenImpl_(inAxis, inAscending, comparator);
}

void HierarchyEntry::ResortChildren() {
  if (mSortAxis == 0 || !mCompareFunction) return;
  TreeListComparator comparator(mSortAxis, mSortAscending, mCompareFunction);
  SortChildrenImpl_(mSortAxis, mSortAscending, comparator);
}

bool HierarchyEntry::HasSortAxis() const {
  return mSortAxis != 0;
}

bool HierarchyEntry::Selected(selection::Manager* inManager) const {
  const selection::Node* node = GetDataAsSelNode();
  if (!node) node = dynamic_cast<const selection::Node*>(this);
  return node && inManager->Selected(node);
}

selection::Node* HierarchyEntry::GetDataAsSelNode() const {
  return nullptr;
}

void HierarchyEntry::SortChildrenImpl_(unsigned int const& inAxis, bool inAscending,
                                       TreeListComparator& inComparator) {
  // From top to bottom; trees may be too deep for a recursion.
  std::vector<HierarchyEntry*> waiting(1, this);
  while (!waiting.empty()) {
    HierarchyEntry& entry = *waiting.back();
    waiting.pop_back();
    entry.mSortAxis = inAxis;
    entry.mSortAscending = inAscending;
    entry.mCompareFunction = inComparator.GetCompareFunction();
    if (entry.GetChildren().empty()) continue;
    entry.SortList(inComparator);
    const List& children = entry.GetChildren();
    for (auto child = children.rbegin(); child != children.rend(); ++child) {
      if (*child && (*child)->mIsHierarchyEntry)
        waiting.push_back(static_cast<HierarchyEntry*>(child->get()));
    }
  }
}

}  // namespace vek::hierarchyview
