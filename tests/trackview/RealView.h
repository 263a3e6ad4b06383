// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <sstream>
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
                 private vek::messaging::Listener<tv::TrackerChangeMessage> {
 protected:
  RealView() { Build(); }
  ~RealView() override { Manager().EndInputCapture(true); }

  void Build() {
    if (mScroll) mWindow->UI_RemoveChild(mScroll.get());
    mScroll = tv::PlatformScrollView::Create();
    mView = &mScroll->GetPlatformView();
    mScroll->UI_SetLocalRectF(tv::Rect(10, 20, 180, 80));
    mWindow->UI_AddChild(mScroll);
    Track().SetCoordScaleRange(0.25f, 4);
    Track().ResizeDataSize(tv::Point(300, 400), true);
    Track().SetCoordScale(2, true, tv::Point(-1, -1));
    View().DataPos(tv::Point(50, 60), true);
    mOverlay = ScriptedOverlay::Install(Track(), new ScriptedOverlay("v", mLog));
    mOverlay->mMakeTracker = [this] { return new ScriptedTracker(&Track(), mLog, mScript); };
    mOverlay->SetState(tv::Overlay::kStateNoDraw);
    Track().GetTrackerBroadcaster()->AddListener(this);
    View().UI_SetKeyboardFocus(0);
    App().PumpPendingEvents();
    mLog.Take();
  }
  tv::LUMPlatformView& View() { return *mView; }
  tv::TrackView& Track() { return *View().GetTrackView(); }
  // The window's position of a data point, of the view as it is scrolled at the start.
  static tv::Point At(float inX, float inY) {
    return tv::Point((inX - 50) * 2 + 10, (inY - 60) * 2 + 20);
  }
  // "pr60,70 m-61,70" presses the right button at a data point and moves; "r" releases, and "l" and
  // "m" are the other buttons. Qt makes a move of its own where one is elsewhere than the pointer.
  void Do(const std::string& inActs, unsigned char inModifiers = 0) {
    using lumui::ui::PointerEvent;
    std::istringstream acts(inActs);
    for (std::string act; acts >> act;) {
      float x = 0;
      float y = 0;
      ASSERT_EQ(std::sscanf(act.c_str() + 2, "%f,%f", &x, &y), 2) << act;
      const auto button = act[1] == 'l'   ? PointerEvent::kLeftButton
                          : act[1] == 'r' ? PointerEvent::kRightButton
                                          : PointerEvent::kMiddleButton;
      const lumui::ui::ModifierKeys keys(inModifiers);
      if (act[1] == '-')
        lumui::testing::MoveMouse(*mWindow, At(x, y), keys);
      else if (act[0] == 'p')
        lumui::testing::PressMouse(*mWindow, At(x, y), button, keys);
      else
        lumui::testing::ReleaseMouse(*mWindow, At(x, y), button, keys);
    }
  }
  void Park() {
    Do("m-60,70");
    mLog.Take();
  }
  // What happened, and behind it, if anything is left of a gesture, what that is.
  std::string Take() {
    if (View().IsTracking()) mLog.Add("TRACKING");
    if (Manager().GetInputCapture()) mLog.Add("CAPTURE");
    if (View().GetCurrentMouseEvent()) mLog.Add("EVENT");
    return mLog.Take();
  }

  EventLog mLog;
  ScriptedTracker::Script mScript;
  boost::intrusive_ptr<lumui::ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<tv::PlatformScrollView> mScroll;
  tv::LUMPlatformView* mView = nullptr;
  ScriptedOverlay* mOverlay = nullptr;

 private:
  // "news2", with a mark if the tracker has gone before the news of its end.
  void ListenToMessage(tv::TrackerChangeMessage inMessage) override {
    mLog.Add("news" + std::to_string(inMessage.GetTrackState()) +
             (View().IsTracking() ? "" : "(late)"));
  }
};

}  // namespace test_support
