// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/ColumnHeaderTrackers.h"

#include <algorithm>

#include "lumui/ui/Cursors.h"
#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/hierarchyview/MultiColumnView.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace vek::hierarchyview {

using lumui::ui::SetCursorByID;
using trackview::PlatformView;
using trackview::TrackView;
using Point = trackview::Point;
using Rect = trackview::Rect;

namespace {

// Listeners to the columns may take the header away, or the list from it, in the middle of a
// gesture.
bool StillShows(TrackView& inTrackView, MultiColumnHeaderView const* inHeader,
                MultiColumnView const* inView) {
  const auto overlays = inTrackView.GetOverlays();
  return inView && std::find(overlays.begin(), overlays.end(), inHeader) != overlays.end() &&
         inHeader->GetMultiColumnView() == inView;
}

// What takes long shows it; the cursor comes back also where it fails.
class StBusyCursor {
 public:
  StBusyCursor() { SetCursorByID(lumui::ui::kCursorBusy); }
  ~StBusyCursor() { SetCursorByID(lumui::ui::kCursorDefault); }
  StBusyCursor(const StBusyCursor&) = delete;
  StBusyCursor& operator=(const StBusyCursor&) = delete;
};

void InvalidateAll(TrackView& ioView) {
  ioView.GetPlatformView().InvalidateDataRect(ioView.DataArea());
}

}  // namespace

ColumnHeaderArrowTracker::ColumnHeaderArrowTracker(TrackView* inTrackView,
                                                   MultiColumnHeaderView* inHeader,
                                                   MultiColumnView* inView)
    : Tracker(inTrackView, false, false), mHeader(inHeader), mView(inView) {}

ColumnHeaderArrowTracker::~ColumnHeaderArrowTracker() = default;

void ColumnHeaderArrowTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint,
                                             bool inHover) {
  mModifiers = inModifiers;
  mLastPoint = inDataPoint;
  mStartPoint = inDataPoint;
  unsigned short column = 0;
  const bool isInHandle = mHeader->PointInResizeHandle(inDataPoint, column);
  if (inHover) {
    SetCursorByID(isInHandle ? lumui::ui::kCursorColumnEdge : lumui::ui::kCursorDefault);
    return;
  }
  if (!mView) return;
  const unsigned short hit = mHeader->GetColIdxForPoint(inDataPoint);
  if (hit != MultiColumnHeaderView::kNoColumn) {
    mPressedColumn = hit;
    mPressed = true;
  }
  if (!isInHandle) return;
  mDelegate.reset(new ResizeColumnHeaderTracker(mTrackView, mHeader, mView, column));
  mDelegate->BeginTracking(inModifiers, inDataPoint, false);
}

void ColumnHeaderArrowTracker::ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) {
  if (!StillShows(*mTrackView, mHeader, mView)) return;
  const bool hasMoved = inDataPoint.x != mStartPoint.x || inDataPoint.y != mStartPoint.y;
  if (!mDelegate && hasMoved && mPressedColumn != 0 && mView->GetNumberOfColumns() > 2) {
    mDelegate.reset(new MoveColumnHeaderTracker(mTrackView, mHeader, mPressedColumn, mView));
    // From where the press was, so that the title does not lag behind the pointer.
    mDelegate->BeginTracking(inModifiers, mStartPoint, false);
  }
  if (mDelegate) mDelegate->ContinueTracking(inModifiers, inDataPoint);
  mLastPoint = inDataPoint;
  mModifiers = inModifiers;
}

void ColumnHeaderArrowTracker::EndTracking(Modifiers inModifiers, const Point& inDataPoint,
                                           bool inCompleted) {
  if (mDelegate) {
    const std::unique_ptr<Tracker> delegate = std::move(mDelegate);
    delegate->EndTracking(inModifiers, inDataPoint, inCompleted);
  } else if (mPressed && StillShows(*mTrackView, mHeader, mView)) {
    const StBusyCursor busy;
    mHeader->HandleClickInColumn(mPressedColumn);
  }
}

ResizeColumnHeaderTracker::ResizeColumnHeaderTracker(TrackView* inTrackView,
                                                     MultiColumnHeaderView* inHeader,
                                                     MultiColumnView* inView,
                                                     unsigned short inColumn)
    : Tracker(inTrackView, false, false),
      mHeader(inHeader),
      mView(inView),
      mColumn(inColumn),
      mWidth(inView->GetColumnWidth(inColumn)),
      mMinWidth(inView->GetMinColumnWidth(inColumn)) {}

ResizeColumnHeaderTracker::~ResizeColumnHeaderTracker() = default;

void ResizeColumnHeaderTracker::BeginTracking(Modifiers /*inModifiers*/, const Point& inDataPoint,
                                              bool /*inHover*/) {
  mLastPoint = inDataPoint;
}

void ResizeColumnHeaderTracker::ContinueTracking(Modifiers /*inModifiers*/,
                                                 const Point& inDataPoint) {
  if (!StillShows(*mTrackView, mHeader, mView)) return;
  SetCursorByID(lumui::ui::kCursorColumnResize);
  const float delta = inDataPoint.x - mLastPoint.x;
  if (delta == 0) return;
  mLastPoint = inDataPoint;
  mWidth += delta;
  mView->SetColumnWidth(mColumn, std::max(mWidth, mMinWidth));
  PlatformView& platformView = mTrackView->GetPlatformView();
  platformView.DataPos(platformView.DataPos(), true);  // the tree follows
  if (!StillShows(*mTrackView, mHeader, mView)) return;
  Rect area = mTrackView->DataArea();
  const float left = mView->GetColumnStartLoc(mColumn);
  area.width = area.Right() - left;
  area.x = left;
  platformView.InvalidateDataRect(area);
}

MoveColumnHeaderTracker::MoveColumnHeaderTracker(TrackView* inTrackView,
                                                 MultiColumnHeaderView* inHeader,
                                                 unsigned short inColumn, MultiColumnView* inView)
    : Tracker(inTrackView, false, false), mHeader(inHeader), mView(inView), mColumn(inColumn) {}

MoveColumnHeaderTracker::~MoveColumnHeaderTracker() = default;

void MoveColumnHeaderTracker::BeginTracking(Modifiers /*inModifiers*/, const Point& inDataPoint,
                                            bool /*inHover*/) {
  mRect = mHeader->GetColumnHeaderRect(mColumn);
  mLastPoint = inDataPoint;
  SetCursorByID(lumui::ui::kCursorColumnMove);
}

// The column that the moving one would stand behind. Where it touches its own edge first, what lies
// behind that counts, and behind its left neighbour it stands already.
bool MoveColumnHeaderTracker::FindTarget(unsigned short& outTarget, Rect& outHandle) const {
  if (!mHeader->RectContainsResizeHandle(mRect, outTarget, outHandle)) return false;
  if (outTarget == mColumn) {
    const Rect rest(outHandle.Right(), mRect.y, mRect.Right() - outHandle.Right(), mRect.height);
    if (!(rest.width > 0) || !mHeader->RectContainsResizeHandle(rest, outTarget, outHandle))
      return false;
  }
  return outTarget != mColumn && outTarget + 1 != mColumn;
}

// The header scrolls to show the pointer, and the list with it.
void MoveColumnHeaderTracker::FollowPoint(const Point& inDataPoint) {
  PlatformView& platformView = mTrackView->GetPlatformView();
  const float before = platformView.DataPos().x;
  mTrackView->RevealPointIfNotInView(Point(inDataPoint.x, 0), true);
  const float now = platformView.DataPos().x;
  if (now == before || !StillShows(*mTrackView, mHeader, mView)) return;
  if (auto* const control = dynamic_cast<TreeControlBase*>(mView)) {
    PlatformView& listView = control->GetTrackView()->GetPlatformView();
    listView.DataPos(Point(now, listView.DataPos().y), true);
  }
}

void MoveColumnHeaderTracker::ContinueTracking(Modifiers /*inModifiers*/,
                                               const Point& inDataPoint) {
  if (!StillShows(*mTrackView, mHeader, mView)) return;
  SetCursorByID(lumui::ui::kCursorColumnMove);
  const float delta = inDataPoint.x - mLastPoint.x;
  if (delta == 0) return;
  mLastPoint = inDataPoint;
  FollowPoint(inDataPoint);
  if (!StillShows(*mTrackView, mHeader, mView)) return;
  PlatformView& platformView = mTrackView->GetPlatformView();
  platformView.InvalidateDataRect(mRect);
  mRect.x += delta;
  platformView.InvalidateDataRect(mRect);
  unsigned short target = 0;
  Rect handle;
  const bool hasTarget = FindTarget(target, handle);
  mHeader->SetDragFeedbackRect(Rect(mRect.x, mRect.y, mRect.width - 1, mRect.height - 1));
  mHeader->SetDragInsertionRect(hasTarget ? handle : Rect());
}

void MoveColumnHeaderTracker::EndTracking(Modifiers /*inModifiers*/, const Point& /*inDataPoint*/,
                                          bool /*inCompleted*/) {
  if (!StillShows(*mTrackView, mHeader, mView)) return;
  mHeader->SetDragFeedbackRect(Rect());
  mHeader->SetDragInsertionRect(Rect());
  unsigned short target = 0;
  Rect handle;
  if (!FindTarget(target, handle)) return;
  mView->MoveColumn(mColumn, static_cast<unsigned short>(target + 1));
  InvalidateAll(*mTrackView);
  if (!StillShows(*mTrackView, mHeader, mView)) return;
  if (auto* const control = dynamic_cast<TreeControlBase*>(mView))
    InvalidateAll(*control->GetTrackView());
}

}  // namespace vek::hierarchyview
