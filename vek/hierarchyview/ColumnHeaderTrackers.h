// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <memory>

#include "vek/trackview/Tracker.h"

namespace vek::hierarchyview {

class MultiColumnHeaderView;
class MultiColumnView;

// The gestures in a header. Each goes on only while the header stands in its track view and shows
// the list that the gesture began with; from then on it does nothing more.

// Every press and every hover: it decides on what the press becomes.
class VEK_API ColumnHeaderArrowTracker : public trackview::Tracker {
 public:
  using Point = trackview::Point;
  using Modifiers = trackview::Modifiers;

  ColumnHeaderArrowTracker(trackview::TrackView* inTrackView, MultiColumnHeaderView* inHeader,
                           MultiColumnView* inView);
  ~ColumnHeaderArrowTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  // Without a drag, the click in the column.
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 private:
  MultiColumnHeaderView* mHeader;
  MultiColumnView* mView;
  std::unique_ptr<Tracker> mDelegate;
  Point mLastPoint;
  Point mStartPoint;
  Modifiers mModifiers;
  std::uint16_t mPressedColumn = 0;
  bool mPressed = false;
};

// Drags the right edge of a column, down to its minimum. The width goes on falling below that
// unseen, so that the edge stays under the pointer on the way back.
class VEK_API ResizeColumnHeaderTracker : public trackview::Tracker {
 public:
  using Point = trackview::Point;
  using Modifiers = trackview::Modifiers;

  ResizeColumnHeaderTracker(trackview::TrackView* inTrackView, MultiColumnHeaderView* inHeader,
                            MultiColumnView* inView, unsigned short inColumn);
  ~ResizeColumnHeaderTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;

 private:
  MultiColumnHeaderView* mHeader;
  MultiColumnView* mView;
  std::uint16_t mColumn;
  float mWidth;
  float mMinWidth;
  Point mLastPoint;
};

// Drags a title to another place.
class VEK_API MoveColumnHeaderTracker : public trackview::Tracker {
 public:
  using Point = trackview::Point;
  using Rect = trackview::Rect;
  using Modifiers = trackview::Modifiers;

  MoveColumnHeaderTracker(trackview::TrackView* inTrackView, MultiColumnHeaderView* inHeader,
                          unsigned short inColumn, MultiColumnView* inView);
  ~MoveColumnHeaderTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 private:
  bool FindTarget(unsigned short& outTarget, Rect& outHandle) const;
  void FollowPoint(const Point& inDataPoint);

  MultiColumnHeaderView* mHeader;
  MultiColumnView* mView;
  std::uint16_t mColumn;
  Rect mRect;
  Point mLastPoint;
};

}  // namespace vek::hierarchyview
