// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/Executor.h"
#include "trackview/RealView.h"

namespace {

using test_support::RealView;

constexpr auto kRight = lumui::ui::PointerEvent::kRightButton;
const std::string kHover = "v:acquire?@60,70 hover@60,70 ~tracker ";
const std::string kPress = "v:acquire@60,70 begin@60,70 ";
const std::string kClick = kPress + "news0 end@60,70 news2 ~tracker";

class Gestures : public RealView {
 protected:
  void OpenBox() {
    lumui::dialogs::MessageDialogArgs args;
    args.owner = mWindow.get();
    lumui::dialogs::RunMessageDialog(args);
  }
  void DoubleClick(lumui::ui::PointerEvent::Button inButton) {
    lumui::testing::DoubleClickMouse(*mWindow, At(60, 70), inButton);
    mLog.Add("clicks" + std::to_string(View().GetClickCount()));
  }
};

TEST_F(Gestures, WalkThroughEveryState) {
  const auto makeTracker = mOverlay->mMakeTracker;
  const struct {
    const char* what;
    std::function<void()> act;
    std::string log;
  } kCases[] = {
      {"hover", [&] { Do("m-60,71"); }, "v:acquire?@60,71 hover@60,71 ~tracker"},
      {"press", [&] { Do("pl60,70"); }, kPress + "news0 TRACKING CAPTURE"},
      {"other buttons", [&] { Do("pm60,70 rm60,70"); }, "TRACKING CAPTURE"},
      {"move with keys", [&] { Do("m-62,72", 6); }, "continue@62,72+6 news1 TRACKING CAPTURE"},
      {"leave", [&] { Do("m--90,72"); }, "v:exit continue@-90,72 news1 TRACKING CAPTURE"},
      {"release", [&] { Do("rl-90,72"); }, "end@-90,72 news2 ~tracker"},
      {"right click", [&] { Do("pr60,70 rr60,68"); },
       kPress + "news0 continue@60,68 news1 end@60,68 news2 ~tracker v:menu@120,136"},
      {"right drag", [&] { Do("pr60,70 rr62.5,70"); },
       kPress + "news0 continue@62.5,70 news1 end@62.5,70 news2 ~tracker"},
      {"and upward", [&] { Do("pr60,70 rr60,67.5"); },
       kPress + "news0 continue@60,67.5 news1 end@60,67.5 news2 ~tracker"},
      {"ended by left", [&] { Do("pm60,70 rm60,70 pl60,70 rl60,70"); }, kClick},
      {"double click", [&] { DoubleClick(lumui::ui::PointerEvent::kLeftButton); },
       kClick + " v:double@60,70 " + kClick + " clicks2"},
      {"double click that is taken",
       [&] { mOverlay->mTakes = true, DoubleClick(kRight), mOverlay->mTakes = false; },
       kClick + " v:menu@120,140 v:double@60,70 v:menu@120,140 clicks1"},
      {"lost", [&] { Do("pl60,70 m-61,70"), Manager().EndInputCapture(true), Do("rl61,70"); },
       kPress + "news0 continue@61,70 news1 end@61,70 news2 ~tracker"},
      {"hidden", [&] { Do("pl60,70"), mScroll->UI_Show(false), mScroll->UI_Show(true); }, kClick},
      {"focus", [&] { Do("rl60,70 pm60,70 rm60,70 rl60,70"); }, "v:active " + kClick},
      {"press without tracker", [&] { mOverlay->mMakeTracker = nullptr, Do("pl60,70 m-61,70"); },
       "v:acquire@60,70 v:acquire?@61,70 CAPTURE"},
      {"right release without tracker", [&] { Do("rr61,70"); }, "v:menu@122,140"},
      {"the left one comes late", [&] { Do("rl60,70"); }, ""},
      {"hover in a capture",
       [&] { Do("pl60,70"), mOverlay->mMakeTracker = makeTracker, Do("m-61,70 rl61,70"); },
       "v:acquire@60,70 v:acquire?@61,70 hover@61,70 ~tracker"},
  };
  for (const auto& row : kCases) {
    if (!Manager().GetInputCapture()) Park();
    row.act();
    EXPECT_EQ(Take(), row.log) << row.what;
  }
}

// The step throws, or takes the view out of its window, which drops it: "~v" is the death, once the
// event is over.
TEST_F(Gestures, LeaveNothingBehindWhenAStepThrowsOrDropsTheView) {
  const std::string tracked = kHover + kPress + "news0 continue@61,70 ";
  const struct {
    const char* step;
    std::string thrown, dropped;
  } kCases[] = {
      {"hover", tracked + "news1 end@61,70 news2 ~tracker",
       "v:acquire?@60,70 hover@60,70 hover. ~tracker ~v"},
      {"begin", kHover + kPress + "~tracker v:acquire?@61,70 hover@61,70 ~tracker",
       kHover + kPress + "begin. news0 end@60,70 news2 ~tracker ~v"},
      {"continue", tracked + "end@61,70 news2 ~tracker",
       tracked + "end@61,70 news2 continue. ~tracker ~v"},
      {"end", tracked + "news1 end@61,70 ~tracker",
       tracked + "news1 end@61,70 end. news2 ~tracker ~v"},
  };
  for (const auto& row : kCases) {
    Build();
    mScript = {{row.step, [&] { throw std::runtime_error(row.step); }}};
    Do("m-60,70 pl60,70 m-61,70 rl61,70");
    EXPECT_EQ(Take() + TakeErrors(), row.thrown + row.step);
    mScript = {{row.step, [&, scroll = mScroll.get()] { mWindow->UI_RemoveChild(scroll); }}};
    mScroll.reset();  // only the window holds it now
    Do("m-60,70 pl60,70 m-61,70 rl61,70");
    EXPECT_EQ(mLog.Take(), row.dropped) << row.step;
  }
  // An overlay that throws yields no tracker, and no capture.
  Build();
  mOverlay->mOn["acquire"] = [] { throw std::runtime_error("acquire"); };
  Do("m-60,70 pl60,70 m-61,70 rl61,70");
  EXPECT_EQ(Take(), kHover + "v:acquire@60,70 v:acquire?@61,70 hover@61,70 ~tracker");
  EXPECT_EQ(TakeErrors(), "acquire");
}

TEST_F(Gestures, EndAtOnceWhenABoxHasHadTheRelease) {
  lumui::dialogs::SetDialogAnswerer([](const auto&) { return 0; });
  Park();
  mScript["begin"] = [&] {
    // In the box's own loop, where the window is blocked.
    Manager().GetExecutor()->Post([&] { Do("rr60,70"); });
    OpenBox();
  };
  Do("pr60,70");
  EXPECT_EQ(Take(), kPress + "begin. news0 end@60,70 news2 ~tracker");
  // With the button still down it goes on.
  Park();
  mScript["begin"] = [&] { OpenBox(); };
  Do("pl60,70");
  EXPECT_EQ(Take(), kPress + "begin. news0 TRACKING CAPTURE");
  // A box in a move takes the capture; the tracker lives until the move returns, and has no news.
  mScript["continue"] = [&] { OpenBox(); };
  Do("m-61,70 rl61,70");
  EXPECT_EQ(Take(), "continue@61,70 end@61,70 news2 continue. ~tracker");
  lumui::dialogs::SetDialogAnswerer(nullptr);
}

TEST_F(Gestures, TellMovesAndEndOnlyToOneThatTracks) {
  const auto once = [&](const char* inStep, const char* inActs) {
    mScript[inStep] = [=] { mScript.clear(), Do(inActs); };
  };
  // A second press in the first one's own loop takes the gesture over.
  Park();
  once("begin", "m-61,70 pr61,70");
  Do("pl60,70");
  EXPECT_EQ(Take(), kPress + "v:acquire@61,70 begin@61,70 news0 begin. ~tracker TRACKING CAPTURE");
  // In the end of a gesture moves do not reach it, and a press begins the next.
  once("end", "m-63,70 pl63,70");
  Do("rl61,70");
  EXPECT_EQ(Take(), "end@61,70 v:acquire@63,70 begin@63,70 news0 end. ~tracker TRACKING CAPTURE");
  Do("rl63,70 rr63,70");
  EXPECT_EQ(Take(), "end@63,70 news2 ~tracker v:menu@126,140");
  // One that hovers in a capture when that ends.
  const auto make = std::exchange(mOverlay->mMakeTracker, nullptr);
  Do("pl63,70");
  mOverlay->mMakeTracker = make;
  mScript["hover"] = [&] {
    mScript.clear();
    Do("m-65,70");
    View().DoNonMouseTrack(false);
    Manager().EndInputCapture(true);
  };
  Do("m-61,70");
  EXPECT_EQ(Take(), "v:acquire@63,70 v:acquire?@61,70 hover@61,70 hover. ~tracker");
  Do("rl61,70");
}

}  // namespace
