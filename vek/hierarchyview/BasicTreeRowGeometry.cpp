// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicTreeRowGeometry.h"

#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;
using lumui::drawbot::ColorRGBA;

namespace {

constexpr float kHighlightMargin = 1.0f;
// The text stands this much above the middle, where its letters look centred beside the icon.
constexpr float kTextLift = 2.0f;

ColorRGBA GetTextColor(TreeControlBase const& inTreeControl) {
  if (inTreeControl.HasCustomTextColor()) return inTreeControl.GetCustomTextColor();
  const auto theme = lumui::ui::Theme::Get();
  return theme ? theme->GetColor(lumui::ui::themev2::kColor_DefaultText) : ColorRGBA();
}

}  // namespace

BasicTreeRowGeometry::BasicTreeRowGeometry(TreeControlBase* inTreeControl,
                                           trackview::TrackView* inTrackView,
                                           HierarchyEntryBase const* inEntry,
                                           PointT<float> const& inPosition, bool inHasIcon)
    : BasicTreeRowGeometryBase(inEntry, inPosition, inHasIcon, false, inTreeControl->GetFont()),
      mTreeControl(inTreeControl),
      mTrackView(inTrackView) {}

void BasicTreeRowGeometry::ImageNode(HierarchyGeometry const& /*inGeometry*/,
                                     lumui::drawbot::Drawbot& ioDrawbot,
                                     RectT<float> const& /*inRow*/, bool /*inWantsLine*/) {
  DrawIcon(ioDrawbot);
  const RectT<float> place = GetRowRect();
  const float ascent = GetFont()->GetAscent();
  const float descent = GetFont()->GetDescent();
  const float baseline = place.y + (place.height - (ascent + descent)) * 0.5f + ascent - kTextLift;
  ioDrawbot.DrawString(GetText(0), GetFont(), GetTextColor(*mTreeControl),
                       PointT<float>(place.x, baseline), lumui::drawbot::TextTruncation::kEnd,
                       place.width);
}

RectT<float> BasicTreeRowGeometry::GetHighlightRect() const {
  const RectT<float> text = GetRowRect();
  return RectT<float>(text.x - kHighlightMargin, text.y - kHighlightMargin,
                      text.width + 2 * kHighlightMargin, text.height + 2 * kHighlightMargin);
}

bool BasicTreeRowGeometry::PointInSelectArea(PointT<float> const& inPoint) const {
  return GetHighlightRect().Join(GetIconRect()).Contains(inPoint);
}

bool BasicTreeRowGeometry::RectOverlapsSelectArea(RectT<float> const& inRect) const {
  return GetHighlightRect().Join(GetIconRect()).Intersects(inRect);
}

BasicTreeRowGeoFactory::BasicTreeRowGeoFactory(TreeControlBase* inTreeControl,
                                               trackview::TrackView* inTrackView, bool inHasIcon)
    : mTreeControl(inTreeControl), mTrackView(inTrackView), mHasIcon(inHasIcon) {}

std::auto_ptr<TreeRowGeometry> BasicTreeRowGeoFactory::ServeRowGeometry(
    HierarchyEntryBase const* inEntry, PointT<float> const& inPosition) {
  return std::auto_ptr<TreeRowGeometry>(
      new BasicTreeRowGeometry(mTreeControl, mTrackView, inEntry, inPosition, mHasIcon));
}

}  // namespace vek::hierarchyview
