// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QWidget>
#include <boost/make_shared.hpp>
#include <cmath>
#include <memory>

#include "lumcore/config/ThrowError.h"
#include "lumui/controls/UI_ScrollBar.h"
#include "lumui/testing/VirtualClock.h"
#include "trackview/RealView.h"
#include "vek/trackview/LUMPlatformViewAdapter.h"

namespace {

using namespace vek::trackview;
using test_support::AsText;
using test_support::RealView;
namespace input = lumui::testing;

class PlatformViews : public RealView {
 protected:
  // The bars are as thick as the style makes them.
  float Thick() { return mScroll->GetScrollBarY()->GetThickness(); }
  std::string Position() { return AsText(View().DataPos()); }
  void Rescale(float inScale, const Point& inSize) {
    Track().SetCoordScale(inScale, true, Point(-1, -1));
    Track().ResizeDataSize(inSize, true);
    View().DataPos(Point(0, 0), true);
  }
};

// The corner of the view is the data point (50, 60), local (100, 120), window (10, 20).
TEST_F(PlatformViews, ConvertWithTheScrollAndRoundHalvesUpward) {
  Point point(100, 120);
  View().LocalToGlobal(point);
  EXPECT_EQ(AsText(point), "10,20");
  point = Point(-0.5f, -1.5f);
  View().LocalToGlobal(point);
  EXPECT_EQ(AsText(point), "-90,-101");
  point = Point(10.5f, 19.4f);
  View().GlobalToLocal(point);
  EXPECT_EQ(AsText(point), "101,119");
  EXPECT_EQ(View().DataSize(), Point((180 - Thick()) / 2, (80 - Thick()) / 2));
  EXPECT_EQ(View().LocalArea(), Rect(100, 120, 180 - Thick(), 80 - Thick()));
}

TEST_F(PlatformViews, GoWhereTheyAreToldWithinTheContent) {
  // Local 20.4 and 43.6. Every fourth unit is a whole pixel at each scale of the screen.
  View().DataPos(Point(10.2f, 21.8f), true);
  EXPECT_EQ(Position(), "10,22");
  View().DataPos(Point(-5, 1e6f), false);
  EXPECT_EQ(View().DataPos().x, 0);
  EXPECT_NEAR(View().DataPos().y, 400 - View().DataSize().y, 0.25);  // to the pixel
  // Content exactly as wide as the view stays, though the other bar lies over a part of it.
  Rescale(1, Point(180, 300));
  View().DataPos(Point(4, 8), true);
  EXPECT_EQ(Position(), "0,8");
  // Content exactly as high does not.
  Rescale(1, Point(300, 80));
  View().DataPos(Point(4, 8), true);
  EXPECT_EQ(Position(), "4,8");

  // An outside owner decides about a manual view.
  LUMPlatformView* const view = &View();
  const boost::intrusive_ptr<lumui::controls::UI_ScrollView> manual(
      new lumui::controls::UI_ManualScrollView(lumcore::utility::Flags<unsigned int>(), view));
  manual->UI_SetLocalRectF(Rect(0, 0, 100, 100));
  view->DataPos(Point(-30, 20), false);
  EXPECT_EQ(AsText(view->DataPos()), "-30,20");
  // Without a scroll view it stays.
  manual->UI_RemoveChild(view);
  view->DataPos(Point(7, 8), true);
  EXPECT_EQ(AsText(view->DataPos()) + " " + AsText(view->LocalArea()), "0,0 0,0,100,100");
}

TEST_F(PlatformViews, TellWhenTheyMove) {
  View().NotifyWhenDataPosChanged(boost::make_shared<boost::function<void(PlatformView*)>>(
      [&](PlatformView* inView) { mLog.Add(AsText(inView->DataPos())); }));
  View().DataPos(Point(0, 10), true);
  mScroll->SetLineStep(4);
  input::TurnWheel(*mWindow, At(60, 70), Point(0, 1));  // three lines of 2 data units
  const auto other = PlatformScrollView::Create();
  mScroll->SetOffset(lumcore::geom::PointT<double>(0, 0));  // by the program
  View().DependantDataPosChanged(&other->GetPlatformView(), true, true);
  EXPECT_EQ(mLog.Take(), "0,10 0,16 0,0");
}

// At the window's (70, 60), which is the view's (60, 40).
TEST_F(PlatformViews, ZoomUnderThePointerWhereAHostWantsIt) {
  const auto turn = [&](float inNotches) {
    input::TurnWheel(*mWindow, Point(70, 60), Point(0, inNotches),
                     lumui::ui::ModifierKeys(lumui::ui::kModCommand));
    return std::to_string(Track().GetCoordScale()).substr(0, 4) + "@" + Position();
  };
  EXPECT_EQ(turn(0.5f).substr(0, 8), "2.00@50,");  // scrolls
  View().DataPos(Point(50, 60), true);
  View().SetZoomsByWheel(true);
  EXPECT_EQ(turn(-1), "2.50@56,64");  // 80,80 stays under it
  EXPECT_EQ(turn(1), "2.00@50,60");
  EXPECT_EQ(turn(-9), "4.00@65,70");
  mLog.Take();
  EXPECT_EQ(turn(-1), "4.00@65,70");
  App().PumpPendingEvents();
  EXPECT_EQ(mLog.Take(), "");
  EXPECT_EQ(turn(100), "0.25@0,0");
}

TEST_F(PlatformViews, DrawWhatIsDamagedAndFollowTheirSize) {
  // Where the corner of the view is in the middle of a pixel, whole pixels are drawn.
  const double pixels = QApplication::activeWindow()->devicePixelRatioF();
  const bool hasParts = pixels != std::floor(pixels);
  mOverlay->SetState(Overlay::kStateActive);
  View().UI_InvalidateAll();
  App().PumpPendingEvents();
  EXPECT_EQ(mLog.Take(), pixels == 1.25 ? "v:draw@50.2,60,89.8,40" : "v:draw@50,60,90,40");
  // Local 101.5 to 102.5 lies in two columns, and in two rows.
  View().InvalidateDataRect(Rect(50.75f, 60.75f, 0.5f, 0.5f));
  App().PumpPendingEvents();
  const std::string drawn = mLog.Take();
  EXPECT_EQ(hasParts ? drawn.substr(0, 11) : drawn,
            hasParts ? "v:draw@50.6" : "v:draw@50.5,60.5,1,1");
  mOverlay->SetState(Overlay::kStateNoDraw);
  mScroll->UI_SetLocalRectF(Rect(10, 20, 180, 70));
  EXPECT_EQ(mLog.Take(), "v:port");
  Track().SetCentering(true);
  Rescale(0.25f, Point(300, 80));  // 75 by 20
  mScroll->UI_SetLocalRectF(Rect(10, 20, 180, 60));
  EXPECT_EQ(AsText(Track().GetCoordOffset()) + " " + mLog.Take(), "52.5,20 v:port");
}

TEST_F(PlatformViews, PassKeysButNotTheSystems) {
  const auto key = lumui::ui::KeyboardCode::CreateFromKeyboardChar('A', false);
  input::TapKey(*mWindow, key);
  EXPECT_EQ(mLog.Take(), "v:key v:key v:key");  // down, character, up
  input::PressKey(*mWindow, key, lumui::ui::ModifierKeys(lumui::ui::kModAlt));
  EXPECT_EQ(mLog.Take(), "");
}

TEST_F(PlatformViews, TimersEndWithTheTrackViewTheyAreOf) {
  input::VirtualClock clock;
  const unsigned timer = Track().StartTimerForOverlay(mOverlay, 1);
  clock.Advance(2.5);
  EXPECT_EQ(mLog.Take(), "v:timer v:timer");
  std::auto_ptr<TrackView> next(new TrackView(View(), false, 1, 1));
  View().SetTrackView(next);
  clock.Advance(1);
  EXPECT_EQ(mLog.Take(), "~v");
  EXPECT_THROW(View().UI_RemoveTimer(timer, true), lumcore::config::Error);
}

TEST_F(PlatformViews, ShowAgainWhatAPressWouldDo) {
  Park();
  View().DoNonMouseTrack(true);
  EXPECT_EQ(Take(), "v:acquire?@60,70 hover@60,70 ~tracker");
  // The content has moved away under the pointer.
  View().DataPos(Point(50, 71), true);
  View().DoNonMouseTrack(true);
  EXPECT_EQ(Take(), "");
  View().DoNonMouseTrack(false);
  EXPECT_EQ(Take(), "v:acquire?@60,70 hover@60,70 ~tracker");
}

TEST_F(PlatformViews, ComeWholeOutOfArchives) {
  auto& adapters = lumui::ui::UI_NodeAdapterRegistry::Get();
  adapters.RegisterIfNew(std::make_unique<LUMPlatformViewAdapter>());
  adapters.RegisterIfNew(std::make_unique<LUMPlatformViewAdapter>());
  EXPECT_EQ(adapters.FindFor(*mScroll).GetNodeClass(), "vek::LUMPlatformView");
  const auto node = adapters.Find("vek::LUMPlatformView")->CreateNode(lumui::ui::NodeSource());
  lumui::ui::UI_NodeAdapterRegistry::Reset();
  auto& view = dynamic_cast<PlatformScrollView&>(*node).GetPlatformView();
  view.GetTrackView()->SetCoordScale(2, true, Point(-1, -1));
  EXPECT_EQ(view.GetTrackView()->GetCoordScale(), 1);
}

}  // namespace
