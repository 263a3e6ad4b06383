// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyEntryBase.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <vector>

#include "lumcore/debug/Contract.h"
#include "vek/hierarchyview/CompareCellTexts.h"
#include "vek/hierarchyview/RowBranch.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/TreeListComparator.h"

namespace vek::hierarchyview {

namespace {

std::uint64_t gShapeVersion = 0;

void ShapeChanged() {
  ++gShapeVersion;
}

// Lets the children of dying entries go one after the other, each when the ones before it are gone
// altogether: a child that dies in here leaves its own children to the loop that runs.
void LetGo(HierarchyEntryBase::List& ioEntries) {
  thread_local HierarchyEntryBase::List* waiting = nullptr;
  if (waiting) {
    waiting->splice(waiting->begin(), ioEntries);
    return;
  }
  waiting = &ioEntries;
  while (!ioEntries.empty()) {
    HierarchyEntryBase::List first;
    first.splice(first.end(), ioEntries, ioEntries.begin());
  }
  waiting = nullptr;
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
  List orphans;
  orphans.swap(mChildren);
  LeavePositions(orphans);
  for (const auto& child : orphans) {
    if (child && child->mParent == this) child->mParent = nullptr;
  }
  LetGo(orphans);
}

ENodeState HierarchyEntryBase::GetNodeState() {
  return mState;
}

void HierarchyEntryBase::SetNodeState(ENodeState inState) {
  if (mState == inState) return;
  mState = inState;
  RowIndex::RowsChanged(*this);
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
    RowIndex::ChildAppended(*this, *inChild);
    return;
  }
  EnterPosition(mChildren.insert(mChildren.begin(), inChild));
  RowIndex::OrderChanged(*this);
  if (inResort) ResortChildren();
}

void HierarchyEntryBase::SetParent(HierarchyEntryBase* inParent) {
  LosePlace();
  mParent = inParent;
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
  if (*place) RowIndex::ChildLeaves(*this, **place);
  removed.splice(removed.end(), mChildren, place);
  LeavePositions(removed);
}

void HierarchyEntryBase::RemoveAllChildren() {
  ShapeChanged();
  List removed;
  removed.swap(mChildren);
  RowIndex::OrderChanged(*this);
  LeavePositions(removed);
}

HierarchyEntryBase::List::iterator HierarchyEntryBase::child_begin() {
  HandOut();
  ShapeChanged();
  return mChildren.begin();
}

HierarchyEntryBase::List::iterator HierarchyEntryBase::child_end() {
  HandOut();
  ShapeChanged();
  return mChildren.end();
}

void HierarchyEntryBase::SortList(TreeListComparator const& inComparator) {
  ShapeChanged();
  RowIndex::OrderChanged(*this);
  const auto& compare = inComparator.GetCompareFunction();
  if (compare && compare->target<CompareCellTexts>() && SortByTexts(inComparator)) return;
  // By reference: a merge would copy the comparator, and with it a counted pointer, many times.
  mChildren.sort(std::cref(inComparator));
}

// As the function would, with each text read once. False for a list with a null in it.
bool HierarchyEntryBase::SortByTexts(TreeListComparator const& inComparator) {
  struct Key {
    lumcore::UTF16String text;
    List::iterator place;
  };
  std::vector<Key> keys;
  keys.reserve(mChildren.size());
  for (auto place = mChildren.begin(); place != mChildren.end(); ++place) {
    if (!*place) return false;
    keys.push_back({lumcore::UTF16String(), place});
    (*place)->GetCellText(inComparator.GetAttribute(), keys.back().text);
  }
  std::vector<Key const*> order;
  order.reserve(keys.size());
  for (const Key& key : keys)
    order.push_back(&key);
  const bool greaterFirst = inComparator.IsAscending();
  std::stable_sort(order.begin(), order.end(), [greaterFirst](Key const* inA, Key const* inB) {
    return greaterFirst ? inA->text > inB->text : inB->text > inA->text;
  });
  for (Key const* const key : order)
    mChildren.splice(mChildren.end(), mChildren, key->place);
  return true;
}

std::uint64_t HierarchyEntryBase::GetShapeVersion() {
  return gShapeVersion;
}

void HierarchyEntryBase::EnterPosition(List::iterator inPlace) {
  HierarchyEntryBase* const child = inPlace->get();
  if (!child) return;  // a null can come in by a copied list
  child->LosePlace();
  ++child->mPositions;
  child->mPlace = inPlace;
  child->mIsPlaced = child->mPositions == 1 && child->mParent == this && !mHandedOut;
}

// What counts on the place reads it anew, as long as the way to it is known.
void HierarchyEntryBase::LosePlace() {
  if (!mIsPlaced) return;
  RowIndex::OrderChanged(*mParent);
  mIsPlaced = false;
}

void HierarchyEntryBase::HandOut() {
  if (mHandedOut) return;
  mHandedOut = true;
  RowIndex::OrderChanged(*this);
  for (const auto& child : mChildren) {
    if (child && child->mParent == this) child->mIsPlaced = false;
  }
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
  if (!mIsPlaced && mParent->mHandedOut) return false;
  if (!mIsPlaced && mPositions == 1) mParent->LearnPlaces();
  return mIsPlaced;
}

}  // namespace vek::hierarchyview
