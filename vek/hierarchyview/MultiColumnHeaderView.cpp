// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/MultiColumnHeaderView.h"

#include <boost/weak_ptr.hpp>

#include "lumcore/config/Localizer.h"
#include "lumui/ui/ContextMenu.h"
#include "lumui/ui/PointerEvent.h"
#include "vek/hierarchyview/ColumnHeaderTrackers.h"
#include "vek/hierarchyview/MultiColumnView.h"
#include "vek/trackview/LUMPlatformView.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace vek::hierarchyview {

using trackview::PlatformView;
using trackview::Tracker;
using Point = trackview::Point;
using Rect = trackview::Rect;

namespace {

constexpr unsigned kHideThisID = 1;
constexpr unsigned kColumnsID = 2;
constexpr unsigned kFirstColumnID = 3;  // of the set

float GetColumnRight(MultiColumnView const& inView, unsigned short inColumn) {
  return inView.GetColumnStartLoc(inColumn) + inView.GetColumnWidth(inColumn);
}

}  // namespace

ColumnStateChangeMessage::~ColumnStateChangeMessage() = default;

MultiColumnHeaderView::MultiColumnHeaderView(trackview::TrackView* inTrackView, bool inClickable)
    : Overlay(kLayerDefault, kStateActive), mClickable(inClickable), mTrackView(inTrackView) {}

MultiColumnHeaderView::~MultiColumnHeaderView() = default;

void MultiColumnHeaderView::SetMultiColumnView(MultiColumnView* inView) {
  mMultiColumnView = inView;
  TakeColumnsWidth();
}

void MultiColumnHeaderView::ListenToMessage(ColumnStateChangeMessage const inMessage) {
  switch (inMessage.GetChangeType()) {
    case kColumnInserted:
    case kColumnWidthChanged:
    case kColumnRemoved:
      TakeColumnsWidth();
      break;
    default:
      break;
  }
}

void MultiColumnHeaderView::TakeColumnsWidth() {
  Point size = mTrackView->DataSize();
  const unsigned short count = mMultiColumnView ? mMultiColumnView->GetNumberOfColumns() : 0;
  size.x = count == 0 ? 0 : GetColumnRight(*mMultiColumnView, count - 1);
  mTrackView->ResizeDataSize(size, false);
}

void MultiColumnHeaderView::DoViewPortResized() {
  if (!mMultiColumnView) return;
  PlatformView& view = mTrackView->GetPlatformView();
  const float left = mMultiColumnView->GetTopLeftOfDisplayedArea().x;
  const Point position = view.DataPos();
  if (left != position.x || position.y != 0) view.DataPos(Point(left, 0), true);
}

Point MultiColumnHeaderView::DataViewSize() {
  float width = 0;
  const unsigned short count = mMultiColumnView ? mMultiColumnView->GetNumberOfColumns() : 0;
  for (unsigned short column = 0; column < count; ++column)
    width += mMultiColumnView->GetColumnWidth(column);
  return Point(width, 0);
}

void MultiColumnHeaderView::DataViewResized(Point const& /*inSize*/, bool /*inRedraw*/) {}

void MultiColumnHeaderView::InvalidateAll() {
  mTrackView->GetPlatformView().InvalidateDataRect(mTrackView->DataArea());
}

void MultiColumnHeaderView::SetDragFeedbackRect(Rect const& inRect) {
  mDragFeedbackRect = inRect;
  InvalidateAll();
}

void MultiColumnHeaderView::SetDragInsertionRect(Rect const& inRect) {
  mDragInsertionRect = inRect;
  InvalidateAll();
}

bool MultiColumnHeaderView::PointInResizeHandle(Point const& inDataPoint,
                                                unsigned short& outColumn) const {
  float right = 0;
  const unsigned short count = mMultiColumnView ? mMultiColumnView->GetNumberOfColumns() : 0;
  for (unsigned short column = 0; column < count; ++column) {
    right += mMultiColumnView->GetColumnWidth(column);
    if (right - kHandleLeft <= inDataPoint.x && inDataPoint.x <= right + kHandleRight) {
      outColumn = column;
      return true;
    }
    if (right > inDataPoint.x) return false;
  }
  return false;
}

bool MultiColumnHeaderView::RectContainsResizeHandle(Rect const& inRect, unsigned short& outColumn,
                                                     Rect& outHandle) const {
  float right = 0;
  const unsigned short count = mMultiColumnView ? mMultiColumnView->GetNumberOfColumns() : 0;
  for (unsigned short column = 0; column < count; ++column) {
    right += mMultiColumnView->GetColumnWidth(column);
    const bool touches = inRect.x < right + kHandleRight && right - kHandleLeft < inRect.Right();
    const bool isBehindAll = column + 1 == count && inRect.x > right;
    if (!touches && !isBehindAll) continue;
    outColumn = column;
    outHandle = Rect(right - kInsertionWidth, 0, kInsertionWidth, GetViewHeight());
    return true;
  }
  return false;
}

unsigned short MultiColumnHeaderView::GetColIdxForPoint(Point const& inDataPoint) const {
  unsigned short column = kNoColumn;
  if (mMultiColumnView && mMultiColumnView->GetColumnHitByPoint(inDataPoint, column)) return column;
  return kNoColumn;
}

Rect MultiColumnHeaderView::GetColumnHeaderRect(unsigned short inColumn) const {
  if (!mMultiColumnView) return Rect();
  return Rect(mMultiColumnView->GetColumnStartLoc(inColumn), 0,
              mMultiColumnView->GetColumnWidth(inColumn), GetViewHeight());
}

void MultiColumnHeaderView::HandleClickInColumn(unsigned short inColumn) {
  if (!mClickable || !mMultiColumnView) return;
  const boost::weak_ptr<char> alive(mAlive);
  if (inColumn != mMultiColumnView->GetSortColumn()) {
    mMultiColumnView->SetSortColumn(inColumn);
  } else {
    mMultiColumnView->SortIsAscending(!mMultiColumnView->GetSortIsAscending());
  }
  if (!alive.expired()) InvalidateAll();
}

bool MultiColumnHeaderView::DoDoubleClick(trackview::Modifiers /*inModifiers*/,
                                          const Point& inDataPoint) {
  unsigned short column = 0;
  if (!PointInResizeHandle(inDataPoint, column)) return false;
  const boost::weak_ptr<char> alive(mAlive);
  mMultiColumnView->SizeColumnToMaxStringLength(column);
  if (!alive.expired()) InvalidateAll();
  return true;
}

bool MultiColumnHeaderView::IsRightPress() const {
  const auto* const view =
      dynamic_cast<trackview::LUMPlatformView const*>(&mTrackView->GetPlatformView());
  const lumui::ui::MouseEvent* const event = view ? view->GetCurrentMouseEvent() : nullptr;
  return event && event->IsButton(lumui::ui::PointerEvent::kRightButton);
}

std::auto_ptr<Tracker> MultiColumnHeaderView::DoAcquireTracker(
    const Point& /*inDataPoint*/, bool inHover,
    trackview::TrackerDragAndDropInterface* /*inDragAndDrop*/) {
  if (mKeepsRightPressesForMenu && !inHover && IsRightPress()) return std::auto_ptr<Tracker>();
  return std::auto_ptr<Tracker>(new ColumnHeaderArrowTracker(mTrackView, this, mMultiColumnView));
}

bool MultiColumnHeaderView::DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode) {
  if (mColumnSet.empty() || !mMultiColumnView) return false;
  Point point = inLocalPoint;
  mTrackView->LocalToData(point);
  const unsigned short hit = GetColIdxForPoint(point);
  const bool canHide = hit != kNoColumn && hit >= 1;
  const ColumnSet columns = mColumnSet;

  const lumcore::config::Localizer& localizer = *lumcore::config::Localizer::Get();
  const auto submenu = lumui::utility::CreateOSMenu();
  unsigned id = kFirstColumnID;
  for (const auto& [attribute, title] : columns) {
    unsigned short shown = 0;
    submenu->AppendItem(title, id, id != kFirstColumnID,
                        mMultiColumnView->HasColumnForAttr(attribute, shown));
    ++id;
  }
  const auto menu = lumui::utility::CreateOSMenu();
  menu->AppendItem(
      localizer.GetLocalizedString("$$$/vek/hierview/MultiColumnHeaderView/Hide=Hide This"),
      kHideThisID, canHide);
  menu->AppendSubMenu(
      localizer.GetLocalizedString("$$$/vek/hierview/MultiColumnHeaderView/Columns=Columns"),
      kColumnsID, *submenu);

  // The list may be gone, or another, when the menu has closed, and so may this.
  const boost::weak_ptr<char> alive(mAlive);
  const unsigned chosen = lumui::ui::UI_DoContextMenu(*menu, inNode, inLocalPoint);
  if (chosen == 0 || alive.expired() || !mMultiColumnView) return chosen != 0;
  if (chosen == kHideThisID && canHide) mMultiColumnView->RemoveColumn(hit);
  if (chosen >= kFirstColumnID) ToggleColumn(columns[chosen - kFirstColumnID]);
  if (!alive.expired()) InvalidateAll();
  return true;
}

void MultiColumnHeaderView::ToggleColumn(ColumnSet::value_type const& inColumn) {
  unsigned short shown = 0;
  if (mMultiColumnView->HasColumnForAttr(inColumn.first, shown)) {
    mMultiColumnView->RemoveColumn(shown);
    return;
  }
  const auto known = mDefaultNewColumnSizes.find(inColumn.first);
  const bool isKnown = known != mDefaultNewColumnSizes.end();
  mMultiColumnView->InsertColumn(inColumn.first, isKnown ? known->second.second : mDefaultWidth,
                                 isKnown ? known->second.first : mDefaultMinWidth,
                                 inColumn.second.c_str(), boost::shared_ptr<CompareFunction>());
}

}  // namespace vek::hierarchyview
