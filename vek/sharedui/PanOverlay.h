// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/trackview/Overlay.h"
#include "vek/trackview/Tracker.h"

namespace vek::sharedui {

// The hand tool, for as long as it is installed: every press is its own, so it belongs on a layer
// ahead of the overlays that are not to have it. It draws nothing.
class VEK_API PanOverlay : public trackview::Overlay {
 public:
  // inTrackView is the one that it is installed in.
  PanOverlay(trackview::TrackView* inTrackView, LayerType inLayer, const State& inState);
  ~PanOverlay() override;

  // Hovering as well gets a tracker.
  std::auto_ptr<trackview::Tracker> DoAcquireTracker(
      const trackview::Point& inDataPoint, bool inHover,
      trackview::TrackerDragAndDropInterface* inDragAndDrop) override;

 private:
  trackview::TrackView* const mTrackView;
};

// One gesture of the hand tool: the content moves with the pointer, and what was gripped stays
// gripped where the content cannot follow.
class VEK_API PanTracker : public trackview::Tracker {
 public:
  explicit PanTracker(trackview::TrackView* inTrackView);
  ~PanTracker() override;

  void BeginTracking(trackview::Modifiers inModifiers, const trackview::Point& inDataPoint,
                     bool inHover) override;
  void ContinueTracking(trackview::Modifiers inModifiers,
                        const trackview::Point& inDataPoint) override;
  void EndTracking(trackview::Modifiers inModifiers, const trackview::Point& inDataPoint,
                   bool inCompleted) override;

 private:
  trackview::Point mStartPoint;
  trackview::Point mLastPoint;
  trackview::Point mStartPosition;  // of the view
};

}  // namespace vek::sharedui
