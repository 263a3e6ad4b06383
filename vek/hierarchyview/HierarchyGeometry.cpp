// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyGeometry.h"

#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TraverseSteps.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/hierarchyview/UniformRows.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;

namespace {

// As in the plain walk, but an entry mostly knows its neighbours, and where all rows have one
// height no text is measured for it.
struct HintedRules {
  explicit HintedRules(HierarchyGeometry const& inGeometry, TreeControlBase* inControl)
      : geometry(inGeometry), control(inControl), rows(UniformRows::Of(inGeometry)) {}

  HierarchyEntryBase* GetRoot() const { return control->GetRootEntry(); }
  float GetHeight(HierarchyEntryBase const* inEntry) const {
    return rows ? rows->GetHeight(inEntry) : geometry.EntryWidthHeight(inEntry).y;
  }
  int GetLevel(HierarchyEntryBase const* inEntry) const { return geometry.EntryLevel(inEntry); }
  static HierarchyEntryBase* GetNext(HierarchyEntryBase const* inEntry) {
    return inEntry->GetNextSibling();
  }
  static HierarchyEntryBase* GetPrevious(HierarchyEntryBase const* inEntry) {
    return inEntry->GetPreviousSibling();
  }

  HierarchyGeometry const& geometry;
  TreeControlBase* control;
  std::optional<UniformRows> rows;
};

}  // namespace

HierarchyGeometry::TraverseEntry::TraverseEntry(HierarchyGeometry* inGeometry,
                                                HierarchyEntryBase* inEntry, bool inDeep,
                                                PointT<float> const& inCookie)
    : mGeometry(inGeometry),
      mEntry(inEntry),
      mDeep(inDeep),
      mCookie(inCookie),
      mExactY(inCookie.y) {}

void HierarchyGeometry::TraverseEntry::MoveBy(float inHeight) {
  if (static_cast<float>(mExactY) != mCookie.y) mExactY = mCookie.y;
  mExactY += inHeight;
  mCookie.y = static_cast<float>(mExactY);
}

HierarchyGeometry::iterator::iterator()
    : iterator(TraverseEntry(nullptr, nullptr, false, PointT<float>())) {}

HierarchyGeometry::iterator::iterator(TraverseEntry const& inTraverse)
    : mTraverse(new TraverseEntry(inTraverse)) {}

HierarchyGeometry::iterator::iterator(iterator const& inOther) : iterator(*inOther.mTraverse) {}

HierarchyGeometry::iterator& HierarchyGeometry::iterator::operator=(iterator const& inOther) {
  *mTraverse = *inOther.mTraverse;
  return *this;
}

HierarchyGeometry::iterator::~iterator() = default;

bool HierarchyGeometry::iterator::operator==(iterator const& inOther) const {
  return mTraverse->mEntry == inOther.mTraverse->mEntry;
}

HierarchyEntryBase*& HierarchyGeometry::iterator::operator*() const {
  return mTraverse->mEntry;
}

HierarchyGeometry::iterator& HierarchyGeometry::iterator::operator++() {
  mTraverse->mGeometry->NextEntry(mTraverse.get(), false);
  return *this;
}

HierarchyGeometry::iterator HierarchyGeometry::iterator::operator++(int) {
  iterator old(*this);
  ++*this;
  return old;
}

HierarchyGeometry::iterator& HierarchyGeometry::iterator::operator--() {
  mTraverse->mGeometry->PreviousEntry(mTraverse.get());
  return *this;
}

HierarchyGeometry::iterator HierarchyGeometry::iterator::operator--(int) {
  iterator old(*this);
  --*this;
  return old;
}

HierarchyEntryBase*& HierarchyGeometry::reverse_iterator::operator*() const {
  mShown = mBase;
  return *--mShown;
}

HierarchyGeometry::reverse_iterator& HierarchyGeometry::reverse_iterator::operator++() {
  --mBase;
  return *this;
}

HierarchyGeometry::reverse_iterator HierarchyGeometry::reverse_iterator::operator++(int) {
  reverse_iterator old(*this);
  ++*this;
  return old;
}

HierarchyGeometry::HierarchyGeometry(TreeControlBase* inTreeControl, float inIndent)
    : mTreeControl(inTreeControl), mIndent(inIndent) {}

HierarchyGeometry::~HierarchyGeometry() = default;

unsigned short HierarchyGeometry::EntryLevel(HierarchyEntryBase const* inEntry) const {
  unsigned int level = 0;
  for (; inEntry; inEntry = inEntry->GetParent())
    ++level;
  HierarchyEntryBase const* const root = mTreeControl->GetRootEntry();
  HierarchyEntryBase const* ancestor = root ? root->GetParent() : nullptr;
  for (; ancestor; ancestor = ancestor->GetParent())
    --level;
  return static_cast<unsigned short>(level);
}

HierarchyGeometry::iterator HierarchyGeometry::begin() {
  return iterator(TraverseEntry(this, mTreeControl->GetRootEntry(), false, PointT<float>()));
}

HierarchyGeometry::iterator HierarchyGeometry::end() {
  TraverseEntry traverse(this, mTreeControl->GetRootEntry(), false, PointT<float>());
  NextEntry(&traverse, true);
  return iterator(traverse);
}

HierarchyGeometry::iterator HierarchyGeometry::beginDeep() {
  return iterator(TraverseEntry(this, mTreeControl->GetRootEntry(), true, PointT<float>()));
}

HierarchyGeometry::iterator HierarchyGeometry::endDeep() {
  TraverseEntry traverse(this, mTreeControl->GetRootEntry(), true, PointT<float>());
  NextEntry(&traverse, true);
  return iterator(traverse);
}

HierarchyGeometry::reverse_iterator HierarchyGeometry::rbegin() {
  return reverse_iterator(end());
}

HierarchyGeometry::reverse_iterator HierarchyGeometry::rend() {
  return reverse_iterator(begin());
}

RectT<float> HierarchyGeometry::Area() {
  if (const std::optional<RowIndex> index = RowIndex::Of(*this)) {
    if (const std::optional<RectT<float>> area = index->GetArea()) return *area;
  }
  RectT<float> area;
  for (RowWalk row(*this); !row.AtEnd(); row.Next())
    area = area.Join(row.GetArea());
  return area;
}

RectT<float> HierarchyGeometry::EntryArea(iterator const& inIterator) const {
  const TraverseEntry& traverse = *inIterator.mTraverse;
  const PointT<float> size = EntryWidthHeight(traverse.mEntry);
  return RectT<float>(traverse.mCookie.x, traverse.mCookie.y, size.x, size.y);
}

RectT<float> HierarchyGeometry::GetRowRect(iterator const& inIterator) {
  return EntryArea(inIterator);
}

HierarchyGeometry::iterator HierarchyGeometry::FindEntry(PointT<float> const& inPoint) {
  if (const std::optional<RowIndex> index = RowIndex::Of(*this)) {
    const RowIndex::Row row = index->FindAt(inPoint.y);
    return row < index->GetCount() ? index->GetIterator(row) : end();
  }
  for (RowWalk row(*this); !row.AtEnd(); row.Next()) {
    const float height = row.GetHeight();
    if (height > 0 && row.GetTop() + height >= inPoint.y) return row.GetIterator();
  }
  return end();
}

PointT<float> HierarchyGeometry::GetTraverseCookie(iterator const& inIterator) {
  return inIterator.mTraverse->mCookie;
}

HierarchyGeometry::TraverseEntry const& HierarchyGeometry::GetTraverse(iterator const& inIterator) {
  return *inIterator.mTraverse;
}

void HierarchyGeometry::NextEntry(TraverseEntry* ioTraverse, bool inSkipChildren) const {
  StepForward(HintedRules(*this, mTreeControl), *ioTraverse, mIndent, inSkipChildren);
}

void HierarchyGeometry::PreviousEntry(TraverseEntry* ioTraverse) const {
  StepBack(HintedRules(*this, mTreeControl), *ioTraverse, mIndent);
}

}  // namespace vek::hierarchyview
