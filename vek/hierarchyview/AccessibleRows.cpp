// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/AccessibleRows.h"

#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/MultiColumnView.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/selection/Node.h"

namespace vek::hierarchyview {

using lumui::ui::AccessibleAction;
using lumui::ui::AccessibleChange;
using lumui::ui::AccessibleItem;
using lumui::ui::AccessibleRole;
using trackview::Point;
using trackview::Rect;
using ID = trackview::AccessibleOverlay::ID;

namespace {

// An id is the serial number of the row's entry in the upper half; the lower half is 0 for the row
// and counts its cells from 1.
constexpr unsigned kSerialShift = 32;

ID NameRow(HierarchyEntryBase const* inEntry) {
  return inEntry ? ID{inEntry->GetSerial()} << kSerialShift : trackview::AccessibleOverlay::kRoot;
}

std::uint32_t CellOf(ID inItem) {
  return static_cast<std::uint32_t>(inItem);
}

ID RowOf(ID inItem) {
  return inItem - CellOf(inItem);
}

lumcore::UTF16String GetText(HierarchyEntryBase const& inEntry, unsigned int inAttribute) {
  lumcore::UTF16String text;
  inEntry.GetCellText(inAttribute, text);
  return text;
}

bool IsSelectable(HierarchyEntryBase const& inEntry) {
  selection::Node const* node = inEntry.GetDataAsSelNode();
  if (!node) node = dynamic_cast<selection::Node const*>(&inEntry);
  return node && node->Selectable();
}

}  // namespace

AccessibleRows::~AccessibleRows() = default;

// Rows are looked for without changing anything, by calls that hosts have as non-const ones.
TreeControlBase& AccessibleRows::GetControl() const {
  return const_cast<TreeControlBase&>(static_cast<TreeControlBase const&>(*this));
}

MultiColumnView const* AccessibleRows::GetColumns() const {
  return dynamic_cast<MultiColumnView const*>(&GetControl());
}

bool AccessibleRows::IsHidden(HierarchyEntryBase const* inEntry) const {
  return inEntry && GetControl().GetHideRoot() && !inEntry->GetParent();
}

int AccessibleRows::CountHidden() const {
  return IsHidden(GetControl().GetRootEntry()) ? 1 : 0;
}

// Those above the entry, -1 if it is none; all of them for null.
int AccessibleRows::CountRowsTo(HierarchyEntryBase const* inEntry) const {
  const TreeControlBase& control = GetControl();
  if (!control.HasRows()) return inEntry ? -1 : 0;
  if (const std::optional<RowIndex> index = RowIndex::Of(*control.GetGeometry())) {
    const std::optional<RowIndex::Row> row = inEntry ? index->Find(inEntry) : index->GetCount();
    return row ? static_cast<int>(*row) - CountHidden() : -1;
  }
  int count = -CountHidden();
  for (RowWalk row(*control.GetGeometry()); !row.AtEnd(); row.Next(), ++count) {
    if (row.GetEntry() == inEntry) return count;
  }
  return inEntry ? -1 : count;
}

HierarchyGeometry::iterator AccessibleRows::FindRow(ID inItem) const {
  const auto serial = static_cast<std::uint32_t>(inItem >> kSerialShift);
  HierarchyEntryBase const* const entry = HierarchyEntryBase::FindSerial(serial);
  return IsHidden(entry) ? HierarchyGeometry::iterator() : GetControl().FindRow(entry);
}

int AccessibleRows::GetAccessibleChildCount(ID inParent) const {
  if (inParent == kRoot) return CountRowsTo(nullptr);
  MultiColumnView const* const columns = GetColumns();
  const bool hasCells = columns && CellOf(inParent) == 0 && *FindRow(inParent);
  return hasCells ? columns->GetNumberOfColumns() : 0;
}

ID AccessibleRows::GetAccessibleChild(ID inParent, int inIndex) const {
  if (inParent != kRoot) return inParent + static_cast<ID>(inIndex) + 1;
  const TreeControlBase& control = GetControl();
  return control.HasRows() ? NameRow(*control.GetRowAt(inIndex + CountHidden())) : kRoot;
}

ID AccessibleRows::GetAccessibleParent(ID inItem) const {
  return CellOf(inItem) == 0 ? kRoot : RowOf(inItem);
}

int AccessibleRows::GetAccessibleIndex(ID inItem) const {
  const HierarchyGeometry::iterator row = FindRow(inItem);
  if (!*row) return -1;
  const std::uint32_t cell = CellOf(inItem);
  if (cell == 0) return CountRowsTo(*row);
  MultiColumnView const* const columns = GetColumns();
  return columns && cell <= columns->GetNumberOfColumns() ? static_cast<int>(cell - 1) : -1;
}

bool AccessibleRows::DescribeAccessible(ID inItem, AccessibleItem& outItem) const {
  const HierarchyGeometry::iterator row = FindRow(inItem);
  if (!*row) return false;
  const auto held = HoldEntry(*row);
  const std::uint32_t cell = CellOf(inItem);
  if (cell == 0) {
    DescribeRow(row, outItem);
    return true;
  }
  if (!GetColumns() || cell > GetColumns()->GetNumberOfColumns()) return false;
  DescribeCell(row, static_cast<unsigned short>(cell - 1), outItem);
  return true;
}

// As far as the row and its text go, in the height of the row.
Rect AccessibleRows::GetRowRect(HierarchyGeometry::iterator const& inRow) const {
  TreeControlBase& control = GetControl();
  const Rect row = control.GetGeometry()->EntryArea(inRow);
  const Rect area = row.Join(control.GetHighlightRect(inRow));
  return Rect(area.x, row.y, area.width, row.height);
}

void AccessibleRows::DescribeRow(HierarchyGeometry::iterator const& inRow,
                                 AccessibleItem& outItem) const {
  using namespace lumui::ui;
  const TreeControlBase& control = GetControl();
  HierarchyEntryBase& entry = **inRow;
  outItem.role = AccessibleRole::kTreeItem;
  outItem.rect = GetRowRect(inRow);
  outItem.level = control.GetGeometry()->EntryLevel(&entry);
  outItem.name = GetText(entry, GetColumns() ? GetColumns()->GetColumnAttr(0) : 0);
  outItem.states = kAccessibleFocusable;
  outItem.actions = kAccessibleShow;
  if (&entry == control.GetFocusItem()) outItem.states |= kAccessibleFocused;
  if (control.IsSelected(&entry)) outItem.states |= kAccessibleSelected;
  if (IsSelectable(entry)) {
    outItem.states |= kAccessibleSelectable;
    outItem.actions |= kAccessibleSelect;
  }
  const bool canExpand = control.CanExpandNode(&entry);
  const bool canCollapse = control.CanCollapseNode(&entry);
  if (!canExpand && !canCollapse) return;
  outItem.states |= kAccessibleExpandable;
  if (entry.GetNodeState() == kNodeCollapsed) {
    if (canExpand) outItem.actions |= kAccessibleExpand;
  } else {
    outItem.states |= kAccessibleExpanded;
    if (canCollapse) outItem.actions |= kAccessibleCollapse;
  }
}

void AccessibleRows::DescribeCell(HierarchyGeometry::iterator const& inRow, unsigned short inColumn,
                                  AccessibleItem& outItem) const {
  MultiColumnView const& columns = *GetColumns();
  const Rect row = GetControl().GetGeometry()->EntryArea(inRow);
  outItem.role = AccessibleRole::kCell;
  outItem.rect = Rect(columns.GetColumnStartLoc(inColumn), row.y, columns.GetColumnWidth(inColumn),
                      row.height);
  outItem.name = GetText(**inRow, columns.GetColumnAttr(inColumn));
  columns.GetColumnDescriptor(inColumn, outItem.description);
}

ID AccessibleRows::GetAccessibleAt(const Point& inDataPoint) const {
  const TreeControlBase& control = GetControl();
  if (!control.HasRows()) return kRoot;
  HierarchyGeometry& geometry = *control.GetGeometry();
  HierarchyGeometry::iterator row = geometry.FindEntry(inDataPoint);
  if (row == geometry.end()) return kRoot;
  // A point on the line between two rows finds the upper one.
  if (geometry.EntryArea(row).Bottom() <= inDataPoint.y && ++row == geometry.end()) return kRoot;
  const Rect area = geometry.EntryArea(row);
  if (inDataPoint.y < area.y || area.Bottom() <= inDataPoint.y) return kRoot;
  unsigned short column = 0;
  if (GetColumns() && GetColumns()->GetColumnHitByPoint(inDataPoint, column))
    return NameRow(*row) + column + 1;
  return GetRowRect(row).Contains(inDataPoint) ? NameRow(*row) : kRoot;
}

ID AccessibleRows::GetAccessibleFocus() const {
  HierarchyEntryBase const* const focusItem = GetControl().GetFocusItem();
  return IsHidden(focusItem) ? kRoot : NameRow(*GetControl().FindRow(focusItem));
}

bool AccessibleRows::PerformAccessible(ID inItem, AccessibleAction inAction) {
  AccessibleItem item;
  if (!DescribeAccessible(inItem, item) || (item.actions & inAction) == 0) return false;
  TreeControlBase& control = GetControl();
  HierarchyEntryBase* const entry = *FindRow(inItem);
  const auto held = HoldEntry(entry);
  switch (inAction) {
    case lumui::ui::kAccessibleExpand:
      control.ExpandNode(entry, true);
      return true;
    case lumui::ui::kAccessibleCollapse:
      control.CollapseNode(entry, true);
      return true;
    case lumui::ui::kAccessibleSelect:
      control.SelectEntry(entry, false);
      return control.IsSelected(entry);
    case lumui::ui::kAccessibleShow:
      control.RevealIfNotVisible(entry);
      return true;
    default:
      return false;
  }
}

void AccessibleRows::AnnounceRow(AccessibleChange inChange,
                                 HierarchyEntryBase const* inEntry) const {
  const trackview::TrackView* const view = GetControl().GetTrackView();
  if (view) NotifyAccessible(*view, inChange, NameRow(inEntry));
}

void AccessibleRows::AnnounceSelection() const {
  AnnounceRow(AccessibleChange::kSelection, nullptr);
}

}  // namespace vek::hierarchyview
