// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/Tracker.h"

#include "vek/trackview/TrackView.h"

namespace vek::trackview {

Tracker::Tracker(TrackView* inTrackView, bool inAutoScroll, bool inScrollFlag)
    : mTrackView(inTrackView), mAutoScroll(inAutoScroll), mScrollFlag(inScrollFlag) {}

Tracker::~Tracker() = default;

void Tracker::BeginTracking(Modifiers, const Point&, bool) {}

void Tracker::ContinueTracking(Modifiers, const Point& inDataPoint) {
  if (mAutoScroll) {
    ScrollIfNeeded(inDataPoint);
  } else if (mExitCheck) {
    CheckForExit(inDataPoint);
  }
}

void Tracker::EndTracking(Modifiers, const Point&, bool) {}

// The check comes first: it is against the area as it was.
void Tracker::ScrollIfNeeded(const Point& inDataPoint) {
  if (mExitCheck) CheckForExit(inDataPoint);
  mTrackView->RevealPointIfNotInView(inDataPoint, mScrollFlag);
}

void Tracker::CheckForExit(const Point& inDataPoint) {
  const Rect area = mTrackView->DataArea();
  const Rect grown(area.x - mExitMargin, area.y - mExitMargin, area.width + 2 * mExitMargin,
                   area.height + 2 * mExitMargin);
  mExited = !grown.Contains(inDataPoint);
}

}  // namespace vek::trackview
