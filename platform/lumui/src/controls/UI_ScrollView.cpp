// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/controls/UI_ScrollView.h"

#include <QPalette>
#include <QWidget>
#include <algorithm>
#include <cmath>

#include "controls/ScrollBarPeer.h"
#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumui/controls/UI_ScrollBar.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"

namespace lumui::controls {

namespace {

using Point = lumcore::geom::PointT<double>;
using Rect = lumcore::geom::RectT<float>;

constexpr double kLinesANotch = 3;
constexpr unsigned kGlideTimer = ~0u;  // an id that hosts will hardly choose

// What lies over a widget's rectangle, in the widget's coordinates: the later ones among its
// siblings, and among those of what it lies in.
QRegion CoveredPart(const QWidget& inWidget, const QRect& inRect) {
  QRegion covered;
  QPoint origin;  // the widget's, in the one that is looked at
  for (const QWidget* at = &inWidget; !at->isWindow() && at->parentWidget();
       at = at->parentWidget()) {
    origin += at->pos();
    const QObjectList& siblings = at->parentWidget()->children();
    for (auto i = siblings.indexOf(at) + 1; i < siblings.size(); ++i) {
      const auto* const sibling = qobject_cast<const QWidget*>(siblings[i]);
      if (!sibling || sibling->isWindow() || sibling->isHidden()) continue;
      covered += sibling->geometry().translated(-origin) & inRect;
    }
  }
  return covered;
}

// The least move along one axis that shows the extent; the near edge first.
double Revealed(double inOffset, double inViewed, double inStart, double inSize) {
  if (inStart < inOffset || inSize > inViewed) return inStart;
  return std::max(inOffset, inStart + inSize - inViewed);
}

}  // namespace

// Where both bars end neither they nor the content have anything to show or to take.
class UI_ScrollView::Corner : public ui::UI_SubView {
 public:
  // A disabled node passes presses on to its parent, and not to what lies behind it.
  Corner() { UI_SetDisabled(true); }
  void UI_Draw(drawbot::Drawbot* inDrawbot) const override {
    const auto theme = ui::Theme::Get();
    const QPalette& palette = GetPeer()->GetWidget()->palette();
    inDrawbot->FillRect(inDrawbot->GetClipBounds(),
                        theme && theme->HasColor(ui::themev5::kColor_ScrollTrack)
                            ? theme->GetColor(ui::themev5::kColor_ScrollTrack)
                            : drawbot::FromQt(palette.color(QPalette::Window)));
  }
};

UI_ScrollView::UI_ScrollView(lumcore::utility::Flags<unsigned int> inFlags,
                             const boost::intrusive_ptr<ui::UI_Node>& inContent)
    : mFlags(inFlags),
      mContent(inContent),
      mBarX(new UI_ScrollBar(true)),
      mBarY(new UI_ScrollBar(false)),
      mCorner(new Corner) {
  LUM_INPUT_CONTRACT(inContent != nullptr);
  mBarX->UI_Show(false);
  mBarY->UI_Show(false);
  mCorner->UI_Show(false);
  // The bars lie over the content, so they come behind it.
  UI_AddChild(mContent);
  UI_AddChild(mBarX);
  UI_AddChild(mBarY);
  UI_AddChild(mCorner);
}

UI_ScrollView::~UI_ScrollView() {
  mContent->GetPeer()->SetContentOrigin(Point());
}

void UI_ScrollView::SetContentRectF(const Rect& inRect) {
  mContentRect = inRect;
}

void UI_ScrollView::SetMovesPicture(bool inMoves) {
  mMovesPicture = inMoves;
  mContent->UI_SetOpaque(inMoves);
}

void UI_ScrollView::SetLineStep(float inUnits) {
  LUM_INPUT_CONTRACT(inUnits > 0);
  mLineStep = inUnits;
}

void UI_ScrollView::Update() {
  PlaceBars();
  MoveTo(mWanted);
  ShowOffsetInBars();
  mContent->UI_InvalidateAll();
}

void UI_ScrollView::UI_SizeChanged(const Rect& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  mContent->UI_SetLocalRectF(inRect);
  Update();
}

// A bar takes room from the other axis, so that one may need the other.
void UI_ScrollView::PlaceBars() {
  const Rect& area = UI_GetLocalRectF();
  const float thickX = mBarX->GetThickness();
  const float thickY = mBarY->GetThickness();
  const bool mayX = !mFlags.Has(kNoHorizontalBar);
  const bool mayY = !mFlags.Has(kNoVerticalBar);
  bool needX = mayX && mContentRect.width > area.width;
  const bool needY = mayY && mContentRect.height > area.height - (needX ? thickX : 0);
  needX = mayX && mContentRect.width > area.width - (needY ? thickY : 0);
  const bool bothY = mayY && mContentRect.height > area.height - (needX ? thickX : 0);
  const float roomX = std::max(0.0f, area.width - (bothY ? thickY : 0));
  const float roomY = std::max(0.0f, area.height - (needX ? thickX : 0));
  mBarX->UI_SetLocalRectF(Rect(0, area.height - thickX, roomX, thickX));
  mBarY->UI_SetLocalRectF(Rect(area.width - thickY, 0, thickY, roomY));
  mCorner->UI_SetLocalRectF(Rect(roomX, roomY, thickY, thickX));
  if (mCorner->UI_IsVisible() != (needX && bothY)) mCorner->UI_Show(needX && bothY);
  if (mBarX->UI_IsVisible() != needX) mBarX->UI_Show(needX);
  if (mBarY->UI_IsVisible() != bothY) mBarY->UI_Show(bothY);
}

Point UI_ScrollView::GetViewSize() const {
  const Rect& area = UI_GetLocalRectF();
  const float barX = mBarX->UI_IsVisible() ? mBarX->UI_GetLocalRectF().height : 0;
  const float barY = mBarY->UI_IsVisible() ? mBarY->UI_GetLocalRectF().width : 0;
  return Point(std::max(0.0f, area.width - barY), std::max(0.0f, area.height - barX));
}

Rect UI_ScrollView::GetViewedContentRectF() const {
  const Point size = GetViewSize();
  return Rect(static_cast<float>(mOffset.x), static_cast<float>(mOffset.y),
              static_cast<float>(size.x), static_cast<float>(size.y));
}

bool UI_ScrollView::DoLimitsToContent() const {
  return true;
}

Point UI_ScrollView::Limited(const Point& inOffset) const {
  if (!DoLimitsToContent()) return inOffset;
  const Point size = GetViewSize();
  const auto limit = [](double inValue, double inStart, double inContent, double inViewed) {
    return std::max(inStart, std::min(inValue, inStart + inContent - inViewed));
  };
  return Point(limit(inOffset.x, mContentRect.x, mContentRect.width, size.x),
               limit(inOffset.y, mContentRect.y, mContentRect.height, size.y));
}

// The offset is whole units of the device, or text and lines would blur; what is left of the wish
// is kept, so that many small turns of a fine wheel add up.
bool UI_ScrollView::MoveTo(const Point& inWanted) {
  LUM_INPUT_CONTRACT(std::isfinite(inWanted.x) && std::isfinite(inWanted.y));
  mWanted = Limited(inWanted);
  const QWidget* const widget = GetPeer()->GetWidget();
  const double scale = widget ? widget->devicePixelRatioF() : 1;
  const auto snapped = [&](double inUnits) { return std::round(inUnits * scale) / scale; };
  const Point offset(snapped(mWanted.x), snapped(mWanted.y));
  if (offset == mOffset) return false;
  const Point before = mOffset;
  mOffset = offset;
  mContent->GetPeer()->SetContentOrigin(offset);
  ShowOffsetInBars();
  if (!MovePicture(before)) mContent->UI_InvalidateAll();
  return true;
}

// False where everything is to be drawn anew, and nothing has seen to that yet. A picture moves by
// whole pixels from whole pixels, which is more than whole units where the screen has parts of
// pixels in a unit; and what has uncovered a part of it may not have been drawn there yet.
bool UI_ScrollView::MovePicture(const Point& inOldOffset) {
  QWidget* const widget = mContent->GetPeer()->GetWidget();
  const Point way = inOldOffset - mOffset;
  const Point size = GetViewSize();
  const bool isWhole =
      widget && widget->devicePixelRatioF() == std::floor(widget->devicePixelRatioF());
  if (!mMovesPicture || !isWhole || !mContent->GetPeer()->HasItsPlaceOnScreen() ||
      way.x != std::floor(way.x) || way.y != std::floor(way.y) || std::abs(way.x) >= size.x ||
      std::abs(way.y) >= size.y) {
    return false;
  }
  if (mContent->GetPeer()->IsAllInvalid()) return true;
  const QPoint pixels(static_cast<int>(way.x), static_cast<int>(way.y));
  const QRect area(0, 0, static_cast<int>(size.x), static_cast<int>(size.y));
  // What is covered has no picture to be moved, and would keep all the rest from moving.
  const QRegion covered = CoveredPart(*widget, area);
  for (const QRect& rect : QRegion(area) - covered) {
    const bool stays = rect.intersects(rect.translated(pixels));
    stays ? widget->scroll(pixels.x(), pixels.y(), rect) : widget->update(rect);
  }
  // Something may be seen through what covers it. The rest is covered by the bars and their corner.
  widget->update(covered);
  return true;
}

void UI_ScrollView::ShowOffsetInBars() {
  const Point size = GetViewSize();
  mBarX->GetBarPeer()->ShowOffset(std::max(0.0, mContentRect.width - size.x),
                                  mOffset.x - mContentRect.x, size.x);
  mBarY->GetBarPeer()->ShowOffset(std::max(0.0, mContentRect.height - size.y),
                                  mOffset.y - mContentRect.y, size.y);
}

void UI_ScrollView::ScrollIntoView(const Rect& inRect, bool inDrawNow) {
  StopGlide();
  const Point size = GetViewSize();
  MoveTo(Point(Revealed(mOffset.x, size.x, inRect.x, inRect.width),
               Revealed(mOffset.y, size.y, inRect.y, inRect.height)));
  if (inDrawNow) mContent->UI_UpdateNow(lumcore::utility::Flags<unsigned int>(~0u));
}

void UI_ScrollView::SetOffset(const Point& inOffset) {
  StopGlide();
  MoveTo(inOffset);
}

void UI_ScrollView::ScrollByUser(bool inHorizontal, double inDistance) {
  Point wanted = mWanted;
  (inHorizontal ? wanted.x : wanted.y) += inDistance;
  if (MoveTo(wanted)) (inHorizontal ? mBarX : mBarY)->NotifyChanged();
}

void UI_ScrollView::SetBarOffsetByUser(bool inHorizontal, double inOffset) {
  StopGlide();
  Point wanted = mWanted;
  if (inHorizontal) {
    wanted.x = mContentRect.x + inOffset;
  } else {
    wanted.y = mContentRect.y + inOffset;
  }
  if (MoveTo(wanted)) (inHorizontal ? mBarX : mBarY)->NotifyChanged();
}

bool UI_ScrollView::UI_DoMouseWheel(ui::UI_Node*, const ui::WheelEvent& inEvent) {
  using Touch = ui::WheelEvent::Touch;
  const lumcore::utility::StKeepAlive keepAlive(*this);
  const double step = kLinesANotch * mLineStep;
  const auto& notches = inEvent.GetNotches();
  Point way(inEvent.GetWay().x, inEvent.GetWay().y);
  if (way == Point()) way = Point(notches.x * step, notches.y * step);
  const Touch touch = inEvent.GetTouch();
  if (touch == Touch::kMove) {
    if (mGlides) StopGlide();
    mGlide.Follow(way, inEvent.GetTime());
  } else if (touch == Touch::kEnd) {
    // Which may come twice.
    if (!mGlides && mGlide.Release(inEvent.GetTime())) {
      UI_InstallTimer(static_cast<float>(Glide::kStep), kGlideTimer);
      mGlides = true;
    }
  } else {
    StopGlide();
  }
  if (way.x != 0) ScrollByUser(true, way.x);
  if (way.y != 0) ScrollByUser(false, way.y);
  return true;
}

void UI_ScrollView::UI_DoTimerNotify(unsigned int inTimerID) {
  if (inTimerID != kGlideTimer) return UI_SubView::UI_DoTimerNotify(inTimerID);
  const lumcore::utility::StKeepAlive keepAlive(*this);
  const Point before = mWanted;
  const Point way = mGlide.Step();
  if (way.x != 0) ScrollByUser(true, way.x);
  if (way.y != 0) ScrollByUser(false, way.y);
  // At an end of the content there is nothing to go on for.
  if (!mGlide.IsRunning() || mWanted == before) StopGlide();
}

void UI_ScrollView::StopGlide() {
  if (mGlides) UI_RemoveTimer(kGlideTimer, false);
  mGlides = false;
  mGlide.Stop();
}

UI_ManualScrollView::~UI_ManualScrollView() = default;

bool UI_ManualScrollView::DoLimitsToContent() const {
  return false;
}

}  // namespace lumui::controls
