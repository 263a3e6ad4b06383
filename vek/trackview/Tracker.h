// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/trackview/TrackerBase.h"
#include "vek/trackview/Types.h"

namespace vek::trackview {

class TrackView;

// One gesture: made by an overlay at the press, told every move and the end, and destroyed by the
// platform view that it was handed to. It may end, or see the view go, in the middle of a call of
// its own; it lives until that call returns. What an operation throws goes through the platform
// view: out of BeginTracking and EndTracking it destroys the tracker, out of ContinueTracking it
// changes nothing.
class VEK_API Tracker : public TrackerBase<Point> {
 public:
  // inTrackView outlives the tracker. With inAutoScroll the view follows the pointer, and
  // inScrollFlag is what it hands on to PlatformView::DataPos.
  Tracker(TrackView* inTrackView, bool inAutoScroll, bool inScrollFlag);
  ~Tracker() override;

  // Begin and end do nothing; a move scrolls and checks for the exit, as the fields say.
  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 protected:
  virtual void ScrollIfNeeded(const Point& inDataPoint);
  // Notes in mExited whether the point is outside the visible area and the margin around it.
  virtual void CheckForExit(const Point& inDataPoint);

  TrackView* mTrackView;
  bool mAutoScroll;
  bool mScrollFlag;
  bool mExitCheck = false;  // for subclasses to set
  bool mExited = false;
  float mExitMargin = 15;  // data units, so it grows on the screen with the zoom
};

}  // namespace vek::trackview
