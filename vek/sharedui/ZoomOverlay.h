// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "vek/config/Export.h"
#include "vek/trackview/Overlay.h"
#include "vek/trackview/Tracker.h"

namespace vek::sharedui {

// The zoom tool, for as long as it is installed: every press is its own, so it belongs on a layer
// ahead of the overlays that are not to have it. It draws the rectangle that its tracker drags.
class VEK_API ZoomOverlay : public trackview::Overlay {
 public:
  // inTrackView is the one that it is installed in.
  ZoomOverlay(trackview::TrackView* inTrackView, LayerType inLayer, const State& inState);
  ~ZoomOverlay() override;

  void DoImageRect(const trackview::Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme> inTheme) const override;
  // Hovering as well gets a tracker.
  std::auto_ptr<trackview::Tracker> DoAcquireTracker(
      const trackview::Point& inDataPoint, bool inHover,
      trackview::TrackerDragAndDropInterface* inDragAndDrop) override;
  bool DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent) override;

  // In data units; empty for none. Neither asks for drawing.
  virtual void SetFeedbackRect(const trackview::Rect& inDataRect);
  virtual void ClearFeedbackRect();

 private:
  friend class ZoomTracker;

  trackview::TrackView* const mTrackView;
  trackview::Rect mFeedbackRect;
  // Goes with the overlay: a host may put its tool away in the middle of a gesture.
  const std::shared_ptr<ZoomOverlay> mLife;
};

// One gesture of the zoom tool. A click zooms by a step and brings the clicked point to the middle:
// by whole numbers above 1 and by halves and doubles below, out with the Alt key. A drag of more
// than 3 units zooms in on its rectangle, in which direction soever; with Alt held at the press
// there is no rectangle. A gesture that is cut short ends as if released.
class VEK_API ZoomTracker : public trackview::Tracker {
 public:
  // The gesture goes on without feedback if the overlay dies.
  ZoomTracker(trackview::TrackView* inTrackView, ZoomOverlay* inOverlay);
  ~ZoomTracker() override;

  void BeginTracking(trackview::Modifiers inModifiers, const trackview::Point& inDataPoint,
                     bool inHover) override;
  void ContinueTracking(trackview::Modifiers inModifiers,
                        const trackview::Point& inDataPoint) override;
  void EndTracking(trackview::Modifiers inModifiers, const trackview::Point& inDataPoint,
                   bool inCompleted) override;

 private:
  bool HasLeftTheBox(const trackview::Point& inDataPoint) const;
  void ShowFeedback(const trackview::Rect& inDataRect);
  void ClearFeedback();
  void ZoomToRect(const trackview::Rect& inDataRect, float inScale);
  void ZoomByStep(bool inOut, float inScale, const trackview::Point& inDataPoint);

  bool mDragging = false;
  bool mZoomOut = false;
  trackview::Point mStartPoint;
  trackview::Point mLastPoint;
  ZoomOverlay* const mOverlay;
  const std::weak_ptr<ZoomOverlay> mOverlayLife;
};

}  // namespace vek::sharedui
