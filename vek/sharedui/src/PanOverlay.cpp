// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/PanOverlay.h"

#include "vek/trackview/PlatformView.h"

namespace vek::sharedui {

using trackview::Modifiers;
using trackview::PlatformView;
using trackview::Point;

PanOverlay::PanOverlay(trackview::TrackView* inTrackView, LayerType inLayer, const State& inState)
    : Overlay(inLayer, inState), mTrackView(inTrackView) {}

PanOverlay::~PanOverlay() = default;

std::auto_ptr<trackview::Tracker> PanOverlay::DoAcquireTracker(
    const Point&, bool, trackview::TrackerDragAndDropInterface*) {
  return std::auto_ptr<trackview::Tracker>(new PanTracker(mTrackView));
}

PanTracker::PanTracker(trackview::TrackView* inTrackView) : Tracker(inTrackView, true, true) {}

PanTracker::~PanTracker() = default;

void PanTracker::BeginTracking(Modifiers, const Point& inDataPoint, bool) {
  mStartPoint = inDataPoint;
  mLastPoint = inDataPoint;
  mStartPosition = mTrackView->GetPlatformView().DataPos();
}

// Where the pointer rests and the view moves, another data point comes under it; the correction
// takes the view's own way out again.
void PanTracker::ContinueTracking(Modifiers, const Point& inDataPoint) {
  PlatformView& view = mTrackView->GetPlatformView();
  const Point corrected = inDataPoint + (mStartPosition - view.DataPos());
  if (corrected == mLastPoint) return;
  view.DataPos(mStartPosition + mStartPoint - corrected, true);
  mLastPoint = corrected;
}

void PanTracker::EndTracking(Modifiers, const Point&, bool) {}

}  // namespace vek::sharedui
