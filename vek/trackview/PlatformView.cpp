// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/PlatformView.h"

#include <utility>

#include "lumcore/debug/Contract.h"

namespace vek::trackview {

// A listener that is being called, in the frame of the call.
struct PlatformView::ListenerCall {
  ListenerCall(PlatformView& inView, const void* inListener)
      : view(&inView), listener(inListener), outer(inView.mInnermostCall) {
    view->mInnermostCall = this;
  }
  ~ListenerCall() {
    if (view) view->mInnermostCall = outer;
  }
  ListenerCall(const ListenerCall&) = delete;
  ListenerCall& operator=(const ListenerCall&) = delete;

  PlatformView* view;  // null once it is gone
  const void* const listener;
  ListenerCall* const outer;
};

PlatformView::PlatformView() = default;

PlatformView::~PlatformView() {
  delete std::exchange(mTrackView, nullptr);
  for (ListenerCall* call = mInnermostCall; call; call = call->outer)
    call->view = nullptr;
  if (!mEmptiesListeners) return;
  for (const PositionListener& listener : mPositionListeners)
    listener->clear();
}

void PlatformView::SetTrackView(std::auto_ptr<TrackView>& ioTrackView) {
  TrackView* const trackView = ioTrackView.get();
  LUM_INPUT_CONTRACT(trackView == mTrackView || !IsTracking());
  ioTrackView.release();
  if (trackView == mTrackView) return;
  if (mBeforeTrackViewGoes) mBeforeTrackViewGoes();
  delete std::exchange(mTrackView, trackView);
}

void PlatformView::DataPos(const Point& inDataPoint, bool inFlag) {
  DoDataPos(inDataPoint, inFlag);
  CallPositionListeners();
}

void PlatformView::DependantDataPosChanged(PlatformView* inOther, bool inTakeX, bool inTakeY) {
  LUM_INPUT_CONTRACT(inOther != nullptr);
  const Point other = inOther->DataPos();
  Point position = DataPos();
  if (inTakeX) position.x = other.x;
  if (inTakeY) position.y = other.y;
  DoDataPos(position, true);
  CallPositionListeners();
}

void PlatformView::NotifyWhenDataPosChanged(PositionListener inListener) {
  LUM_INPUT_CONTRACT(inListener != nullptr);
  mPositionListeners.remove_if([](const PositionListener& inEntry) { return inEntry->empty(); });
  mPositionListeners.push_back(std::move(inListener));
}

// From a copy, since a listener may add others or destroy the view.
void PlatformView::CallPositionListeners() {
  const std::list<PositionListener> listeners = mPositionListeners;
  for (const PositionListener& listener : listeners) {
    bool isInside = false;
    for (const ListenerCall* call = mInnermostCall; call; call = call->outer)
      isInside = isInside || call->listener == listener.get();
    if (isInside || listener->empty()) continue;
    const ListenerCall call(*this, listener.get());
    // Called through a copy: one that clears itself would destroy what is running.
    const auto function = *listener;
    function(this);
    if (!call.view) return;
  }
}

}  // namespace vek::trackview
