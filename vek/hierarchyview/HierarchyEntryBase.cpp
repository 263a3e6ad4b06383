// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyEntryBase.h"

#include <algorithm>
#include <functional>
#include <iterator>

#include "lumcore/debug/Contract.h"
#include "vek/hierarchyview/TreeListComparator.h"

namespace vek::hierarchyview {

namespace {

std::uint64_t gShapeVersion = 0;

void ShapeChanged() {
  ++gShapeVersion;
}

}  // namespace

HierarchyEntryBase::HierarchyEntryBase(ENodeState const& inState, HierarchyEntryBase* inParent)
    : mState(inState), mParent(inParent) {}

HierarchyEntryBase::HierarchyEntryBase(ENodeState const& inState, HierarchyEntryBase* inParent,
                                       List const& inChildren)
    : mState(inState), mParent(inParent), mChildren(inChildren) {
  for (auto place = mChildren.begin(); place != mChildren.end(); ++place)
    EnterPosition(place);
}

HierarchyEntryBase::~HierarchyEntryBase() {
  ShapeChanged();
  RemoveAllChildren();
}

ENodeState HierarchyEntryBase::GetNodeState() {
  return mState;
}

void HierarchyEntryBase::SetNodeState(ENodeState inState) {
  mState = inState;
  ShapeChanged();
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
  ShapeChanged();
  if (!HasSortAxis()) {
    EnterPosition(mChildren.insert(mChildren.end(), inChild));
    return;
  }
  EnterPosition(mChildren.insert(mChildren.begin(), inChild));
  if (inResort) ResortChildren();
}

void HierarchyEntryBase::SetParent(HierarchyEntryBase* inParent) {
  mParent = inParent;
  mIsPlaced = false;
  ShapeChanged();
}

HierarchyEntryBase* HierarchyEntryBase::GetNextSibling() const {
  if (!mParent) return nullptr;
  const List& siblings = mParent->mChildren;
  List::const_iterator place =
      KnowsPlace() ? mPlace : std::find(mParent->mChildren.begin(), mParent->mChildren.end(), this);
  return place == siblings.end() || ++place == siblings.end() ? nullptr : place->get();
}

HierarchyEntryBase* HierarchyEntryBase::GetPreviousSibling() const {
  if (!mParent) return nullptr;
  const List& siblings = mParent->mChildren;
  const auto behind = KnowsPlace()
                          ? std::make_reverse_iterator(std::next(List::const_iterator(mPlace)))
                          : std::find(siblings.rbegin(), siblings.rend(), this);
  return behind == siblings.rend() || std::next(behind) == siblings.rend()
             ? nullptr
             : std::next(behind)->get();
}

void HierarchyEntryBase::RemoveChild(HierarchyEntryBase const* inEntry) {
  const auto place = std::find(mChildren.begin(), mChildren.end(), inEntry);
  if (place == mChildren.end()) return;
  ShapeChanged();
  // It goes at the end of this scope, when it stands in the list no longer: its destructor is the
  // host's and may look here.
  List removed;
  removed.splice(removed.end(), mChildren, place);
  LeavePositions(removed);
}

void HierarchyEntryBase::RemoveAllChildren() {
  ShapeChanged();
  List removed;
  removed.swap(mChildren);
  LeavePositions(removed);
}

HierarchyEntryBase::List::iterator HierarchyEntryBase::child_begin() {
  mHandedOut = true;
  ShapeChanged();
  return mChildren.begin();
}

HierarchyEntryBase::List::iterator HierarchyEntryBase::child_end() {
  mHandedOut = true;
  ShapeChanged();
  return mChildren.end();
}

void HierarchyEntryBase::SortList(TreeListComparator const& inComparator) {
  ShapeChanged();
  // By reference: a merge would copy the comparator, and with it a counted pointer, many times.
  mChildren.sort(std::cref(inComparator));
}

std::uint64_t HierarchyEntryBase::GetShapeVersion() {
  return gShapeVersion;
}

void HierarchyEntryBase::EnterPosition(List::iterator inPlace) {
  HierarchyEntryBase* const child = inPlace->get();
  if (!child) return;  // a null can come in by a copied list
  ++child->mPositions;
  child->mPlace = inPlace;
  child->mIsPlaced = child->mPositions == 1 && child->mParent == this;
}

void HierarchyEntryBase::LeavePositions(List const& inLeaving) {
  for (const auto& child : inLeaving) {
    if (!child) continue;
    child->mIsPlaced = false;
    // Another entry may stand where the counted one stood. One position too many makes it be
    // looked for, one too few would be a wrong answer.
    if (!mHandedOut) --child->mPositions;
  }
}

// For all at once: looking for each on its own would cost the square of the list's length.
void HierarchyEntryBase::LearnPlaces() {
  for (auto place = mChildren.begin(); place != mChildren.end(); ++place) {
    HierarchyEntryBase* const child = place->get();
    if (!child || child->mParent != this || child->mPositions != 1) continue;
    child->mPlace = place;
    child->mIsPlaced = true;
  }
}

bool HierarchyEntryBase::KnowsPlace() const {
  if (mParent->mHandedOut) return false;
  if (!mIsPlaced && mPositions == 1) mParent->LearnPlaces();
  return mIsPlaced;
}

}  // namespace vek::hierarchyview
