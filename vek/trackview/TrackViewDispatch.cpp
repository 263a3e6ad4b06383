// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumui/ui/Theme.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"
#include "vek/trackview/TrackViewRecord.h"

namespace vek::trackview {

namespace {

bool TakesEvents(const Overlay& inOverlay) {
  const auto state = inOverlay.GetState();
  return state != Overlay::kStateOff && state != Overlay::kStateNoEvents;
}

bool IsDrawn(const Overlay& inOverlay) {
  const auto state = inOverlay.GetState();
  return state != Overlay::kStateOff && state != Overlay::kStateNoDraw;
}

// One sequence for all views, so that an id that comes late is nobody else's.
unsigned int NextTimerID() {
  static unsigned int sLast = 0;
  return ++sLast;
}

}  // namespace

template <class Call>
bool TrackView::AskOverlays(const Call& inCall) const {
  return mRecord->overlays.WalkFromFirst(
      [&](Overlay& inOverlay) { return TakesEvents(inOverlay) && inCall(inOverlay); });
}

template <class Call>
void TrackView::TellOverlays(const Call& inCall) const {
  AskOverlays([&](Overlay& inOverlay) {
    inCall(inOverlay);
    return false;
  });
}

void TrackView::InstallOverlay(std::auto_ptr<Overlay>& ioOverlay, bool inOnTop) {
  LUM_INPUT_CONTRACT(ioOverlay.get() != nullptr);
  mRecord->overlays.Install(ioOverlay, inOnTop);
}

void TrackView::RemoveOverlay(Overlay* inOverlay) {
  if (!mRecord->overlays.Has(inOverlay)) return;
  StopAllTimersForOverlay(inOverlay);
  mRecord->overlays.Remove(inOverlay);
}

std::list<Overlay*> TrackView::GetOverlays() const {
  return mRecord->overlays.Get();
}

std::auto_ptr<Tracker> TrackView::AcquireTracker(const Point& inDataPoint, bool inHover,
                                                 TrackerDragAndDropInterface* inDragAndDrop) {
  std::auto_ptr<Tracker> tracker;
  AskOverlays([&](Overlay& inOverlay) {
    tracker = inOverlay.DoAcquireTracker(inDataPoint, inHover, inDragAndDrop);
    return tracker.get() != nullptr;
  });
  return tracker;
}

bool TrackView::DoubleClick(Modifiers inModifiers, const Point& inDataPoint) {
  return AskOverlays(
      [&](Overlay& inOverlay) { return inOverlay.DoDoubleClick(inModifiers, inDataPoint); });
}

bool TrackView::ContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode) {
  return AskOverlays(
      [&](Overlay& inOverlay) { return inOverlay.DoContextMenu(inLocalPoint, inNode); });
}

bool TrackView::KeyEvent(const lumui::ui::KeyboardEvent& inEvent) {
  return AskOverlays([&](Overlay& inOverlay) { return inOverlay.DoKeyEvent(inEvent); });
}

bool TrackView::WantsDragDropEvents() const {
  return AskOverlays([](const Overlay& inOverlay) { return inOverlay.DoWantsDragDropEvents(); });
}

void TrackView::GainedKeyFocus() {
  TellOverlays([](Overlay& inOverlay) { inOverlay.DoGainedKeyFocus(); });
}

void TrackView::LostKeyFocus() {
  TellOverlays([](Overlay& inOverlay) { inOverlay.DoLostKeyFocus(); });
}

void TrackView::ViewActivation() {
  TellOverlays([](Overlay& inOverlay) { inOverlay.DoViewActivation(); });
}

void TrackView::ViewPortResized() {
  const Point old = mRecord->coordOffset;
  CalculateCoordOffset(mRecord->coordOffset);
  if (mRecord->coordOffset != old) mRecord->platformView->DisplayResized(true);
  TellOverlays([](Overlay& inOverlay) { inOverlay.DoViewPortResized(); });
}

void TrackView::MouseExitEvent() {
  TellOverlays([](Overlay& inOverlay) { inOverlay.MouseExitEvent(); });
}

// The nearest overlay paints last, over all others.
void TrackView::ImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                          boost::intrusive_ptr<lumui::ui::Theme> inTheme) const {
  mRecord->overlays.WalkFromLast([&](const Overlay& inOverlay) {
    if (IsDrawn(inOverlay)) inOverlay.DoImageRect(inDataRect, inDrawbot, inTheme);
  });
}

bool TrackView::TimerEvent(unsigned int inTimerID) {
  const auto found = mRecord->timers.find(inTimerID);
  if (found == mRecord->timers.end()) return false;
  mRecord->overlays.CallOne(*found->second,
                            [&](Overlay& inOverlay) { inOverlay.DoTimerEvent(inTimerID); });
  return true;
}

unsigned int TrackView::StartTimerForOverlay(Overlay* inOverlay, float inInterval) {
  LUM_INPUT_CONTRACT(inOverlay != nullptr);
  const unsigned int id = NextTimerID();
  mRecord->timers[id] = inOverlay;
  try {
    mRecord->platformView->StartTimer(id, inInterval);
  } catch (...) {
    // A timer that does not run is no timer of the overlay; the caller hears why.
    mRecord->timers.erase(id);
    throw;
  }
  return id;
}

void TrackView::StopTimerForOverlay(Overlay* inOverlay, unsigned int inTimerID) {
  const auto found = mRecord->timers.find(inTimerID);
  if (found == mRecord->timers.end() || found->second != inOverlay) return;
  mRecord->timers.erase(found);
  mRecord->platformView->StopTimer(inTimerID);
}

void TrackView::StopAllTimersForOverlay(Overlay* inOverlay) {
  auto at = mRecord->timers.begin();
  while (at != mRecord->timers.end()) {
    const auto timer = at++;
    if (timer->second != inOverlay) continue;
    const unsigned int id = timer->first;
    mRecord->timers.erase(timer);
    mRecord->platformView->StopTimer(id);
  }
}

}  // namespace vek::trackview
