// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace vek::trackview {

// The news of a mouse gesture, from TrackView::GetTrackerBroadcaster. Which tracker it is it does
// not say. Hovering sends none, and neither does a drag.
class TrackerChangeMessage {
 public:
  enum eCurrTrackState : int {
    eTrackBegin = 0,     // BeginTracking of a press has returned
    eTrackContinue = 1,  // a ContinueTracking has returned
    eTrackEnd = 2,       // EndTracking has returned; the tracker still exists
  };

  explicit TrackerChangeMessage(const eCurrTrackState& inState) : mState(inState) {}
  TrackerChangeMessage(const TrackerChangeMessage&) = default;
  TrackerChangeMessage& operator=(const TrackerChangeMessage&) = default;
  virtual ~TrackerChangeMessage() = default;

  eCurrTrackState GetTrackState() const { return mState; }

 private:
  eCurrTrackState mState;
};

}  // namespace vek::trackview
