// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include "lumui/datatransfer/OS_SendData.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/Executor.h"
#include "trackview/RealView.h"

namespace {

using namespace vek::trackview;
using lumui::ui::PointerEvent;
using test_support::RealView;
namespace input = lumui::testing;

constexpr auto kMiddle = PointerEvent::kMiddleButton;
constexpr auto kRight = PointerEvent::kRightButton;

void OpenBox(lumui::ui::OS_Window& inOwner) {
  lumui::dialogs::MessageDialogArgs args;
  args.owner = &inOwner;
  lumui::dialogs::RunMessageDialog(args);
}

TEST_F(RealView, WalksThroughEveryStateOfAGesture) {
  const auto noTracker = [&] { mOverlay->mMakeTracker = nullptr; };
  const auto makeTracker = mOverlay->mMakeTracker;
  const struct {
    const char* what;
    std::function<void()> act;
    const char* log;
  } kCases[] = {
      {"hover", [&] { Move(60, 71); }, "v:acquire?@60,71 hover@60,71 ~tracker"},
      {"press", [&] { Press(60, 70); }, "v:acquire@60,70 begin@60,70 news0 TRACKING CAPTURE"},
      {"another press", [&] { Press(60, 70, kMiddle); }, "TRACKING CAPTURE"},
      {"another release", [&] { Release(60, 70, kMiddle); }, "TRACKING CAPTURE"},
      {"move with keys",
       [&] { input::MoveMouse(*mWindow, At(62, 72), lumui::ui::ModifierKeys(6)); },
       "continue@62,72+6 news1 TRACKING CAPTURE"},
      {"leave", [&] { Move(-200, 72); }, "v:exit continue@-200,72 news1 TRACKING CAPTURE"},
      {"release", [&] { Release(-200, 72); }, "end@-200,72 news2 ~tracker"},
      {"right click",
       [&] {
         Press(60, 70, kRight);
         Release(60, 68, kRight);
       },
       "v:acquire@60,70 begin@60,70 news0 continue@60,68 news1 end@60,68 news2 ~tracker "
       "v:menu@120,136"},
      {"right drag",
       [&] {
         Press(60, 70, kRight);
         Release(62.5f, 70, kRight);
       },
       "v:acquire@60,70 begin@60,70 news0 continue@62.5,70 news1 end@62.5,70 news2 ~tracker"},
      {"right drag upward",
       [&] {
         Press(60, 70, kRight);
         Release(60, 67.5f, kRight);
       },
       "v:acquire@60,70 begin@60,70 news0 continue@60,67.5 news1 end@60,67.5 news2 ~tracker"},
      {"middle, ended by left",
       [&] {
         Press(60, 70, kMiddle);
         Release(60, 70, kMiddle);
         Press(60, 70);
         Release(61, 70);
       },
       "v:acquire@60,70 begin@60,70 news0 continue@61,70 news1 end@61,70 news2 ~tracker"},
      {"double click not taken",
       [&] {
         input::DoubleClickMouse(*mWindow, At(60, 70));
         mLog.Add("clicks" + std::to_string(View().GetClickCount()));
       },
       "v:acquire@60,70 begin@60,70 news0 end@60,70 news2 ~tracker v:double@60,70 "
       "v:acquire@60,70 begin@60,70 news0 end@60,70 news2 ~tracker clicks2"},
      {"double click taken",
       [&] {
         mOverlay->mTakes = true;
         input::DoubleClickMouse(*mWindow, At(60, 70), kRight);
         mOverlay->mTakes = false;
         mLog.Add("clicks" + std::to_string(View().GetClickCount()));
       },
       "v:acquire@60,70 begin@60,70 news0 end@60,70 news2 ~tracker v:menu@120,140 v:double@60,70 "
       "v:menu@120,140 clicks1"},
      {"lost",
       [&] {
         Press(60, 70);
         Move(61, 70);
         Manager().EndInputCapture(true);
         Release(61, 70);
       },
       "v:acquire@60,70 begin@60,70 news0 continue@61,70 news1 end@61,70 news2 ~tracker"},
      {"hidden",
       [&] {
         Press(60, 70);
         mScroll->UI_Show(false);
         mScroll->UI_Show(true);
       },
       "v:acquire@60,70 begin@60,70 news0 end@60,70 news2 ~tracker"},
      {"after that",
       [&] {
         Release(60, 70);
         View().UI_SetKeyboardFocus(0);
       },
       "v:active"},
      {"press without tracker",
       [&] {
         noTracker();
         Press(60, 70);
         Move(61, 70);
       },
       "v:acquire@60,70 v:acquire?@61,70 CAPTURE"},
      {"right release without tracker", [&] { Release(61, 70, kRight); }, "v:menu@122,140"},
      {"the left one comes late", [&] { Release(60, 70); }, ""},
      {"hover in a capture",
       [&] {
         Press(60, 70);
         mOverlay->mMakeTracker = makeTracker;
         Move(61, 70);
         Release(61, 70);
       },
       "v:acquire@60,70 v:acquire?@61,70 hover@61,70 ~tracker"},
  };
  for (const auto& row : kCases) {
    if (!Manager().GetInputCapture()) Park();
    row.act();
    EXPECT_EQ(Take(), row.log) << row.what;
  }
}

// Over all: move, press, move, release. The step throws each time.
TEST_F(RealView, ThrowingStepsLeaveNothingBehind) {
  const std::string hover = "v:acquire?@60,70 hover@60,70 ~tracker ";
  const std::string press = "v:acquire@60,70 begin@60,70 ";
  const std::string late = "v:acquire?@61,70 hover@61,70 ~tracker";
  const struct {
    const char* step;
    std::string log;
    const char* errors;
  } kCases[] = {
      {"none", hover + press + "news0 continue@61,70 news1 end@61,70 news2 ~tracker", ""},
      {"hover", hover + press + "news0 continue@61,70 news1 end@61,70 news2 ~tracker", "hover"},
      {"begin", hover + press + "~tracker " + late, "begin"},
      {"continue", hover + press + "news0 continue@61,70 end@61,70 news2 ~tracker", "continue"},
      {"end", hover + press + "news0 continue@61,70 news1 end@61,70 ~tracker", "end"},
      {"acquire", "v:acquire?@60,70 v:acquire@60,70 v:acquire?@61,70",
       "acquire | acquire | acquire"},
  };
  for (const auto& row : kCases) {
    const std::string step = row.step;
    mScript = {{step, [&] { throw std::runtime_error(step); }}};
    mOverlay->mOn = mScript;
    Move(60, 70);
    Press(60, 70);
    Move(61, 70);
    Release(61, 70);
    EXPECT_EQ(Take(), row.log) << step;
    EXPECT_EQ(TakeErrors(), row.errors) << step;
  }
}

TEST_F(RealView, EndsAtOnceWhenABoxHasHadTheRelease) {
  lumui::dialogs::SetDialogAnswerer([](const auto&) { return 0; });
  mScript["begin"] = [&] {
    // In the box's own loop, where the window is blocked.
    Manager().GetExecutor()->Post([&] { Release(60, 70, kRight); });
    OpenBox(*mWindow);
  };
  Park();
  Press(60, 70, kRight);
  EXPECT_EQ(Take(), "v:acquire@60,70 begin@60,70 begin. news0 end@60,70 news2 ~tracker");
  // With the button still down it goes on.
  Park();
  mScript["begin"] = [&] { OpenBox(*mWindow); };
  Press(60, 70);
  EXPECT_EQ(Take(), "v:acquire@60,70 begin@60,70 begin. news0 TRACKING CAPTURE");
  // A box in a move takes the capture; the tracker lives until the move returns, and has no news.
  mScript["continue"] = [&] { OpenBox(*mWindow); };
  Move(61, 70);
  EXPECT_EQ(Take(), "continue@61,70 end@61,70 news2 continue. ~tracker");
  Release(61, 70);
  EXPECT_EQ(Take(), "");
  lumui::dialogs::SetDialogAnswerer(nullptr);
}

TEST_F(RealView, DragsBeginWithTheMessageOfThePress) {
  const auto message = [&] {
    const auto data = View().GetSendData();
    return dynamic_cast<lumui::datatransfer::OS_SendData&>(*data).GetOSEvent().message;
  };
  unsigned inPress = 0;
  mScript["begin"] = [&] { inPress = message(); };
  Press(60, 70);
  Release(60, 70);
  EXPECT_EQ(inPress, lumui::ui::kMessageLeftDown);
  EXPECT_EQ(message(), 0u);
}

TEST_F(RealView, OnlyOneThatTracksIsToldMovesAndEnd) {
  // A second press in the first one's own loop takes the gesture over.
  mScript["begin"] = [&] {
    mScript.clear();
    Move(61, 70);
    Press(61, 70, kRight);
  };
  Park();
  Press(60, 70);
  EXPECT_EQ(Take(),
            "v:acquire@60,70 begin@60,70 v:acquire@61,70 begin@61,70 news0 begin. ~tracker "
            "TRACKING CAPTURE");
  // In the end of a gesture moves do not reach it, and a press begins the next.
  mScript["end"] = [&] {
    mScript.clear();
    Move(63, 70);
    Press(63, 70);
  };
  Release(61, 70);
  EXPECT_EQ(Take(), "end@61,70 v:acquire@63,70 begin@63,70 news0 end. ~tracker TRACKING CAPTURE");
  Release(63, 70);
  Release(63, 70, kRight);
  EXPECT_EQ(Take(), "end@63,70 news2 ~tracker v:menu@126,140");
  // One that hovers when a capture ends.
  mScript["hover"] = [&] {
    mScript.clear();
    Move(65, 70);
    View().DoNonMouseTrack(false);
    Manager().EndInputCapture(true);
  };
  const auto make = mOverlay->mMakeTracker;
  mOverlay->mMakeTracker = nullptr;
  Press(63, 70);
  mOverlay->mMakeTracker = make;
  Move(61, 70);
  EXPECT_EQ(Take(), "v:acquire@63,70 v:acquire?@61,70 hover@61,70 hover. ~tracker");
  Release(61, 70);
}

// The view is taken out of its window and dropped; "~v" is its death.
TEST_F(RealView, MayDieInItsOwnGesture) {
  const struct {
    const char* step;
    const char* log;
  } kCases[] = {
      {"hover", "v:acquire?@60,70 hover@60,70 hover. ~tracker ~v"},
      {"begin",
       "v:acquire?@60,70 hover@60,70 ~tracker v:acquire@60,70 begin@60,70 begin. news0 "
       "end@60,70 news2 ~tracker ~v"},
      {"continue",
       "v:acquire?@60,70 hover@60,70 ~tracker v:acquire@60,70 begin@60,70 news0 "
       "continue@61,70 end@61,70 news2 continue. ~tracker ~v"},
      {"end",
       "v:acquire?@60,70 hover@60,70 ~tracker v:acquire@60,70 begin@60,70 news0 "
       "continue@61,70 news1 end@61,70 end. news2 ~tracker ~v"},
  };
  for (const auto& row : kCases) {
    Build();
    PlatformScrollView* const scroll = mScroll.get();
    mScript = {{row.step, [&] { mWindow->UI_RemoveChild(scroll); }}};
    mScroll.reset();  // only the window holds it now
    Move(60, 70);
    Press(60, 70);
    Move(61, 70);
    Release(61, 70);
    EXPECT_EQ(mLog.Take(), row.log) << row.step;
  }
}

}  // namespace
