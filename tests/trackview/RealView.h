// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumui/UITest.h"
#include "lumui/ui/InputCapture.h"
#include "support/ScriptedOverlay.h"
#include "vek/messaging/Listener.h"
#include "vek/trackview/PlatformScrollView.h"

namespace test_support {

// A scroll view of 180 by 80 at (10, 20) of a window of 200 by 100, over data of 300 by 400 at
// scale 2, scrolled so that the data point (50, 60) is at its corner. An overlay "v" makes
// trackers.
class RealView : public lumui::test::UITest,
                 private vek::messaging::Listener<vek::trackview::TrackerChangeMessage> {
 protected:
  using Point = vek::trackview::Point;
  using PointerEvent = lumui::ui::PointerEvent;

  RealView() { Build(); }
  ~RealView() override { Manager().EndInputCapture(true); }

  void Build() {
    if (mScroll) mWindow->UI_RemoveChild(mScroll.get());
    mScroll = vek::trackview::PlatformScrollView::Create();
    mView = &mScroll->GetPlatformView();
    mScroll->UI_SetLocalRectF(vek::trackview::Rect(10, 20, 180, 80));
    mWindow->UI_AddChild(mScroll);
    Track().SetCoordScaleRange(0.25f, 4);
    Track().ResizeDataSize(Point(300, 400), true);
    Track().SetCoordScale(2, true, Point(-1, -1));
    View().DataPos(Point(50, 60), true);
    mOverlay = ScriptedOverlay::Install(Track(), new ScriptedOverlay("v", mLog));
    mOverlay->mMakeTracker = [this] { return new ScriptedTracker(&Track(), mLog, mScript); };
    mOverlay->SetState(vek::trackview::Overlay::kStateNoDraw);
    Track().GetTrackerBroadcaster()->AddListener(this);
    View().UI_SetKeyboardFocus(0);
    App().PumpPendingEvents();
    mLog.Take();
  }
  vek::trackview::LUMPlatformView& View() { return *mView; }
  vek::trackview::TrackView& Track() { return *View().GetTrackView(); }
  // The window's position of a data point, of the view as it is scrolled at the start.
  static Point At(float inX, float inY) { return Point((inX - 50) * 2 + 10, (inY - 60) * 2 + 20); }
  // Qt makes a move of its own before a press elsewhere, and before a release.
  void Park() {
    Move(60, 70);
    mLog.Take();
  }
  void Press(float inX, float inY, PointerEvent::Button inButton = PointerEvent::kLeftButton) {
    lumui::testing::PressMouse(*mWindow, At(inX, inY), inButton);
  }
  void Move(float inX, float inY) { lumui::testing::MoveMouse(*mWindow, At(inX, inY)); }
  void Release(float inX, float inY, PointerEvent::Button inButton = PointerEvent::kLeftButton) {
    lumui::testing::ReleaseMouse(*mWindow, At(inX, inY), inButton);
  }
  // What happened, and behind it, if anything is left of a gesture, what that is.
  std::string Take() {
    if (View().IsTracking()) mLog.Add("TRACKING");
    if (Manager().GetInputCapture()) mLog.Add("CAPTURE");
    if (View().GetCurrentMouseEvent()) mLog.Add("EVENT");
    return mLog.Take();
  }

  test_support::EventLog mLog;
  ScriptedTracker::Script mScript;
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<vek::trackview::PlatformScrollView> mScroll;
  vek::trackview::LUMPlatformView* mView = nullptr;
  ScriptedOverlay* mOverlay = nullptr;

 private:
  // "news2", with a mark if the tracker has gone before the news of its end.
  void ListenToMessage(vek::trackview::TrackerChangeMessage inMessage) override {
    mLog.Add("news" + std::to_string(inMessage.GetTrackState()) +
             (View().IsTracking() ? "" : "(late)"));
  }
};

}  // namespace test_support
