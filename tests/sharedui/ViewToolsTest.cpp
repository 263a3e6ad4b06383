// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cmath>

#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/Theme.h"
#include "trackview/RealView.h"
#include "vek/sharedui/MarqeeOverlay.h"
#include "vek/sharedui/PanOverlay.h"
#include "vek/sharedui/ZoomOverlay.h"

namespace {

using namespace vek::sharedui;
using namespace vek::trackview;
using test_support::AsText;

constexpr unsigned char kAlt = lumui::ui::kModAlt;
constexpr auto kLayer = static_cast<Overlay::LayerType>(0);

class ViewTools : public test_support::RealView {
 protected:
  template <class Tool>
  Tool* Install() {
    Tool* const tool = new Tool(&Track(), kLayer, Overlay::kStateActive);
    std::auto_ptr<Overlay> overlay(tool);
    Track().InstallOverlay(overlay, true);
    return tool;
  }
  void GoTo(float inScale, const Point& inPosition) {
    Track().SetCoordScale(inScale, true, Point(-1, -1));
    View().DataPos(inPosition, true);
    App().PumpPendingEvents();
    mLog.Take();
  }
  // In the window, as the view is scrolled and zoomed now.
  Point Window(const Point& inDataPoint) {
    Point point = inDataPoint;
    Track().DataToGlobal(point);
    return point;
  }
  void Press(float inX, float inY, unsigned char inModifiers = 0) {
    lumui::testing::PressMouse(*mWindow, Window(Point(inX, inY)),
                               lumui::ui::PointerEvent::kLeftButton,
                               lumui::ui::ModifierKeys(inModifiers));
  }
  void Move(float inX, float inY, unsigned char inModifiers = 0) {
    lumui::testing::MoveMouse(*mWindow, Window(Point(inX, inY)),
                              lumui::ui::ModifierKeys(inModifiers));
  }
  // Where the pointer was last.
  void Release(unsigned char inModifiers = 0) {
    lumui::testing::ReleaseMouse(*mWindow, mAt, lumui::ui::PointerEvent::kLeftButton,
                                 lumui::ui::ModifierKeys(inModifiers));
  }
  // What is drawn anew, as the overlay behind is asked for it.
  std::string TakeDamage() {
    mLog.Take();
    mOverlay->SetState(Overlay::kStateActive);
    App().PumpPendingEvents();
    mOverlay->SetState(Overlay::kStateNoDraw);
    return mLog.Take();
  }
  // "scale@x,y" of the middle of the view, in whole units.
  std::string Shown() {
    const Point position = View().DataPos();
    const Point size = View().DataSize();
    return test_support::Joined(Track().GetCoordScale()) + "@" +
           AsText(Point(std::round(position.x + size.x / 2), std::round(position.y + size.y / 2)));
  }

  Point mAt;
};

TEST_F(ViewTools, ZoomByStepsAtAClickAndToTheRectangleOfADrag) {
  Install<ZoomOverlay>();
  Track().SetCoordScaleRange(0.25f, 9);
  Track().ResizeDataSize(Point(3000, 4000), true);
  const float fit = View().DataSize().x * Track().GetCoordScale() / 40;
  const struct {
    const char* what;
    float scale;
    unsigned char pressKeys, releaseKeys;
    Point to;  // from (1000, 1200)
    std::string shown;
  } kCases[] = {
      {"in, above 1", 1.5f, 0, 0, {1000, 1200}, "2.5@1000,1200"},
      {"in, at 1", 1, 0, 0, {1000, 1200}, "2@1000,1200"},
      {"in, below 1", 0.25f, 0, 0, {1000, 1200}, "0.5@1000,1200"},
      {"out, above 1", 1.5f, kAlt, kAlt, {1000, 1200}, "0.5@1000,1200"},
      {"out, at 1", 1, kAlt, kAlt, {1000, 1200}, "0.5@1000,1200"},
      {"the release decides", 4, 0, kAlt, {1000, 1200}, "3@1000,1200"},
      {"within the box", 4, 0, 0, {1002.75f, 1202.75f}, "5@1003,1203"},
      {"on its near edge", 4, 0, 0, {997, 1197}, "5@997,1197"},
      {"on its far edge", 4, 0, 0, {1003, 1203}, "9@1002,1202"},
      {"a flat drag", 4, 0, 0, {1010, 1200.75f}, "5@1010,1201"},
      {"the wider fit counts", 2, 0, 0, {1040, 1224}, test_support::Joined(fit) + "@1020,1212"},
      {"backwards", 2, 0, 0, {960, 1176}, test_support::Joined(fit) + "@980,1188"},
      {"pressed to zoom out", 2, kAlt, 0, {1040, 1225}, "3@1040,1225"},
  };
  for (const auto& row : kCases) {
    GoTo(row.scale, Point(std::min(row.to.x, 1000.f) - 10, std::min(row.to.y, 1200.f) - 4));
    Press(1000, 1200, row.pressKeys);
    mAt = Window(row.to);
    if (row.to != Point(1000, 1200)) Move(row.to.x, row.to.y, row.pressKeys);
    Release(row.releaseKeys);
    EXPECT_EQ(Shown(), row.shown) << row.what;
  }
}

TEST_F(ViewTools, ZoomLeavesNoRectangleBehind) {
  ZoomOverlay* const tool = Install<ZoomOverlay>();
  Press(60, 70);
  Move(62, 72);
  EXPECT_EQ(TakeDamage(), "");
  Move(70, 75);
  Move(64, 80);
  EXPECT_EQ(TakeDamage(), "v:draw@60,70,10,10");
  const auto surface = mWindow->UI_GetDrawSupplier()->NewSurface(40, 40);
  surface->GetDrawbot().Translate(-120, -140);
  tool->DoImageRect(Rect(60, 70, 100, 100), surface->GetDrawbot(), nullptr);
  const auto Alpha = [&](int inX, int inY) { return surface->GetPixel(inX, inY).alpha; };
  // Local 8 by 20, inset by 2: the edge from 1 to 3, the rest half clear.
  EXPECT_EQ(Alpha(0, 10), 0);
  EXPECT_EQ(surface->GetPixel(1, 10), lumui::drawbot::ColorRGBA(1, 1, 1));
  EXPECT_NEAR(Alpha(4, 10), 0.5f, 0.01f);
  // At the greatest scale the view stays, so the rectangle is drawn away.
  Track().SetCoordScaleRange(1, 2);
  mAt = At(64, 80);
  Release();
  EXPECT_EQ(TakeDamage(), "v:draw@60,70,4,10");
  Press(60, 70);
  Move(64, 80);
  TakeDamage();
  Move(60, 80);
  mAt = At(60, 80);
  Release();
  EXPECT_EQ(TakeDamage() + Shown().substr(0, 2), "v:draw@60,70,4,102@");
  // A fit at the scale of now, below the greatest, is one more.
  Track().SetCoordScaleRange(1, 4);
  const Point size = View().DataSize();
  Press(50, 60);
  Move(50 + size.x, 60 + size.y);
  mAt = At(50 + size.x, 60 + size.y);
  Release();
  EXPECT_EQ(Shown().substr(0, 2), "3@");
}

TEST_F(ViewTools, ZoomOutlivesItsOverlay) {
  ZoomOverlay* const tool = Install<ZoomOverlay>();
  Press(60, 70);
  Move(70, 75);
  Track().RemoveOverlay(tool);
  Move(80, 80);
  mAt = At(80, 80);
  Release();
  EXPECT_EQ(Shown(), "4@70,75");
}

TEST_F(ViewTools, PanKeepsTheGripAlsoWhereTheViewEnds) {
  Install<PanOverlay>();
  const auto Drag = [&](float inX, float inY) {
    lumui::testing::MoveMouse(*mWindow, At(inX, inY));
    return AsText(View().DataPos());
  };
  lumui::testing::PressMouse(*mWindow, At(60, 70));
  EXPECT_EQ(Drag(75, 64), "35,66");
  EXPECT_EQ(Drag(130, 64), "0,66");  // 20 beyond the end
  EXPECT_EQ(Drag(110, 64), "0,66");
  EXPECT_EQ(Drag(90, 70), "20,60");
  lumui::testing::ReleaseMouse(*mWindow, At(90, 70));
  EXPECT_EQ(Drag(95, 70), "20,60");
}

TEST_F(ViewTools, MarqueeAsksForWhereItWasAndWhereItIs) {
  MarqeeOverlay* const band = Install<MarqeeOverlay>();
  TakeDamage();
  band->SetMarqueeRect(Rect(80, 75, 10, 6));
  EXPECT_EQ(TakeDamage(), "v:draw@80,75,10,6");
  band->SetMarqueeRect(Rect(81, 76, 10, 6));
  EXPECT_EQ(TakeDamage(), "v:draw@60,60,50,33");
  band->SetMarqueeRect(Rect(81, 76, 0, 6));
  EXPECT_EQ(TakeDamage(), "v:draw@61,60,50,33");
  band->SetMarqueeRect(Rect(1, 1, -3, 6));
  EXPECT_EQ(TakeDamage(), "");
}

}  // namespace
