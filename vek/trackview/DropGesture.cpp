// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/DropGesture.h"

#include <boost/make_shared.hpp>
#include <memory>
#include <utility>

#include "lumcore/utility/ScopedValue.h"
#include "vek/trackview/LUMTrackerDragAndDropInterface.h"
#include "vek/trackview/PlatformView.h"

namespace vek::trackview {

namespace {

// What is told of held keys comes with the drag's data.
const Modifiers kNoModifiers;

Point ToData(const TrackView& inView, const Point& inLocalPoint) {
  Point point = inLocalPoint;
  inView.LocalToData(point);
  return point;
}

}  // namespace

TrackerDragAndDropInterface::~TrackerDragAndDropInterface() = default;

// Whoever runs one of the tracker's operations holds the drag.
struct DropGesture::Drag {
  LUMTrackerDragAndDropInterface interface;
  boost::shared_ptr<Tracker> tracker;  // dies before its interface
};

// The data is there for the length of a step, and then whatever was there before.
class DropGesture::StStep {
 public:
  StStep(const boost::shared_ptr<Drag>& inDrag, lumui::datatransfer::OS_ReceiveData* inData)
      : mDrag(inDrag), mTracker(inDrag->tracker), mData(inDrag->interface.mReceiveData, inData) {
    mDrag->interface.mEffect = 0;
  }
  // The one that the operation is called on, also when the drag has lost it in the meantime.
  Tracker* GetTracker() const { return mTracker.get(); }
  void SetTracker(std::auto_ptr<Tracker> inTracker) {
    mTracker.reset(inTracker.release());
    mDrag->tracker = mTracker;
  }
  int GetEffect() const { return static_cast<int>(mDrag->interface.mEffect); }

 private:
  const boost::shared_ptr<Drag> mDrag;
  boost::shared_ptr<Tracker> mTracker;
  lumcore::utility::StScopedValue<lumui::datatransfer::OS_ReceiveData*> mData;
};

DropGesture::DropGesture() = default;

DropGesture::~DropGesture() {
  DeleteAll();
}

void DropGesture::DeleteTracker() {
  if (mDrag) mDrag->tracker.reset();
}

void DropGesture::DeleteAll() {
  mDrag.reset();
}

bool DropGesture::Enter(PlatformView& inView, const Point& inLocalPoint,
                        lumui::datatransfer::OS_ReceiveData& inData, int& outEffect) {
  const auto drag = boost::make_shared<Drag>();
  // Its interface outlives its tracker, which goes when the new one is there.
  boost::shared_ptr<Drag> previous = std::exchange(mDrag, drag);
  StStep step(drag, &inData);
  TrackView* const trackView = inView.GetTrackView();
  if (!trackView) return false;
  const Point dataPoint = ToData(*trackView, inLocalPoint);
  step.SetTracker(trackView->AcquireTracker(dataPoint, false, &drag->interface));
  previous.reset();
  if (!step.GetTracker() || mDrag != drag) return false;
  try {
    step.GetTracker()->BeginTracking(kNoModifiers, dataPoint, false);
  } catch (...) {
    // One that has not begun serves no drag; the caller hears why.
    drag->tracker.reset();
    throw;
  }
  outEffect = step.GetEffect();
  return true;
}

bool DropGesture::Over(PlatformView& inView, const Point& inLocalPoint,
                       lumui::datatransfer::OS_ReceiveData& inData, int& outEffect) {
  if (!mDrag) return false;
  const StStep step(mDrag, &inData);
  if (!inView.GetTrackView() || !step.GetTracker()) return false;
  step.GetTracker()->ContinueTracking(kNoModifiers, ToData(*inView.GetTrackView(), inLocalPoint));
  outEffect = step.GetEffect();
  return true;
}

void DropGesture::Leave(PlatformView& inView) {
  const boost::shared_ptr<Drag> drag = std::exchange(mDrag, nullptr);
  if (!drag) return;
  const StStep step(drag, nullptr);
  drag->tracker.reset();
  if (!inView.GetTrackView() || !step.GetTracker()) return;
  step.GetTracker()->EndTracking(kNoModifiers, Point(), false);
}

bool DropGesture::Drop(PlatformView& inView, const Point& inLocalPoint,
                       lumui::datatransfer::OS_ReceiveData& inData, int& outEffect) {
  const boost::shared_ptr<Drag> drag = std::exchange(mDrag, nullptr);
  if (!drag) return false;
  const StStep step(drag, &inData);
  drag->tracker.reset();
  if (!inView.GetTrackView() || !step.GetTracker()) return false;
  step.GetTracker()->EndTracking(kNoModifiers, ToData(*inView.GetTrackView(), inLocalPoint), true);
  outEffect = step.GetEffect();
  return true;
}

}  // namespace vek::trackview
