// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_ScrollView.h"

#include <functional>
#include <sstream>

#include "UITest.h"
#include "lumcore/config/ThrowError.h"
#include "lumui/controls/UI_InteractiveControlChangedMessage.h"
#include "lumui/controls/UI_ScrollBar.h"
#include "lumui/testing/VirtualClock.h"

namespace lumui::test {

namespace {

namespace input = lumui::testing;
using controls::UI_ScrollView;
using Offset = lumcore::geom::PointT<double>;

// Tells the clip in which it is drawn.
class DrawnNode : public RecordingNode {
 public:
  using RecordingNode::RecordingNode;
  void UI_Draw(drawbot::Drawbot* inDrawbot) const override { mClip = inDrawbot->GetClipBounds(); }
  mutable Rect mClip;
};

// A view of 200 by 100 that fills the window.
class ScrollView : public UITest {
 protected:
  ScrollView() {
    mContent = new DrawnNode("content", [this](const std::string& inWord) { Log(inWord); });
    mView = new UI_ScrollView(lumcore::utility::Flags<unsigned int>(), mContent);
    mView->UI_SetLocalRectF(Rect(0, 0, 200, 100));
    mWindow->UI_AddChild(mView);
    mThick = mView->GetScrollBarY()->GetThickness();
  }

  void SetContent(float inWidth, float inHeight) {
    mView->SetContentRectF(Rect(0, 0, inWidth, inHeight));
    mView->Update();
  }
  // "offset x,y; size; bars" as far as they show.
  std::string State() {
    const Rect viewed = mView->GetViewedContentRectF();
    std::ostringstream text;
    text << viewed.x << "," << viewed.y << " " << viewed.width << "x" << viewed.height
         << (mView->GetScrollBarX()->UI_IsVisible() ? " X" : "")
         << (mView->GetScrollBarY()->UI_IsVisible() ? " Y" : "");
    return text.str();
  }
  std::string Size(float inLessWidth, float inLessHeight) {
    std::ostringstream text;
    text << 200 - inLessWidth << "x" << 100 - inLessHeight;
    return text.str();
  }
  void Listen() {
    mChanged.reset(new controls::UI_ScrollBar::ChangedFunction(
        [this](controls::UI_InteractiveControlChangedMessage* inMessage) {
          Log(inMessage->GetControl() == mView->GetScrollBarX() ? "X" : "Y");
        }));
    mView->GetScrollBarX()->NotifyWhenChangedInteractively(mChanged);
    mView->GetScrollBarY()->NotifyWhenChangedInteractively(mChanged);
  }

  boost::intrusive_ptr<ui::OS_Window> mWindow = MakeWindow();
  boost::intrusive_ptr<DrawnNode> mContent;
  boost::intrusive_ptr<UI_ScrollView> mView;
  boost::shared_ptr<controls::UI_ScrollBar::ChangedFunction> mChanged;
  float mThick = 0;
};

}  // namespace

TEST_F(ScrollView, ShowsABarOnlyWhereTheContentNeedsIt) {
  SetContent(200, 100);
  EXPECT_EQ(State(), "0,0 200x100");
  SetContent(200 - mThick, 101);
  EXPECT_EQ(State(), "0,0 " + Size(mThick, 0) + " Y");
  // One bar takes the room that makes the other one needed.
  SetContent(200, 101);
  EXPECT_EQ(State(), "0,0 " + Size(mThick, mThick) + " X Y");
  SetContent(201, 50);
  EXPECT_EQ(State(), "0,0 " + Size(0, mThick) + " X");
  EXPECT_EQ(mContent->UI_GetLocalRectF(), Rect(0, 0, 200, 100));
}

TEST_F(ScrollView, RevealsByTheLeastMoveAndTheNearEdgeFirst) {
  SetContent(200 - mThick, 1000);
  mView->ScrollIntoView(Rect(0, 150, 10, 20), true);
  EXPECT_EQ(mView->GetOffset().y, 70);
  mView->ScrollIntoView(Rect(0, 100, 10, 20), true);
  EXPECT_EQ(mView->GetOffset().y, 70);
  mView->ScrollIntoView(Rect(0, 60, 10, 20), false);
  EXPECT_EQ(mView->GetOffset().y, 60);
  mView->ScrollIntoView(Rect(0, 300, 10, 500), false);
  EXPECT_EQ(mView->GetOffset().y, 300);
  // A rectangle as large as the view brings its corner to the view's, within the content.
  const Rect viewed = mView->GetViewedContentRectF();
  mView->ScrollIntoView(Rect(0, 432, viewed.width, viewed.height), false);
  EXPECT_EQ(mView->GetOffset().y, 432);
  mView->ScrollIntoView(Rect(0, 5000, viewed.width, viewed.height), false);
  EXPECT_EQ(mView->GetOffset().y, 900);
  SetContent(200 - mThick, 500);
  EXPECT_EQ(mView->GetOffset().y, 400);
}

TEST_F(ScrollView, WheelMovesByFractionsAndTellsListenersOfTheUser) {
  SetContent(1000, 1000);
  Listen();
  mView->SetLineStep(10);
  mView->SetOffset(Offset(5, 5));
  EXPECT_EQ(TakeLog(), "");
  input::TurnWheel(*mWindow, Point(20, 20), Point(0, 1));
  EXPECT_EQ(TakeLog(), "content:wheel(0,1)@25,25 Y");
  EXPECT_EQ(mView->GetOffset(), Offset(5, 35));
  // Less than a unit moves nothing yet, and is not lost.
  for (int i = 0; i < 120; ++i) {
    input::TurnWheel(*mWindow, Point(20, 20), Point(1 / 120.0f, 0));
  }
  EXPECT_EQ(mView->GetOffset(), Offset(35, 35));
  TakeLog();
  input::TurnWheel(*mWindow, Point(20, 20), Point(0, -5));
  EXPECT_EQ(mView->GetOffset(), Offset(35, 0));
  TakeLog();
  input::TurnWheel(*mWindow, Point(20, 20), Point(0, -5));  // already at the end
  EXPECT_EQ(TakeLog(), "content:wheel(0,-5)@55,20");
  mChanged->clear();
  input::TurnWheel(*mWindow, Point(20, 20), Point(0, 1));
  EXPECT_EQ(TakeLog(), "content:wheel(0,1)@55,20");
}

TEST_F(ScrollView, FollowsFingersAndGlidesOnWhenTheyLeaveInMotion) {
  using Touch = ui::WheelEvent::Touch;
  const auto fingers = [&](Touch inTouch, const Point& inWay, double inSeconds) {
    input::MoveFingers(*mWindow, Point(20, 20), inTouch, inWay, inSeconds);
  };
  const auto flick = [&](const Point& inWay) {
    mView->SetOffset(Offset(100, 400));
    fingers(Touch::kBegin, Point(), 1);
    for (int i = 0; i < 6; ++i)
      fingers(Touch::kMove, inWay, 0.01);
    fingers(Touch::kEnd, Point(), 0.01);
  };
  input::VirtualClock clock;
  SetContent(1000, 3000);
  Listen();
  // By their own way, whatever a line is.
  flick(Point(0, 5));
  EXPECT_EQ(mView->GetOffset(), Offset(100, 430));
  // 500 units in a second, less in each moment.
  clock.Advance(0.105);
  const double first = mView->GetOffset().y - 430;
  EXPECT_NEAR(first, 44, 2);
  TakeLog();
  clock.Advance(0.1);
  const double second = mView->GetOffset().y - 430 - first;
  EXPECT_LT(second, first);
  EXPECT_GT(second, 0.6 * first);
  EXPECT_EQ(TakeLog().substr(0, 3), "Y Y");
  clock.Advance(10);
  const Offset rest = mView->GetOffset();
  EXPECT_NEAR(rest.y, 430 + 500 * 0.325, 8);
  // Other fingers, and whoever moves the view, end it; so does an end of the content.
  const auto expectEndBy = [&](const char* inWhat, const std::function<void()>& inAct) {
    flick(Point(-4, 5));
    clock.Advance(0.05);
    inAct();
    const Offset there = mView->GetOffset();
    clock.Advance(5);
    EXPECT_EQ(mView->GetOffset(), there) << inWhat;
  };
  expectEndBy("fingers", [&] { fingers(Touch::kBegin, Point(), 0.01); });
  expectEndBy("the system's momentum", [&] { fingers(Touch::kMomentum, Point(0, 3), 0.01); });
  expectEndBy("wheel", [&] { input::TurnWheel(*mWindow, Point(20, 20), Point(0, 1)); });
  expectEndBy("offset", [&] { mView->SetOffset(Offset(7, 8)); });
  expectEndBy("reveal", [&] { mView->ScrollIntoView(Rect(0, 2000, 5, 5), false); });
  flick(Point(0, -80));
  clock.Advance(5);
  EXPECT_EQ(mView->GetOffset(), Offset(100, 0));
  // Fingers that have come to rest before they leave set the view down.
  mView->SetOffset(Offset(100, 400));
  fingers(Touch::kBegin, Point(), 1);
  fingers(Touch::kMove, Point(0, 20), 0.01);
  fingers(Touch::kMove, Point(0, 20), 0.01);
  fingers(Touch::kEnd, Point(), 0.3);
  clock.Advance(5);
  EXPECT_EQ(mView->GetOffset(), Offset(100, 440));
}

TEST_F(ScrollView, ContentSeesItsOwnCoordinates) {
  SetContent(1000, 5000);
  mView->SetOffset(Offset(300, 4000));
  App().PumpPendingEvents();
  EXPECT_EQ(mContent->mClip, Rect(300, 4000, 200, 100));
  mContent->mTakes = true;
  input::ClickMouse(*mWindow, Point(20, 30));
  EXPECT_EQ(TakeLog(), "content:press@320,4030 content:release@320,4030");
  mContent->mClip = Rect();
  mContent->UI_Invalidate(lumcore::geom::RectT<int>(0, 0, 200, 100),
                          lumcore::utility::Flags<unsigned int>());
  App().PumpPendingEvents();
  EXPECT_TRUE(mContent->mClip.IsEmpty());
  mContent->UI_Invalidate(lumcore::geom::RectT<int>(310, 4010, 5, 5),
                          lumcore::utility::Flags<unsigned int>());
  mContent->UI_UpdateNow(lumcore::utility::Flags<unsigned int>(~0u));
  EXPECT_FALSE(mContent->mClip.IsEmpty());
  // The window's coordinates do not scroll.
  lumcore::geom::PointT<int> point(1, 2);
  mContent->UI_LocalToGlobal(point);
  EXPECT_EQ(point, lumcore::geom::PointT<int>(1, 2));
}

TEST_F(ScrollView, ThousandMillionUnitsScrollToTheUnit) {
  SetContent(100, 1e9f);
  Listen();
  mView->SetLineStep(1);
  mView->SetOffset(Offset(0, 5e8 + 1));
  EXPECT_EQ(mView->GetOffset().y, 5e8 + 1);
  input::TurnWheel(*mWindow, Point(20, 20), Point(0, 1));
  EXPECT_EQ(mView->GetOffset().y, 5e8 + 4);
  // The arrows of the bar move by lines, though one pixel of it is millions of them.
  input::ClickMouse(*mWindow, Point(200 - mThick / 2, 99));
  EXPECT_EQ(mView->GetOffset().y, 5e8 + 5);
  // The slider at the end of the bar is the exact end of the content, and at its start the start.
  mView->SetOffset(Offset(0, 0));
  const Point slider(200 - mThick / 2, mThick + 3);
  input::PressMouse(*mWindow, slider);
  input::MoveMouse(*mWindow, Point(slider.x, 500));
  EXPECT_EQ(mView->GetOffset().y, 1e9 - 100);
  input::MoveMouse(*mWindow, Point(slider.x, -500));
  EXPECT_EQ(mView->GetOffset().y, 0);
  input::ReleaseMouse(*mWindow, Point(slider.x, -500));
  TakeLog();
}

TEST_F(ScrollView, ManualViewGoesWhereItIsTold) {
  class Manual : public controls::UI_ManualScrollView {
   public:
    using UI_ManualScrollView::UI_ManualScrollView;
  };
  const boost::intrusive_ptr<ui::UI_SubView> content(new ui::UI_SubView);
  const boost::intrusive_ptr<Manual> manual(
      new Manual(lumcore::utility::Flags<unsigned int>(), content));
  manual->SetOffset(Offset(-50, 70));
  EXPECT_EQ(manual->GetOffset(), Offset(-50, 70));
  mView->SetOffset(Offset(-50, 70));
  EXPECT_EQ(mView->GetOffset(), Offset(0, 0));
  EXPECT_THROW(mView->SetOffset(Offset(0, std::numeric_limits<double>::quiet_NaN())),
               lumcore::config::Error);
}

}  // namespace lumui::test
