// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <functional>
#include <limits>

#include "support/RecordingPlatformView.h"
#include "vek/trackview/Tracker.h"

namespace {

using namespace vek::trackview;
using test_support::AsText;
using test_support::Joined;

constexpr float kNaN = std::numeric_limits<float>::quiet_NaN();
const Point kNoAnchor(-1, -1);

class Coordinates : public ::testing::Test {
 protected:
  test_support::EventLog mLog;
  test_support::RecordingPlatformView mPlatform{mLog, Point(600, 90)};
};

TEST_F(Coordinates, CarryFactorScaleAndOffsetThroughEachForm) {
  TrackView& view = mPlatform.Show(true, 0.5f, 4);
  view.ResizeDataSize(Point(40, 80), false);
  view.SetCoordScale(3, false, kNoAnchor);
  view.SetCoordFactor(Point(2, 0.5f), false, kNoAnchor);
  mPlatform.mPosition = Point(5, 7);
  // The rectangles go through the points.
  Rect rect(10, 20, 2, 4);
  view.DataToLocal(rect);
  EXPECT_EQ(AsText(rect), "240,30,12,6");
  view.LocalToData(rect);
  EXPECT_EQ(AsText(rect), "10,20,2,4");
  Point point = rect.Origin();
  view.DataToGlobal(point);
  EXPECT_EQ(AsText(point), "1240,2030");
  // The view shows 100 by 60: on x 30 are spare on each side, on y nothing is.
  EXPECT_EQ(AsText(view.GetCoordOffset()) + " " + AsText(view.LocalSize()), "180,0 420,120");
  EXPECT_EQ(AsText(view.DataArea()) + " " + AsText(view.LocalArea()), "5,7,100,60 210,10.5,600,90");
}

// What the platform view was asked for; "=" is the scale behind it.
TEST_F(Coordinates, ScaleIsLimitedAndAnchorsComeToTheMiddle) {
  TrackView& view = mPlatform.Show(true, 0.5f, 4);
  view.ResizeDataSize(Point(1000, 1000), true);
  view.ResizeDataSize(Point(1000, 1000), false);
  view.SetCentering(true);
  view.ViewPortResized();
  EXPECT_EQ(mLog.Take(), "resized! resized");
  const struct {
    float min, max, scale;
    Point anchor;
    const char* log;
  } kSteps[] = {
      {0.5f, 4, 9, Point(200, 100), "resized! pos:125,88.75 draw:125,88.75,150,22.5 =4"},
      {0.5f, 4, 4, Point(1, 1), "=4"},  // the same, and one that is limited to it
      {0.5f, 4, 5, Point(1, 1), "=4"},
      {0.5f, 4, 2, kNoAnchor, "resized! =2"},
      {0.5f, 4, 1, Point(-1, 0), "resized! pos:-301,-45 draw:-301,-45,600,90 =1"},
      {3, 2, 1, kNoAnchor, "resized! =3"},  // the minimum wins
      {3, 2, 8, kNoAnchor, "=3"},
      {3, 2, kNaN, kNoAnchor, "resized! =nan"},
      {3, 2, kNaN, kNoAnchor, "resized! =nan"},  // equals nothing, so it is never the old one
      {3, 3, 3, kNoAnchor, "resized! =3"},
  };
  for (const auto& step : kSteps) {
    view.SetCoordScaleRange(step.min, step.max);
    view.SetCoordScale(step.scale, true, step.anchor);
    mLog.Add("=" + Joined(view.GetCoordScale()));
    EXPECT_EQ(mLog.Take(), step.log) << step.scale;
  }
  // Factors have no limits.
  view.SetCoordFactor(Point(1, 1), true, Point(5, 5));
  view.SetCoordFactor(Point(1, 5), false, Point(300, 5));
  EXPECT_EQ(mLog.Take(), "resized pos:200,2 draw:200,2,200,6");
}

// The visible area is 100,200 to 700,290. A thing at the far edge is out of view, and the view
// stays; what starts in view and is too large moves it by its end.
TEST_F(Coordinates, RevealMovesByTheLeastDistanceAndTheNearEdgeFirst) {
  TrackView& view = mPlatform.Show(false, 1, 1);
  const struct {
    Rect rect;  // a point if the size is negative
    const char* log;
  } kCases[] = {{Rect(100, 200, -1, -1), "in view"},      {Rect(699, 289, -1, -1), "in view"},
                {Rect(700, 250, -1, -1), "pos:100,200!"}, {Rect(710, 195, -1, -1), "pos:110,195!"},
                {Rect(90, 300, -1, -1), "pos:90,210!"},   {Rect(kNaN, 250, -1, -1), "pos:100,200!"},
                {Rect(100, 200, 599, 89), "in view"},     {Rect(100, 200, 600, 10), "pos:100,200!"},
                {Rect(690, 280, 20, 30), "pos:110,220!"}, {Rect(50, 190, 10, 500), "pos:50,190!"},
                {Rect(150, 210, 700, 5), "pos:250,200!"}};
  for (const auto& row : kCases) {
    mPlatform.mPosition = Point(100, 200);
    const bool moved = row.rect.width < 0 ? view.RevealPointIfNotInView(row.rect.Origin(), true)
                                          : view.RevealRectIfNotInView(row.rect, true);
    EXPECT_EQ(mLog.Take() + (moved ? "" : "in view"), row.log) << AsText(row.rect);
  }
  mPlatform.mSize.y = 0;
  EXPECT_TRUE(view.RevealPointIfNotInView(mPlatform.mPosition, false));
}

struct ProbedTracker : Tracker {
  using Tracker::mExitCheck;
  using Tracker::mExited;
  using Tracker::Tracker;
};

// The visible area is 100,200 to 700,290, the margin 15, also around nothing.
TEST_F(Coordinates, TrackerScrollsAndChecksForTheExitBeforeThat) {
  TrackView& view = mPlatform.Show(false, 1, 1);
  const struct {
    bool autoScroll, exitCheck;
    Point size, point;
    const char* log;
  } kCases[] = {{false, false, Point(600, 90), Point(0, 0), ""},
                {false, true, Point(600, 90), Point(85, 304), ""},
                {false, true, Point(600, 90), Point(84, 250), "x"},
                {false, true, Point(600, 90), Point(300, 305), "x"},
                {false, true, Point(0, 0), Point(90, 210), ""},
                {true, false, Point(600, 90), Point(80, 250), "pos:80,200"},
                {true, true, Point(600, 90), Point(80, 250), "pos:80,200x"}};
  for (const auto& row : kCases) {
    mPlatform.mPosition = Point(100, 200);
    mPlatform.mSize = row.size;
    ProbedTracker tracker(&view, row.autoScroll, false);
    tracker.mExitCheck = row.exitCheck;
    tracker.ContinueTracking(Modifiers(), row.point);
    EXPECT_EQ(mLog.Take() + (tracker.mExited ? "x" : ""), row.log) << AsText(row.point);
  }
}

TEST_F(Coordinates, ViewsThatFollowEachOtherComeToRest) {
  mPlatform.Show(false, 1, 1);
  auto header = std::make_unique<test_support::RecordingPlatformView>(mLog, Point(600, 20));
  header->Show(false, 1, 1);
  header->mPosition = Point(1, 2);
  const auto listen = [](PlatformView& inTo, std::function<void(PlatformView*)> inFunction) {
    PlatformView::PositionListener listener(new boost::function<void(PlatformView*)>(inFunction));
    inTo.NotifyWhenDataPosChanged(listener);
    return listener;
  };
  listen(mPlatform, [&](PlatformView* inView) {
    mLog.Add("list");
    header->DependantDataPosChanged(inView, true, false);
  });
  const auto last = listen(mPlatform, [&](PlatformView*) { mLog.Add("last"); });
  listen(*header, [&](PlatformView* inView) {
    mLog.Add("header");
    mPlatform.DependantDataPosChanged(inView, true, false);
  });
  mPlatform.DataPos(Point(30, 40), false);
  EXPECT_EQ(mLog.Take(), "pos:30,40 list pos:30,2! header pos:30,40! last last");
  last->clear();
  header->DataPos(Point(5, 6), true);
  EXPECT_EQ(mLog.Take(), "pos:5,6! header pos:5,40! list pos:5,6!");
  // One that destroys its view ends the walk, and the view empties what it was told to.
  const auto killer = listen(*header, [&](PlatformView*) { header.reset(); });
  listen(*header, [&](PlatformView*) { mLog.Add("behind"); });
  header->SetEmptiesPositionListeners(true);
  header->DataPos(Point(7, 8), false);
  EXPECT_EQ(mLog.Take(), "pos:7,8 header pos:7,40! list pos:7,8!");
  EXPECT_TRUE(killer->empty() && !header);
}

}  // namespace
