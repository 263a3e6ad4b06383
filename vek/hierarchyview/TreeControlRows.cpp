// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The part of the tree control that knows single rows: where they lie, which has the focus and
// which are selected.

#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

namespace {

constexpr float kFocusMargin = 1.0f;  // units

}  // namespace

HierarchyGeometry::iterator TreeControlBase::FindRowAt(const Point& inDataPoint) {
  if (!HasRows()) return HierarchyGeometry::iterator();
  HierarchyGeometry::iterator row = FindEntryInCache(inDataPoint);
  if (row == mGeometry->begin()) row = mGeometry->FindEntry(inDataPoint);
  return row == mGeometry->end() ? HierarchyGeometry::iterator() : row;
}

std::auto_ptr<TreeRowGeometry> TreeControlBase::GetEntryGeometry(
    HierarchyGeometry::iterator const& inRow) {
  return mRowGeometryFactory->ServeRowGeometry(*inRow, mGeometry->EntryArea(inRow).Origin());
}

TreeControlBase::Rect TreeControlBase::GetHighlightRect(HierarchyGeometry::iterator const& inRow) {
  return GetEntryGeometry(inRow)->GetHighlightRect();
}

TreeControlBase::Rect TreeControlBase::GetHighlightRect(HierarchyEntryBase const* inEntry) {
  const HierarchyGeometry::iterator row = FindRow(inEntry);
  return *row ? GetHighlightRect(row) : Rect();
}

TreeControlBase::Rect TreeControlBase::GetHighlightRect(HierarchyEntryBase const* inEntry,
                                                        float inTop) {
  return mRowGeometryFactory->ServeRowGeometry(inEntry, Point(0, inTop))->GetHighlightRect();
}

void TreeControlBase::UpdateNodeArea(HierarchyEntryBase const* inEntry) {
  const HierarchyGeometry::iterator row = FindRow(inEntry);
  if (*row) Invalidate(GetEntryGeometry(row)->GetRowRect());
}

// An iterator on null where the entry is no row at present.
HierarchyGeometry::iterator TreeControlBase::FindRow(HierarchyEntryBase const* inEntry) const {
  if (!inEntry || !HasRows()) return HierarchyGeometry::iterator();
  if (const std::optional<RowIndex> index = RowIndex::Of(*mGeometry)) {
    const std::optional<RowIndex::Row> row = index->Find(inEntry);
    return row ? index->GetIterator(*row) : HierarchyGeometry::iterator();
  }
  for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next()) {
    if (row.GetEntry() == inEntry) return row.GetIterator();
  }
  return HierarchyGeometry::iterator();
}

// An iterator on null behind the last row.
HierarchyGeometry::iterator TreeControlBase::GetRowAt(int inNumber) const {
  if (const std::optional<RowIndex> index = RowIndex::Of(*mGeometry)) {
    const auto number = static_cast<RowIndex::Row>(inNumber);
    return number < index->GetCount() ? index->GetIterator(number) : HierarchyGeometry::iterator();
  }
  RowWalk row(*mGeometry);
  for (int left = inNumber; left > 0 && !row.AtEnd(); --left)
    row.Next();
  return row.AtEnd() ? HierarchyGeometry::iterator() : row.GetIterator();
}

void TreeControlBase::SetFocusItem(HierarchyEntryBase* inEntry, bool inInvalidate) {
  const auto old = HoldEntry(mFocusItem);
  const auto held = HoldEntry(inEntry);
  if (mFocusItem && inInvalidate) {
    HierarchyEntryBase* const leaving = mFocusItem;
    UpdateNodeArea(leaving);
    leaving->HasMarquee(false);
  }
  mFocusItem = inEntry;
  mHeldFocusItem = held;
  if (inEntry) {
    inEntry->HasMarquee(true);
    const Rect area = GetHighlightRect(inEntry);
    Invalidate(Rect(area.x - kFocusMargin, area.y - kFocusMargin, area.width + 2 * kFocusMargin,
                    area.height + 2 * kFocusMargin));
  }
  UpdateNodeArea(mFocusItem);
}

void TreeControlBase::RevealIfNotVisible(HierarchyEntryBase const* inEntry) const {
  // A row's rectangle is asked for without changing anything.
  Reveal(const_cast<TreeControlBase*>(this)->GetHighlightRect(inEntry));
}

bool TreeControlBase::IsSelected(HierarchyEntryBase const* inEntry) const {
  return inEntry->Selected(GetSelectionManager());
}

void TreeControlBase::SelectionChanged() {}

void TreeControlBase::SelectEntry(HierarchyEntryBase* inEntry, bool inExtend) {
  DoSelectEntry(inEntry, inExtend);
}

void TreeControlBase::DeselectAll() {
  SetFocusItem(nullptr, true);
  DoDeselectAll();
}

void TreeControlBase::ToggleEntrySelectionState(EntryList& ioEntries) {
  DoToggleEntrySelectionState(ioEntries);
  if (mFocusItem && !IsSelected(mFocusItem)) SetFocusItem(nullptr, true);
}

bool TreeControlBase::SelectedHasChildrenExpand() {
  return SetOpenWhereSelected(true);
}

bool TreeControlBase::SelectedHasChildrenCollapse() {
  return SetOpenWhereSelected(false);
}

bool TreeControlBase::SetOpenWhereSelected(bool inOpen) {
  if (!mGeometry) return false;
  const ENodeState toChange = inOpen ? kNodeCollapsed : kNodeExpanded;
  bool any = false;
  for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next()) {
    HierarchyEntryBase* const entry = row.GetEntry();
    if (!IsSelected(entry) || entry->GetNodeState() != toChange) continue;
    if (!(inOpen ? CanExpandNode(entry) : CanCollapseNode(entry))) continue;
    inOpen ? ExpandNode(entry, true) : CollapseNode(entry, true);
    any = true;
  }
  return any;
}

}  // namespace vek::hierarchyview
