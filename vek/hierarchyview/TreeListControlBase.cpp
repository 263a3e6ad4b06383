// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeListControlBase.h"

#include <algorithm>
#include <boost/numeric/conversion/cast.hpp>
#include <cmath>
#include <iterator>

#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace vek::hierarchyview {

using Point = trackview::Point;
using Rect = trackview::Rect;
using lumui::ui::AccessibleChange;

namespace {

// Around the widest text, when a column is made to fit it.
constexpr float kTextEnd = 1.0f;
constexpr float kOtherColumnStart = 4.0f;
constexpr float kColumnEnd = 8.0f;
// Around the text of a cell that is hit.
constexpr float kCutOffEnd = 5.0f;
constexpr float kCellMargin = 2.0f;

}  // namespace

TreeListControlBase::TreeListControlBase(trackview::TrackView* inTrackView, bool inHideRoot,
                                         unsigned short inIndent, bool inIsSingleSelect,
                                         bool inAllowsDragOut)
    : TreeControlBase(inTrackView, inHideRoot, inIndent, inIsSingleSelect, inAllowsDragOut),
      mColumnNoter(new Noter) {}

TreeListControlBase::~TreeListControlBase() = default;

HierarchyColumnInfo* TreeListControlBase::FindColumn(unsigned short inColumn) {
  return const_cast<HierarchyColumnInfo*>(std::as_const(*this).FindColumn(inColumn));
}

HierarchyColumnInfo const* TreeListControlBase::FindColumn(unsigned short inColumn) const {
  return inColumn < mColumns.size() ? &*std::next(mColumns.begin(), inColumn) : nullptr;
}

float TreeListControlBase::WidthOf(std::list<HierarchyColumnInfo>::const_iterator inColumn) const {
  return inColumn->GetColumnWidth() + (inColumn == mColumns.begin() ? mFirstColumnExtra : 0.0f);
}

// False if a listener has taken this control away: then the caller touches nothing any more.
bool TreeListControlBase::Tell(eChangeType inType, unsigned short inColumn) {
  const boost::shared_ptr<Noter> noter = mColumnNoter;
  noter->BroadcastMessage(ColumnStateChangeMessage(inType, inColumn));
  return noter.use_count() > 1;
}

void TreeListControlBase::InsertColumn(unsigned int const& inAttribute, float inWidth,
                                       float inMinWidth, unsigned short const* inDescriptor,
                                       boost::shared_ptr<CompareFunction> inCompare) {
  const auto column = boost::numeric_cast<unsigned short>(mColumns.size());
  mColumns.emplace_back(inAttribute, inWidth, inMinWidth,
                        inDescriptor ? lumcore::UTF16String(inDescriptor) : lumcore::UTF16String(),
                        std::move(inCompare));
  if (Tell(kColumnInserted, column)) ResizeHierarchy();
}

void TreeListControlBase::RemoveColumn(unsigned short inColumn) {
  if (inColumn >= mColumns.size()) return;
  // Below 0 it goes on at the upper end, where there is no column.
  if (mSortColumn == inColumn) --mSortColumn;
  mColumns.erase(std::next(mColumns.begin(), inColumn));
  if (Tell(kColumnRemoved, inColumn)) ResizeHierarchy();
}

unsigned short TreeListControlBase::GetNumberOfColumns() const {
  return static_cast<unsigned short>(mColumns.size());
}

void TreeListControlBase::SetColumnWidth(unsigned short inColumn, float inWidth) {
  HierarchyColumnInfo* const column = FindColumn(inColumn);
  if (!column) return;
  column->SetColumnWidth(inWidth - (inColumn == 0 ? mFirstColumnExtra : 0.0f));
  if (Tell(kColumnWidthChanged, inColumn)) ResizeHierarchy();
}

float TreeListControlBase::GetColumnWidth(unsigned short inColumn) const {
  return inColumn < mColumns.size() ? WidthOf(std::next(mColumns.begin(), inColumn)) : 0.0f;
}

float TreeListControlBase::GetColumnStartLoc(unsigned short inColumn) const {
  if (inColumn >= mColumns.size()) return 0;
  float start = 0;
  const auto end = std::next(mColumns.begin(), inColumn);
  for (auto column = mColumns.begin(); column != end; ++column)
    start += WidthOf(column);
  return start;
}

float TreeListControlBase::GetMinColumnWidth(unsigned short inColumn) const {
  HierarchyColumnInfo const* const column = FindColumn(inColumn);
  return column ? column->GetMinColumnWidth() : 0.0f;
}

float TreeListControlBase::GetTotalColumnWidth() const {
  float width = 0;
  for (const HierarchyColumnInfo& column : mColumns)
    width += column.GetColumnWidth();
  return width + mFirstColumnExtra;
}

void TreeListControlBase::SetSortColumn(unsigned short inColumn) {
  mSortColumn = inColumn;
  SortRows();
}

void TreeListControlBase::SortIsAscending(bool inAscending) {
  mSortAscending = inAscending;
  SortRows();
}

void TreeListControlBase::SortRows() {
  HierarchyColumnInfo const* const column = FindColumn(mSortColumn);
  if (column && GetRootEntry()) {
    boost::shared_ptr<CompareFunction> compare = column->GetCompareFxn();
    if (!compare) compare = GetDefaultCompareFxn();
    GetRootEntry()->SortChildren(column->GetAttributeID(), mSortAscending, compare);
  }
  InvalidateNodeCache();
  if (!Tell(kColumnSortChanged, mSortColumn)) return;
  trackview::TrackView& view = *GetTrackView();
  view.GetPlatformView().InvalidateDataRect(view.DataArea());
  AnnounceRow(AccessibleChange::kItems, nullptr);
}

void TreeListControlBase::GetColumnDescriptor(unsigned short inColumn,
                                              lumcore::UTF16String& outDescriptor) const {
  outDescriptor.clear();
  if (HierarchyColumnInfo const* const column = FindColumn(inColumn))
    column->GetColumnDescriptor(outDescriptor);
}

bool TreeListControlBase::HasColumnForAttr(unsigned int const& inAttribute,
                                           unsigned short& outColumn) const {
  const auto found = std::find_if(mColumns.begin(), mColumns.end(), [&](const auto& inColumn) {
    return inColumn.GetAttributeID() == inAttribute;
  });
  if (found == mColumns.end()) return false;
  outColumn = static_cast<unsigned short>(std::distance(mColumns.begin(), found));
  return true;
}

unsigned int TreeListControlBase::GetColumnAttr(unsigned short inColumn) const {
  HierarchyColumnInfo const* const column = FindColumn(inColumn);
  return column ? column->GetAttributeID() : 0;
}

void TreeListControlBase::MoveColumn(unsigned short inFrom, unsigned short inTo) {
  if (inFrom >= mColumns.size() || inTo > mColumns.size()) return;
  const auto from = std::next(mColumns.begin(), inFrom);
  mColumns.insert(std::next(mColumns.begin(), inTo), *from);
  mColumns.erase(from);
  if (Tell(kColumnMoved, inFrom)) AnnounceRow(AccessibleChange::kItems, nullptr);
}

bool TreeListControlBase::GetColumnHitByPoint(Point const& inDataPoint,
                                              unsigned short& outColumn) const {
  float start = 0;
  unsigned short index = 0;
  for (auto column = mColumns.begin(); column != mColumns.end(); ++column, ++index) {
    const float end = start + WidthOf(column);
    if (start <= inDataPoint.x && inDataPoint.x <= end) {
      outColumn = index;
      return true;
    }
    start = end;
  }
  return false;
}

// The widest of the rows that show, with what stands before the text; 0 without rows.
float TreeListControlBase::GetWidestCell(unsigned short inColumn) {
  HierarchyGeometry* const geometry = GetGeometry();
  if (!geometry || !GetRootEntry()) return 0;
  const unsigned int attribute = GetColumnAttr(inColumn);
  const lumui::drawbot::FontP font = GetFont();
  float widest = 0;
  RowWalk row(*geometry);
  if (GetHideRoot()) row.Next();
  for (lumcore::UTF16String text; !row.AtEnd(); row.Next()) {
    text.clear();
    row.GetEntry()->GetCellText(attribute, text);
    float width = font->MeasureWidthOnce(text) + kTextEnd;
    width += inColumn == 0 ? GetEntryGeometry(row.GetIterator())->GetIconRect().Right()
                           : kOtherColumnStart;
    widest = std::max(widest, width);
  }
  return widest;
}

void TreeListControlBase::SizeColumnToMaxStringLength(unsigned short inColumn) {
  if (inColumn >= mColumns.size()) return;
  const float width = std::max(GetWidestCell(inColumn) + kColumnEnd, GetMinColumnWidth(inColumn));
  SetColumnWidth(inColumn, std::round(width + (inColumn == 0 ? mFirstColumnExtra : 0.0f)));
}

messaging::Broadcaster<ColumnStateChangeMessage const>*
TreeListControlBase::GetColumnStateChangedNoter() {
  return mColumnNoter.get();
}

Point TreeListControlBase::GetTopLeftOfDisplayedArea() {
  return GetTrackView()->GetPlatformView().DataPos();
}

Rect TreeListControlBase::GetTextBoundingRect(HierarchyGeometry::iterator const& inRow,
                                              unsigned short inColumn) {
  const std::auto_ptr<TreeRowGeometry> row = GetEntryGeometry(inRow);
  return GetTextBoundingRect(row.get(), *inRow, inColumn);
}

Rect TreeListControlBase::GetTextBoundingRect(TreeRowGeometry const* inRow,
                                              HierarchyEntryBase const* inEntry,
                                              unsigned short inColumn) {
  const Rect row = inRow->GetRowRect();
  if (inColumn >= mColumns.size()) return row;
  lumcore::UTF16String text;
  inEntry->GetCellText(GetColumnAttr(inColumn), text);
  const float textWidth = GetFont()->MeasureWidth(text);
  const float columnWidth = GetColumnWidth(inColumn);
  const float width = columnWidth < textWidth ? columnWidth - kCutOffEnd : textWidth;
  return Rect(GetColumnStartLoc(inColumn) - kCellMargin, row.y, width + 2 * kCellMargin,
              row.height);
}

std::auto_ptr<HierarchyGeometry> TreeListControlBase::CreateGeometry() {
  return std::auto_ptr<HierarchyGeometry>(
      new TreeListGeometry(this, TreeListGeometry::kIndent, GetHideRoot()));
}

unsigned int TreeListControlBase::GetTypeAheadID() const {
  return GetColumnAttr(0);
}

}  // namespace vek::hierarchyview
