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

// As in the plain walk, but an entry mostly knows its neighbours.
struct HintedNeighbours {
  HierarchyEntryBase* GetRoot() const { return control->GetRootEntry(); }
  static HierarchyEntryBase* GetNext(HierarchyEntryBase const* inEntry) {
    return inEntry->GetNextSibling();
  }
  static HierarchyEntryBase* GetPrevious(HierarchyEntryBase const* inEntry) {
    return inEntry->GetPreviousSibling();
  }

  TreeControlBase* control;
};

struct HintedRules : HintedNeighbours, AskedLevels {
  float GetHeight(HierarchyEntryBase const* inEntry) const {
    return geometry.EntryWidthHeight(inEntry).y;
  }
};

// Where all rows have one height no text is measured for it, and siblings are of one level.
struct UniformRules : HintedNeighbours {
  using Depth = unsigned short;

  float GetHeight(HierarchyEntryBase const* inEntry) const { return rows.GetHeight(inEntry); }
  Depth GetDepth(HierarchyEntryBase const* inEntry) const {
    return geometry.HierarchyGeometry::EntryLevel(inEntry);
  }
  static Depth GetDepthAbove(Depth inDepth) { return static_cast<Depth>(inDepth - 1); }
  Depth GetDepthBeside(HierarchyEntryBase const* inEntry, Depth inDepth,
                       HierarchyEntryBase const* inOther) const {
    return inEntry->GetParent() == inOther->GetParent() ? inDepth : GetDepth(inOther);
  }
  int GetLevel(HierarchyEntryBase const* /*inEntry*/, Depth inDepth) const {
    return rows.GetLevel(inDepth);
  }

  HierarchyGeometry const& geometry;
  UniformRows const& rows;
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
  if (UniformRows const* const rows = UniformRows::Of(*this)) {
    StepForward(UniformRules{{mTreeControl}, *this, *rows}, *ioTraverse, mIndent, inSkipChildren);
  } else {
    StepForward(HintedRules{{mTreeControl}, {*this}}, *ioTraverse, mIndent, inSkipChildren);
  }
}

void HierarchyGeometry::PreviousEntry(TraverseEntry* ioTraverse) const {
  if (UniformRows const* const rows = UniformRows::Of(*this)) {
    StepBack(UniformRules{{mTreeControl}, *this, *rows}, *ioTraverse, mIndent);
  } else {
    StepBack(HintedRules{{mTreeControl}, {*this}}, *ioTraverse, mIndent);
  }
}

}  // namespace vek::hierarchyview
