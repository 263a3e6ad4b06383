// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

class TreeListComparator;

// An entry with a sort axis, which answers for the selection. Sorting covers the whole subtree,
// open or closed, and every HierarchyEntry in it remembers the axis, the direction and the
// function; a child that is only a HierarchyEntryBase is passed over with its subtree.
//
// An entry is never selected by a flag of its own: it is a way to a selection::Node, that of its
// data or itself, where a class derives from both.
class VEK_API HierarchyEntry : public HierarchyEntryBase {
 public:
  HierarchyEntry(ENodeState const& inState, HierarchyEntryBase* inParent);
  HierarchyEntry(ENodeState const& inState, HierarchyEntryBase* inParent, List const& inChildren);

  // Stable.
  void SortChildren(unsigned int const& inAxis, bool inAscending,
                    boost::shared_ptr<CompareFunction> inCompare) override;
  // By what the last sort left; nothing without an axis or a function.
  void ResortChildren() override;
  bool HasSortAxis() const override;
  bool Selected(selection::Manager* inManager) const override;
  selection::Node* GetDataAsSelNode() const override;  // null

 protected:
  void SortChildrenImpl_(unsigned int const& inAxis, bool inAscending,
                         TreeListComparator& inComparator);

 private:
  std::uint32_t mSortAxis = 0;  // 0: none
  bool mSortAscending = true;
  boost::shared_ptr<CompareFunction> mCompareFunction;
};

}  // namespace vek::hierarchyview
