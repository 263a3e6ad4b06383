// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/Gesture.h"

#include <utility>

#include "vek/trackview/PlatformView.h"

namespace vek::trackview {

namespace {

std::auto_ptr<Tracker> Acquire(PlatformView& inView, const Point& inDataPoint, bool inHover) {
  TrackView* const trackView = inView.GetTrackView();
  if (!trackView) return std::auto_ptr<Tracker>();
  return trackView->AcquireTracker(inDataPoint, inHover, nullptr);
}

void Tell(PlatformView& inView, TrackerChangeMessage::eCurrTrackState inState) {
  TrackView* const trackView = inView.GetTrackView();
  if (trackView)
    trackView->GetTrackerBroadcaster()->BroadcastMessage(TrackerChangeMessage(inState));
}

}  // namespace

class Gesture::Step {
 public:
  explicit Step(Gesture& ioGesture)
      : mGesture(ioGesture), mTracker(ioGesture.mTracker), mOuter(ioGesture.mInnermostStep) {
    ioGesture.mInnermostStep = this;
  }
  ~Step() {
    mGesture.mInnermostStep = mOuter;
    delete mGone;
  }
  Step(const Step&) = delete;
  Step& operator=(const Step&) = delete;

  // Whether the tracker is still the gesture's own.
  bool IsCurrent() const { return mGesture.mTracker == mTracker; }

  Gesture& mGesture;
  Tracker* const mTracker;
  Step* const mOuter;
  Tracker* mGone = nullptr;  // the step's tracker, owned, once it has left the gesture
};

class Gesture::StEndWithStep {
 public:
  explicit StEndWithStep(Step& inStep) : mStep(inStep) {}
  ~StEndWithStep() {
    if (mArmed && mStep.IsCurrent()) mStep.mGesture.DeleteTracker();
  }
  StEndWithStep(const StEndWithStep&) = delete;
  StEndWithStep& operator=(const StEndWithStep&) = delete;

  void Disarm() { mArmed = false; }

 private:
  Step& mStep;
  bool mArmed = true;
};

Gesture::~Gesture() {
  DeleteTracker();
}

// The outermost of the tracker's own operations is the last one to return.
void Gesture::DeleteTracker() {
  Tracker* const tracker = std::exchange(mTracker, nullptr);
  if (!tracker) return;
  Step* outermost = nullptr;
  for (Step* step = mInnermostStep; step; step = step->mOuter) {
    if (step->mTracker == tracker) outermost = step;
  }
  if (outermost) {
    outermost->mGone = tracker;
  } else {
    delete tracker;
  }
}

bool Gesture::Begin(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint) {
  const unsigned int press = ++mPresses;
  std::auto_ptr<Tracker> offered = Acquire(inView, inDataPoint, false);
  if (mPresses != press) return false;
  DeleteTracker();
  if (!offered.get()) return true;
  mTracker = offered.release();
  mPhase = Phase::kBeginning;
  Step step(*this);
  StEndWithStep endsByThrow(step);
  mTracker->BeginTracking(inModifiers, inDataPoint, false);
  endsByThrow.Disarm();
  if (!step.IsCurrent()) return false;
  mPhase = Phase::kTracking;
  Tell(inView, TrackerChangeMessage::eTrackBegin);
  return step.IsCurrent();
}

void Gesture::Move(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint) {
  if (!mTracker) return Hover(inView, inModifiers, inDataPoint);
  if (mPhase != Phase::kTracking) return;
  const Step step(*this);
  mTracker->ContinueTracking(inModifiers, inDataPoint);
  if (step.IsCurrent()) Tell(inView, TrackerChangeMessage::eTrackContinue);
}

void Gesture::Hover(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint) {
  const unsigned int presses = mPresses;
  std::auto_ptr<Tracker> offered = Acquire(inView, inDataPoint, true);
  if (!offered.get() || mTracker || mPresses != presses) return;
  mTracker = offered.release();
  mPhase = Phase::kHovering;
  Step step(*this);
  const StEndWithStep ends(step);
  mTracker->BeginTracking(inModifiers, inDataPoint, true);
}

void Gesture::End(PlatformView& inView, Modifiers inModifiers, const Point& inDataPoint) {
  if (!mTracker || mPhase != Phase::kTracking) return;
  mPhase = Phase::kEnding;
  Step step(*this);
  const StEndWithStep ends(step);
  mTracker->EndTracking(inModifiers, inDataPoint, true);
  if (step.IsCurrent()) Tell(inView, TrackerChangeMessage::eTrackEnd);
}

}  // namespace vek::trackview
