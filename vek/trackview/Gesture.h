// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "vek/trackview/Tracker.h"
#include "vek/trackview/TrackerChangeMessage.h"
#include "vek/trackview/Types.h"

namespace vek::trackview {

class PlatformView;

// The mouse gesture of a platform view: it holds the tracker, at most one, and tells it the steps
// and the listeners the news of them. The view keeps itself alive while a step runs.
//
// A tracker's operation may open a loop of its own in which other events come, the end of this
// very gesture among them, so each step looks afterwards whether the gesture is still its own. A
// tracker that goes in the middle of an operation of its own is gone for the view at once, and is
// deleted when the operation returns. Only one that tracks is told moves and the end, and the end
// once: a tracker that hovers, has not begun or is ending is told neither.
class Gesture {
 public:
  Gesture() = default;
  ~Gesture();  // without EndTracking
  Gesture(const Gesture&) = delete;
  Gesture& operator=(const Gesture&) = delete;

  bool HasTracker() const { return mTracker != nullptr; }

  // A press: the tracker that the overlays offer, if any, takes the place of the old one and
  // begins. False if another press has come in the meantime, whose gesture it is now.
  bool Begin(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint);
  // A move: the tracker goes on; without one, a hovering one begins and dies.
  void Move(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint);
  void Hover(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint);
  void End(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint);
  void DeleteTracker();

 private:
  enum class Phase { kHovering, kBeginning, kTracking, kEnding };

  // An operation of the tracker that is running, in the frame of its caller.
  class Step;
  // Deletes the tracker of the step on the way out.
  class StEndWithStep;

  Tracker* mTracker = nullptr;  // owned
  Phase mPhase = Phase::kHovering;
  unsigned int mPresses = 0;
  Step* mInnermostStep = nullptr;
};

}  // namespace vek::trackview
