// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/ZoomOverlay.h"

#include <algorithm>
#include <cmath>

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/Theme.h"
#include "vek/trackview/PlatformView.h"

namespace vek::sharedui {

using lumui::drawbot::ColorRGBA;
using trackview::Modifiers;
using trackview::Point;
using trackview::Rect;

namespace {

constexpr float kClickSlop = 3;      // data units
constexpr float kLeastRect = 1;      // data units; what is smaller on a side is a click
constexpr float kFeedbackInset = 2;  // local units
constexpr float kFeedbackPen = 2;    // local units
constexpr ColorRGBA kFeedbackEdge(1, 1, 1, 1);
constexpr ColorRGBA kFeedbackFill(0.25f, 0.25f, 0.5f, 0.5f);

Rect Between(const Point& inA, const Point& inB) {
  return Rect(std::min(inA.x, inB.x), std::min(inA.y, inB.y), std::abs(inA.x - inB.x),
              std::abs(inA.y - inB.y));
}

}  // namespace

ZoomOverlay::ZoomOverlay(trackview::TrackView* inTrackView, LayerType inLayer, const State& inState)
    : Overlay(inLayer, inState), mTrackView(inTrackView), mLife(this, [](ZoomOverlay*) {}) {}

ZoomOverlay::~ZoomOverlay() = default;

void ZoomOverlay::DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                              boost::intrusive_ptr<lumui::ui::Theme>) const {
  if (!mFeedbackRect.Intersects(inDataRect)) return;
  Rect rect = mFeedbackRect;
  mTrackView->DataToLocal(rect);
  const lumui::drawbot::SupplierInterface& supplier = *inDrawbot.GetSupplier();
  auto path = supplier.NewPath();
  // In local units: the edge is as far inside at every scale.
  path.AddRect(Rect(rect.x + kFeedbackInset, rect.y + kFeedbackInset,
                    rect.width - 2 * kFeedbackInset, rect.height - 2 * kFeedbackInset));
  inDrawbot.StrokePath(path, supplier.NewPen(kFeedbackEdge, kFeedbackPen));
  inDrawbot.FillPath(path, supplier.NewBrush(kFeedbackFill));
}

std::auto_ptr<trackview::Tracker> ZoomOverlay::DoAcquireTracker(
    const Point&, bool, trackview::TrackerDragAndDropInterface*) {
  return std::auto_ptr<trackview::Tracker>(new ZoomTracker(mTrackView, this));
}

bool ZoomOverlay::DoKeyEvent(const lumui::ui::KeyboardEvent&) {
  return false;
}

void ZoomOverlay::SetFeedbackRect(const Rect& inDataRect) {
  mFeedbackRect = inDataRect;
}

void ZoomOverlay::ClearFeedbackRect() {
  mFeedbackRect = Rect();
}

ZoomTracker::ZoomTracker(trackview::TrackView* inTrackView, ZoomOverlay* inOverlay)
    : Tracker(inTrackView, true, true), mOverlay(inOverlay), mOverlayLife(inOverlay->mLife) {}

ZoomTracker::~ZoomTracker() = default;

void ZoomTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool) {
  mZoomOut = inModifiers.Has(lumui::ui::kModAlt);
  mStartPoint = inDataPoint;
  mLastPoint = inDataPoint;
}

bool ZoomTracker::HasLeftTheBox(const Point& inDataPoint) const {
  return !(
      inDataPoint.x >= mStartPoint.x - kClickSlop && inDataPoint.y >= mStartPoint.y - kClickSlop &&
      mStartPoint.x + kClickSlop > inDataPoint.x && mStartPoint.y + kClickSlop > inDataPoint.y);
}

void ZoomTracker::ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) {
  if (!mZoomOut && HasLeftTheBox(inDataPoint)) mDragging = true;
  if (!mDragging || inDataPoint == mLastPoint) return;
  Tracker::ContinueTracking(inModifiers, inDataPoint);
  const Rect old = Between(mStartPoint, mLastPoint);
  const Rect rect = Between(mStartPoint, inDataPoint);
  ShowFeedback(rect);
  mTrackView->GetPlatformView().InvalidateDataRect(old);
  mTrackView->GetPlatformView().InvalidateDataRect(rect);
  mLastPoint = inDataPoint;
}

void ZoomTracker::EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool) {
  ClearFeedback();
  const Rect rect = Between(mStartPoint, inDataPoint);
  const float scale = mTrackView->GetCoordScale();
  if (mDragging && rect.width >= kLeastRect && rect.height >= kLeastRect) {
    ContinueTracking(inModifiers, inDataPoint);
    ClearFeedback();
    ZoomToRect(rect, scale);
  } else {
    ZoomByStep(inModifiers.Has(lumui::ui::kModAlt), scale, inDataPoint);
  }
}

void ZoomTracker::ShowFeedback(const Rect& inDataRect) {
  if (!mOverlayLife.expired()) mOverlay->SetFeedbackRect(inDataRect);
}

void ZoomTracker::ClearFeedback() {
  if (!mOverlayLife.expired()) mOverlay->ClearFeedbackRect();
}

void ZoomTracker::ZoomToRect(const Rect& inDataRect, float inScale) {
  trackview::PlatformView& view = mTrackView->GetPlatformView();
  const float max = mTrackView->CoordinateScaleMax();
  const Point visible = view.DataSize();
  float scale =
      std::max(visible.x * inScale / inDataRect.width, visible.y * inScale / inDataRect.height);
  scale = std::max(std::min(scale, max), mTrackView->CoordinateScaleMin());
  if (scale == inScale && scale == max) {
    // The view stays, so nothing else takes the feedback away.
    view.InvalidateDataRect(inDataRect);
    return;
  }
  // A drag changes something always.
  if (scale == inScale) scale += 1;
  mTrackView->SetCoordScale(
      scale, true,
      Point(inDataRect.x + inDataRect.width * 0.5f, inDataRect.y + inDataRect.height * 0.5f));
}

void ZoomTracker::ZoomByStep(bool inOut, float inScale, const Point& inDataPoint) {
  float scale = 0;
  if (inOut) {
    scale = inScale > 1 ? inScale - 1 : inScale * 0.5f;
  } else {
    scale = inScale > 1 ? inScale + 1 : inScale * 2;
  }
  mTrackView->SetCoordScale(scale, true, inDataPoint);
  // At a limit the view stays, with the rectangle of a drag that came back.
  if (mDragging && mTrackView->GetCoordScale() == inScale) {
    mTrackView->GetPlatformView().InvalidateDataRect(Between(mStartPoint, mLastPoint));
  }
}

}  // namespace vek::sharedui
