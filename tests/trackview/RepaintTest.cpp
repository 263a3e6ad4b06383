// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QImage>
#include <QScreen>
#include <QWidget>
#include <cmath>

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "trackview/RealView.h"
#include "vek/sharedui/MarqeeOverlay.h"

namespace {

using namespace vek::trackview;
constexpr auto kNear = static_cast<Overlay::LayerType>(0);

// Cells of 16 data units, each in the colour of its place.
class Cells : public Overlay {
 public:
  explicit Cells(const TrackView& inView)
      : Overlay(kLayerDefault, kStateActive), mTrackView(inView) {}
  void DoImageRect(const Rect& inRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme>) const override {
    for (int y = At(inRect.y); y <= At(inRect.Bottom()); ++y) {
      for (int x = At(inRect.x); x <= At(inRect.Right()); ++x) {
        Rect cell(static_cast<float>(x) * kCell, static_cast<float>(y) * kCell, kCell, kCell);
        mTrackView.DataToLocal(cell);
        const lumui::drawbot::ColorRGBA colour(Shade(x, y, 7), Shade(x, y, 5), Shade(x, y, 3), 1);
        inDrawbot.FillRect(cell, inDrawbot.GetSupplier()->NewBrush(colour));
      }
    }
  }

 private:
  static constexpr float kCell = 16;

  static int At(float inPosition) { return static_cast<int>(std::floor(inPosition / kCell)); }
  static float Shade(int inX, int inY, int inStep) {
    return static_cast<float>((inX * inStep + inY * (inStep + 1)) & 15) / 15;
  }

  const TrackView& mTrackView;
};

class Repaints : public test_support::RealView {
 protected:
  Repaints() {
    Install(new Cells(Track()));
    Picture();
  }
  void Install(Overlay* inOverlay) {
    std::auto_ptr<Overlay> overlay(inOverlay);
    Track().InstallOverlay(overlay, false);
    View().UI_InvalidateAll();
  }
  // Of the window as it is shown, after what has been asked for has been painted.
  QImage Picture() {
    App().PumpPendingEvents();
    const QWidget& window = *QApplication::activeWindow();
    return window.screen()->grabWindow(window.winId()).toImage();
  }
  // What the change paints anew is all that it changes, and it changes something.
  template <class Change>
  void ExpectWhole(const char* inWhat, const Change& inChange) {
    const QImage before = Picture();
    inChange();
    const QImage painted = Picture();
    EXPECT_NE(painted, before) << inWhat;
    QApplication::activeWindow()->update();
    EXPECT_EQ(painted, Picture()) << inWhat;
  }
  void ExpectWholeAt(const Point& inStart) {
    View().DataPos(inStart, true);
    ExpectWhole("scroll", [&] { View().DataPos(inStart + Point(3, 64), true); });
    ExpectWhole("wheel", [&] { lumui::testing::TurnWheel(*mWindow, At(60, 70), Point(0, -1)); });
    ExpectWhole("zoom", [&] { Track().SetCoordScale(3, true, inStart + Point(40, 40)); });
    View().SetZoomsByWheel(true);
    ExpectWhole("zoom at the pointer", [&] {
      lumui::testing::TurnWheel(*mWindow, At(60, 70), Point(0, 2),
                                lumui::ui::ModifierKeys(lumui::ui::kModCommand));
    });
    Track().SetCoordScale(2, true, Point(-1, -1));
    View().DataPos(inStart, true);
    auto* const marquee = new vek::sharedui::MarqeeOverlay(&Track(), kNear, Overlay::kStateActive);
    Install(marquee);
    marquee->SetMarqueeRect(Rect(inStart.x + 10, inStart.y + 8, 30, 40));
    ExpectWhole("marquee",
                [&] { marquee->SetMarqueeRect(Rect(inStart.x + 12, inStart.y + 5, 40, 45)); });
    ExpectWhole("no marquee", [&] { marquee->SetMarqueeRect(Rect()); });
    Track().RemoveOverlay(marquee);
  }
};

TEST_F(Repaints, LeaveNothingOfWhatWasThere) {
  ExpectWholeAt(Point(50, 60));
}

// A thousand million units on the screen, of which a float knows every 64th.
TEST_F(Repaints, LeaveNothingFarDownEither) {
  Track().ResizeDataSize(Point(300, 5e8f), true);
  ExpectWholeAt(Point(50, 499999008));
}

}  // namespace
