// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>

#include "support/RecordingPlatformView.h"
#include "vek/trackview/Tracker.h"

namespace {

using namespace vek::trackview;
using test_support::AsText;
using test_support::Joined;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();

class Coordinates : public ::testing::Test {
 protected:
  test_support::EventLog mLog;
  test_support::RecordingPlatformView mPlatform{mLog, Point(600, 90)};
};

TEST_F(Coordinates, CarryFactorScaleAndOffsetThroughEachForm) {
  TrackView& view = mPlatform.Show(true, 0.5f, 4);
  view.ResizeDataSize(Point(40, 80), false);
  view.SetCoordScale(3, false, Point(-1, -1));
  view.SetCoordFactor(Point(2, 0.5f), false, Point(-1, -1));
  mPlatform.mPosition = Point(5, 7);
  // The view shows 100 by 60: on x 30 are spare on each side, on y nothing is.
  EXPECT_EQ(AsText(view.GetCoordOffset()), "180,0");
  Point point(10, 20);
  view.DataToLocal(point);
  EXPECT_EQ(AsText(point), "240,30");
  view.LocalToData(point);
  EXPECT_EQ(AsText(point), "10,20");
  view.DataToGlobal(point);
  EXPECT_EQ(AsText(point), "1240,2030");
  Rect rect(10, 20, 2, 4);
  view.DataToLocal(rect);
  EXPECT_EQ(AsText(rect), "240,30,12,6");
  view.LocalToData(rect);
  EXPECT_EQ(AsText(rect), "10,20,2,4");
  EXPECT_EQ(AsText(view.LocalSize()), "420,120");
  EXPECT_EQ(AsText(view.DataArea()), "5,7,100,60");
  EXPECT_EQ(AsText(view.LocalArea()), "210,10.5,600,90");
}

// Each step is one call, and what the platform view was asked for; "=" is the scale behind it.
TEST_F(Coordinates, ScaleIsLimitedAndAnchorsComeToTheMiddle) {
  TrackView& view = mPlatform.Show(true, 0.5f, 4);
  view.ResizeDataSize(Point(1000, 1000), false);
  mLog.Take();
  const struct {
    const char* what;
    std::function<void()> call;
    const char* log;
  } kSteps[] = {
      {"above the limit", [&] { view.SetCoordScale(9, true, Point(200, 100)); },
       "resized! pos:125,88.75 draw:125,88.75,150,22.5 =4"},
      {"the same again", [&] { view.SetCoordScale(4, true, Point(1, 1)); }, "=4"},
      {"limited to the same", [&] { view.SetCoordScale(5, true, Point(1, 1)); }, "=4"},
      {"no anchor", [&] { view.SetCoordScale(2, false, Point(-1, -1)); }, "resized =2"},
      {"half of no anchor", [&] { view.SetCoordScale(1, false, Point(-1, 0)); },
       "resized pos:-301,-45 draw:-301,-45,600,90 =1"},
      {"crossed limits", [&] { view.SetCoordScaleRange(3, 2); }, "=1"},
      {"the minimum wins", [&] { view.SetCoordScale(1, false, Point(-1, -1)); }, "resized =3"},
      {"also downward", [&] { view.SetCoordScale(8, false, Point(-1, -1)); }, "=3"},
      {"the same factor", [&] { view.SetCoordFactor(Point(1, 1), true, Point(5, 5)); }, "=3"},
      {"a factor has no limits", [&] { view.SetCoordFactor(Point(1, 5), true, Point(300, 5)); },
       "resized! pos:200,2 draw:200,2,200,6 =3"},
      {"no number", [&] { view.SetCoordScale(kNaN, false, Point(-1, -1)); }, "resized =nan"},
      {"and again", [&] { view.SetCoordScale(kNaN, false, Point(-1, -1)); }, "resized =nan"},
  };
  for (const auto& step : kSteps) {
    step.call();
    mLog.Add("=" + Joined(view.GetCoordScale()));
    EXPECT_EQ(mLog.Take(), step.log) << step.what;
  }
}

TEST_F(Coordinates, AreComputedAnewWhenViewOrContentChanges) {
  TrackView& view = mPlatform.Show(false, 1, 1);
  view.ResizeDataSize(Point(500, 50), true);
  view.ResizeDataSize(Point(500, 50), false);
  view.SetCentering(false);
  view.ViewPortResized();
  mLog.Add(AsText(view.GetCoordOffset()));
  view.SetCentering(true);
  view.ViewPortResized();
  mPlatform.mSize = Point(500, 60);  // as wide as the content
  view.ViewPortResized();
  mLog.Add(AsText(view.GetCoordOffset()));
  EXPECT_EQ(mLog.Take(), "resized! resized 0,0 resized! resized! 0,5");
}

// The visible area is 100,200 to 700,290.
TEST_F(Coordinates, RevealMovesByTheLeastDistanceAndTheNearEdgeFirst) {
  TrackView& view = mPlatform.Show(false, 1, 1);
  const struct {
    Rect rect;  // a point if the size is negative
    const char* log;
  } kCases[] = {
      {Rect(100, 200, -1, -1), ""},
      {Rect(699, 289, -1, -1), ""},
      {Rect(700, 250, -1, -1), "pos:100,200!"},  // at the far edge: out of view, and stays
      {Rect(710, 195, -1, -1), "pos:110,195!"},
      {Rect(90, 300, -1, -1), "pos:90,210!"},
      {Rect(kNaN, 250, -1, -1), "pos:100,200!"},
      {Rect(100, 200, 599, 89), ""},
      {Rect(100, 200, 600, 10), "pos:100,200!"},
      {Rect(690, 280, 20, 30), "pos:110,220!"},
      {Rect(50, 190, 10, 500), "pos:50,190!"},
      {Rect(150, 210, 700, 5), "pos:250,200!"},  // starts in view, so its end counts
  };
  for (const auto& row : kCases) {
    mPlatform.mPosition = Point(100, 200);
    const bool moved = row.rect.width < 0 ? view.RevealPointIfNotInView(row.rect.Origin(), true)
                                          : view.RevealRectIfNotInView(row.rect, true);
    const std::string log = mLog.Take();
    EXPECT_EQ(log, row.log) << AsText(row.rect);
    EXPECT_EQ(moved, !log.empty()) << AsText(row.rect);
  }
  mPlatform.mSize.y = 0;
  EXPECT_TRUE(view.RevealPointIfNotInView(mPlatform.mPosition, false));
  EXPECT_NE(mLog.Take(), "");
}

class ProbedTracker : public Tracker {
 public:
  ProbedTracker(TrackView& inView, bool inAutoScroll, bool inExitCheck)
      : Tracker(&inView, inAutoScroll, false) {
    mExitCheck = inExitCheck;
  }
  bool Continue(const Point& inPoint) {
    ContinueTracking(Modifiers(), inPoint);
    return mExited;
  }
};

// "x" is an exit. The visible area is 100,200 to 700,290, the margin 15.
TEST_F(Coordinates, TrackerScrollsAndChecksForTheExitBeforeThat) {
  TrackView& view = mPlatform.Show(false, 1, 1);
  const struct {
    bool autoScroll, exitCheck;
    Point point;
    const char* log;
  } kCases[] = {
      {false, false, Point(0, 0), ""},
      {false, true, Point(85, 250), ""},
      {false, true, Point(84, 250), "x"},
      {false, true, Point(715, 250), "x"},
      {false, true, Point(714, 304), ""},
      {true, false, Point(90, 250), "pos:90,200"},
      {true, true, Point(90, 250), "pos:90,200"},
      {true, true, Point(80, 250), "pos:80,200 x"},
  };
  for (const auto& row : kCases) {
    mPlatform.mPosition = Point(100, 200);
    if (ProbedTracker(view, row.autoScroll, row.exitCheck).Continue(row.point)) mLog.Add("x");
    EXPECT_EQ(mLog.Take(), row.log) << AsText(row.point);
  }
  // Nothing visible still has the margin around it.
  mPlatform.mSize = Point(0, 0);
  EXPECT_FALSE(ProbedTracker(view, false, true).Continue(Point(90, 210)));
}

TEST_F(Coordinates, ViewsThatFollowEachOtherComeToRest) {
  mPlatform.Show(false, 1, 1);
  auto header = std::make_unique<test_support::RecordingPlatformView>(mLog, Point(600, 20));
  header->Show(false, 1, 1);
  header->mPosition = Point(1, 2);
  const auto listener = [](std::function<void(PlatformView*)> inFunction) {
    return PlatformView::PositionListener(
        new boost::function<void(PlatformView*)>(std::move(inFunction)));
  };
  mPlatform.NotifyWhenDataPosChanged(listener([&](PlatformView* inView) {
    mLog.Add("list");
    header->DependantDataPosChanged(inView, true, false);
  }));
  const auto last = listener([&](PlatformView*) { mLog.Add("last"); });
  mPlatform.NotifyWhenDataPosChanged(last);
  header->NotifyWhenDataPosChanged(listener([&](PlatformView* inView) {
    mLog.Add("header");
    mPlatform.DependantDataPosChanged(inView, true, false);
  }));
  mPlatform.DataPos(Point(30, 40), false);
  EXPECT_EQ(mLog.Take(), "pos:30,40 list pos:30,2! header pos:30,40! last last");
  last->clear();
  header->DataPos(Point(5, 6), true);
  EXPECT_EQ(mLog.Take(), "pos:5,6! header pos:5,40! list pos:5,6!");

  // One that destroys its view ends the walk, and the view empties what it was told to.
  const auto killer = listener([&](PlatformView*) { header.reset(); });
  const auto behind = listener([&](PlatformView*) { mLog.Add("behind"); });
  header->SetEmptiesPositionListeners(true);
  header->NotifyWhenDataPosChanged(killer);
  header->NotifyWhenDataPosChanged(behind);
  mPlatform.NotifyWhenDataPosChanged(last);  // in the place of the empty one, which is dropped
  header->DataPos(Point(7, 8), false);
  EXPECT_EQ(mLog.Take(), "pos:7,8 header pos:7,40! list pos:7,8!");
  EXPECT_TRUE(killer->empty() && behind->empty());
  EXPECT_EQ(header, nullptr);
}

}  // namespace
