// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QWidget>
#include <cmath>

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/UI_SubView.h"
#include "support/ShownPicture.h"
#include "trackview/RealView.h"
#include "vek/sharedui/MarqeeOverlay.h"

namespace {

using namespace vek::trackview;
using test_support::ShownPicture;
constexpr auto kNear = static_cast<Overlay::LayerType>(0);

// Cells of 16 data units, each in the colour of its place.
class Cells : public Overlay {
 public:
  explicit Cells(const TrackView& inView)
      : Overlay(kLayerDefault, kStateActive), mTrackView(inView) {}
  void DoImageRect(const Rect& inRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme>) const override {
    mDrawn += inRect.width * inRect.height;
    // Between cells that end in the middle of a pixel it is seen.
    inDrawbot.FillRect(inDrawbot.GetClipBounds(), lumui::drawbot::ColorRGBA(1, 1, 1, 1));
    for (int y = At(inRect.y); y <= At(inRect.Bottom()); ++y) {
      for (int x = At(inRect.x); x <= At(inRect.Right()); ++x) {
        Rect cell(static_cast<float>(x) * kCell, static_cast<float>(y) * kCell, kCell, kCell);
        mTrackView.DataToLocal(cell);
        const lumui::drawbot::ColorRGBA colour(Shade(x, y, 7), Shade(x, y, 5), Shade(x, y, 3), 1);
        inDrawbot.FillRect(cell, inDrawbot.GetSupplier()->NewBrush(colour));
      }
    }
  }
  // How much was asked for, in data units.
  mutable float mDrawn = 0;

 private:
  static constexpr float kCell = 16;

  static int At(float inPosition) { return static_cast<int>(std::floor(inPosition / kCell)); }
  static float Shade(int inX, int inY, int inStep) {
    return static_cast<float>((inX * inStep + inY * (inStep + 1)) & 15) / 15;
  }

  const TrackView& mTrackView;
};

// Lies over the view and draws something of its own.
class Cover : public lumui::ui::UI_SubView {
 public:
  explicit Cover(float inAlpha) : mAlpha(inAlpha) { UI_SetOpaque(inAlpha == 1); }
  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override {
    const lumui::drawbot::ColorRGBA colour(0.2f, 0.7f, 0.1f, mAlpha);
    inDrawbot->FillRect(inDrawbot->GetClipBounds(), inDrawbot->GetSupplier()->NewBrush(colour));
  }

 private:
  float mAlpha;
};

class Repaints : public test_support::RealView {
 protected:
  Repaints() {
    Install(mCells = new Cells(Track()));
    ShownPicture();
  }
  void Install(Overlay* inOverlay) {
    std::auto_ptr<Overlay> overlay(inOverlay);
    Track().InstallOverlay(overlay, false);
    View().UI_InvalidateAll();
  }
  // What the change paints anew is all that it changes, and it changes something.
  template <class Change>
  void ExpectWhole(const char* inWhat, const Change& inChange) {
    const QImage before = ShownPicture();
    inChange();
    const QImage shown = ShownPicture();
    EXPECT_NE(shown, before) << inWhat;
    EXPECT_EQ(test_support::Difference(shown, test_support::WholePicture()), "") << inWhat;
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
  // Over the middle of the view, so that there is something at each side of it.
  void PutCover(float inAlpha) {
    const boost::intrusive_ptr<Cover> cover(new Cover(inAlpha));
    cover->UI_SetLocalRectF(Rect(70, 45, 60, 25));
    mWindow->UI_AddChild(cover);
    mCover = cover;
  }

  Cells* mCells = nullptr;
  boost::intrusive_ptr<Cover> mCover;
};

TEST_F(Repaints, LeaveNothingOfWhatWasThere) {
  ExpectWholeAt(Point(50, 60));
}

// What is on the screen already moves there, beside and around what covers it.
TEST_F(Repaints, LeaveNothingWhereThePictureMoves) {
  mScroll->SetMovesPicture(true);
  ShownPicture();
  mCells->mDrawn = 0;
  View().DataPos(View().DataPos() + Point(0, 1), false);
  ShownPicture();
  const Point size = View().DataSize();
  // With parts of pixels in a unit all is drawn anew.
  const qreal scale = QApplication::activeWindow()->devicePixelRatioF();
  if (scale == std::floor(scale)) {
    EXPECT_LT(mCells->mDrawn, size.x * size.y * 0.3f);
  }
  for (const float alpha : {0.0f, 0.5f, 1.0f}) {
    SCOPED_TRACE(alpha);
    if (alpha > 0) PutCover(alpha);
    View().DataPos(Point(50, 60), false);
    for (const Point& step : {Point(3, 4), Point(-5, 2), Point(0, -3), Point(2, 0), Point(40, -20)})
      ExpectWhole("step", [&] { View().DataPos(View().DataPos() + step, false); });
    ExpectWhole("two steps at once", [&] {
      View().DataPos(View().DataPos() + Point(4, 3), false);
      View().InvalidateDataRect(Rect(60, 70, 5, 5));
      View().DataPos(View().DataPos() + Point(-1, 5), false);
    });
    ExpectWhole("other data and a step", [&] {
      Track().ResizeDataSize(Track().DataSize() + Point(10, 200), true);
      View().DataPos(View().DataPos() + Point(4, 3), false);
    });
    ExpectWhole("zoom and a step", [&] {
      const float other = Track().GetCoordScale() == 2 ? 3.0f : 2.0f;
      Track().SetCoordScale(other, true, Point(-1, -1));
      View().DataPos(Point(57, 63), false);
    });
    if (!mCover) continue;
    ExpectWhole("another place for what covers", [&] {
      mCover->UI_SetLocalRectF(Rect(20, 30, 60, 25));
      View().DataPos(View().DataPos() + Point(2, 2), false);
    });
    mWindow->UI_RemoveChild(mCover.get());
  }
}

// A thousand million units on the screen, of which a float knows every 64th.
TEST_F(Repaints, LeaveNothingFarDownEither) {
  Track().ResizeDataSize(Point(300, 5e8f), true);
  ExpectWholeAt(Point(50, 499999008));
}

}  // namespace
