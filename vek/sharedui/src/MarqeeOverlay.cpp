// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/MarqeeOverlay.h"

#include "lumui/DrawUtils.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Theme.h"
#include "vek/trackview/PlatformView.h"

namespace vek::sharedui {

using lumui::drawbot::ColorRGBA;
using trackview::Rect;

namespace {

constexpr float kMargin = 20;  // data units: the pen's outer half, also where the view is far away
constexpr float kCornerRadius = 5;  // local units
constexpr float kPen = 3;           // local units
constexpr ColorRGBA kFill(0.52f, 0.52f, 0.52f, 0.5f);
constexpr ColorRGBA kEdge(0.84f, 0.84f, 0.84f, 0.5f);

}  // namespace

MarqeeOverlay::MarqeeOverlay(trackview::TrackView* inTrackView, LayerType inLayer,
                             const State& inState)
    : Overlay(inLayer, inState), mTrackView(inTrackView) {}

MarqeeOverlay::~MarqeeOverlay() = default;

void MarqeeOverlay::DoImageRect(const Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                                boost::intrusive_ptr<lumui::ui::Theme>) const {
  if (!mMarqueeRect.Intersects(inDataRect)) return;
  Rect rect = mMarqueeRect;
  mTrackView->DataToLocal(rect);
  const auto path = lumui::GetRoundedRectPath(rect, kCornerRadius);
  const lumui::drawbot::SupplierInterface& supplier = *inDrawbot.GetSupplier();
  inDrawbot.FillPath(path, supplier.NewBrush(kFill));
  inDrawbot.StrokePath(path, supplier.NewPen(kEdge, kPen));
}

void MarqeeOverlay::SetMarqueeRect(const Rect& inDataRect) {
  trackview::PlatformView& view = mTrackView->GetPlatformView();
  if (!mMarqueeRect.IsEmpty()) {
    view.InvalidateDataRect(Rect(mMarqueeRect.x - kMargin, mMarqueeRect.y - kMargin,
                                 mMarqueeRect.width + 2 * kMargin,
                                 mMarqueeRect.height + 2 * kMargin));
  }
  mMarqueeRect = inDataRect;
  if (!mMarqueeRect.IsEmpty()) view.InvalidateDataRect(mMarqueeRect);
}

}  // namespace vek::sharedui
