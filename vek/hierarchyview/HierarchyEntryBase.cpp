// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyEntryBase.h"

#include <algorithm>
#include <functional>

#include "lumcore/debug/Contract.h"
#include "vek/hierarchyview/TreeListComparator.h"

namespace vek::hierarchyview {

HierarchyEntryBase::HierarchyEntryBase(ENodeState const& inState, HierarchyEntryBase* inParent)
    : mState(inState), mParent(inParent) {}

HierarchyEntryBase::HierarchyEntryBase(ENodeState const& inState, HierarchyEntryBase* inParent,
                                       List const& inChildren)
    : mState(inState), mParent(inParent), mChildren(inChildren) {}

HierarchyEntryBase::~HierarchyEntryBase() {
  RemoveAllChildren();
}

ENodeState HierarchyEntryBase::GetNodeState() {
  return mState;
}

void HierarchyEntryBase::SetNodeState(ENodeState inState) {
  mState = inState;
}

void HierarchyEntryBase::HasMarquee(bool inHasMarquee) {
  mHasMarquee = inHasMarquee;
}

lumui::drawbot::FontP HierarchyEntryBase::GetNodeFont(lumui::drawbot::Drawbot* /*inDrawbot*/) {
  return lumui::drawbot::FontP();
}

void HierarchyEntryBase::AddChild(boost::intrusive_ptr<HierarchyEntryBase> const& inChild,
                                  bool inResort) {
  LUM_INPUT_CONTRACT(inChild.get() != nullptr);
  if (!HasSortAxis()) {
    mChildren.push_back(inChild);
    return;
  }
  mChildren.push_front(inChild);
  if (inResort) ResortChildren();
}

void HierarchyEntryBase::SetParent(HierarchyEntryBase* inParent) {
  mParent = inParent;
}

void HierarchyEntryBase::RemoveChild(HierarchyEntryBase const* inEntry) {
  const auto place = std::find(mChildren.begin(), mChildren.end(), inEntry);
  if (place == mChildren.end()) return;
  // It goes at the end of this scope, when it stands in the list no longer: its destructor is the
  // host's and may look here.
  List removed;
  removed.splice(removed.end(), mChildren, place);
}

void HierarchyEntryBase::RemoveAllChildren() {
  List removed;
  removed.swap(mChildren);
}

HierarchyEntryBase::List::iterator HierarchyEntryBase::child_begin() {
  return mChildren.begin();
}

HierarchyEntryBase::List::iterator HierarchyEntryBase::child_end() {
  return mChildren.end();
}

void HierarchyEntryBase::SortList(TreeListComparator const& inComparator) {
  // By reference: a merge would copy the comparator, and with it a counted pointer, many times.
  const TreeListComparator comparator(inComparator);
  mChildren.sort(std::cref(comparator));
}

}  // namespace vek::hierarchyview
