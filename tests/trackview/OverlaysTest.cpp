// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <stdexcept>

#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/UI_SubView.h"
#include "support/ScriptedOverlay.h"

namespace {

using namespace vek::trackview;
using test_support::ScriptedOverlay;

class Overlays : public ::testing::Test {
 protected:
  ScriptedOverlay* Add(const char* inName, int inState = 0, int inLayer = 1, bool inOnTop = false) {
    return ScriptedOverlay::Install(View(), new ScriptedOverlay(inName, mLog, inState, inLayer),
                                    inOnTop);
  }
  TrackView& View() { return *mPlatform.GetTrackView(); }
  std::string Draw() {
    const auto surface = lumui::drawbot::GetDefaultSupplier()->NewSurface(1, 1);
    View().ImageRect(Rect(1, 2, 3, 4), surface->GetDrawbot(), nullptr);
    return mLog.Take();
  }
  std::string Key() {
    mLog.Add(View().KeyEvent(lumui::ui::KeyboardEvent()) ? "taken" : "-");
    return mLog.Take();
  }

  test_support::EventLog mLog;
  test_support::RecordingPlatformView mPlatform{mLog, Point(100, 100)};
  TrackView& mFirst = mPlatform.Show(false, 1, 1);
};

TEST_F(Overlays, AreSortedByLayerAndPlacedAheadOrBehindOnTheirOwn) {
  const std::pair<const char*, int> kInstalled[] = {{"a", 5}, {"b", 5},  {"c+", 5}, {"d+", -2},
                                                    {"e", 7}, {"f+", 7}, {"g+", 6}};
  for (const auto& [name, layer] : kInstalled)
    Add(name, 0, layer, name[1] == '+');
  EXPECT_EQ(Key(), "d+:key c+:key a:key b:key g+:key f+:key e:key -");
}

TEST_F(Overlays, TakePartAsTheirStateSays) {
  Add("all", 0);
  Add("quiet", 1);  // not drawn
  Add("deaf", 2);   // no events
  ScriptedOverlay* const off = Add("off", 3);
  lumui::ui::UI_SubView node;
  const Point point(3, 4);
  View().AcquireTracker(point, false, nullptr);
  View().AcquireTracker(point, true, nullptr);
  View().DoubleClick(Modifiers(), point);
  View().ContextMenu(point, node);
  View().KeyEvent(lumui::ui::KeyboardEvent());
  View().WantsDragDropEvents();
  View().GainedKeyFocus();
  View().LostKeyFocus();
  View().ViewActivation();
  View().ViewPortResized();
  View().MouseExitEvent();
  std::string expected;
  for (const std::string what : {"acquire@3,4", "acquire?@3,4", "double@3,4", "menu@3,4", "key",
                                 "drops", "focus", "blur", "active", "port", "exit"}) {
    expected += "all:" + what + " quiet:" + what + " ";
  }
  EXPECT_EQ(mLog.Take() + " ", expected);
  // From the farthest to the nearest.
  EXPECT_EQ(Draw(), "deaf:draw@1,2,3,4 all:draw@1,2,3,4");
  EXPECT_TRUE(View().TimerEvent(View().StartTimerForOverlay(off, 2)));
  EXPECT_EQ(mLog.Take(), "start0:2 off:timer");
}

TEST_F(Overlays, FirstThatTakesAnEventEndsTheWalk) {
  Add("a");
  Add("b")->mTakes = true;
  Add("c")->mMakeTracker = [&] { return new Tracker(&View(), false, false); };
  Add("d");
  EXPECT_EQ(Key(), "a:key b:key taken");
  EXPECT_NE(View().AcquireTracker(Point(1, 1), false, nullptr).get(), nullptr);
  EXPECT_EQ(mLog.Take(), "a:acquire@1,1 b:acquire@1,1 c:acquire@1,1");
}

TEST_F(Overlays, MayBeRemovedAndInstalledInAnyOfTheirCalls) {
  ScriptedOverlay* const a = Add("a");
  ScriptedOverlay* b = Add("b");
  ScriptedOverlay* const c = Add("c");
  Add("d");
  // Before it, itself and behind it; a nested walk sees the rest, and it lives until it returns.
  b->mOn["key"] = [&] {
    for (Overlay* gone : std::list<Overlay*>{a, b, c, b})
      View().RemoveOverlay(gone);
    Add("e");
    View().MouseExitEvent();
    throw std::runtime_error("key");
  };
  EXPECT_THROW(Key(), std::runtime_error);
  EXPECT_EQ(mLog.Take(), "a:key b:key ~a ~c d:exit e:exit ~b");
  EXPECT_EQ(Key(), "d:key e:key -");
  b = Add("b");
  const auto leave = [&] { View().RemoveOverlay(b); };
  b->mOn["draw"] = leave;
  EXPECT_EQ(Draw(), "b:draw@1,2,3,4 ~b e:draw@1,2,3,4 d:draw@1,2,3,4");
  // In a call inside its own call.
  b = Add("b", 0, 1, true);
  b->mOn["exit"] = leave;
  b->mOn["key"] = [&] { View().MouseExitEvent(), mLog.Add("."); };
  EXPECT_EQ(Key(), "b:key b:exit d:exit e:exit . ~b d:key e:key -");
  // The whole view goes.
  b = Add("b", 0, 1, true);
  b->mOn["key"] = [&] { mPlatform.Show(false, 1, 1); };
  EXPECT_EQ(Key(), "b:key ~d ~e ~b -");
}

TEST_F(Overlays, TimersAreTheirsAndGoWithThem) {
  ScriptedOverlay* const a = Add("a");
  ScriptedOverlay* const b = Add("b");
  const unsigned first = View().StartTimerForOverlay(a, 0.95f);
  const unsigned second = View().StartTimerForOverlay(b, 2);
  const unsigned third = View().StartTimerForOverlay(a, 3);
  EXPECT_THROW(View().StartTimerForOverlay(a, 0), std::runtime_error);
  View().StopTimerForOverlay(b, first);  // another one's
  EXPECT_EQ(mLog.Take(), "start0:0.95 start1:2 start2:3 start3:0");
  View().StopTimerForOverlay(b, second);
  EXPECT_FALSE(View().TimerEvent(second));
  a->mOn["timer"] = [&] { View().RemoveOverlay(a); };
  EXPECT_TRUE(View().TimerEvent(first));
  EXPECT_FALSE(View().TimerEvent(third));
  EXPECT_EQ(mLog.Take(), "stop1 a:timer stop0 stop2 ~a");
  // Those that live when the view dies are not stopped one by one, and another goes on counting.
  View().StartTimerForOverlay(b, 1);
  mPlatform.Show(false, 1, 1);
  View().StartTimerForOverlay(Add("c"), 5);
  EXPECT_EQ(mLog.Take(), "start4:1 ~b start5:5");
}

}  // namespace
