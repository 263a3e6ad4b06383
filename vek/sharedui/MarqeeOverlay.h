// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/trackview/Overlay.h"

namespace vek::sharedui {

// A rubber band. It only draws: the tracker of another overlay tells it the rectangle.
class VEK_API MarqeeOverlay : public trackview::Overlay {
 public:
  // inTrackView is the one that it is installed in.
  MarqeeOverlay(trackview::TrackView* inTrackView, LayerType inLayer, const State& inState);
  ~MarqeeOverlay() override;

  void DoImageRect(const trackview::Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme> inTheme) const override;

  // In data units; an empty one draws nothing. Asks for drawing, of where the old one was as well,
  // but not of the outer half of the new one's line, 1.5 local units.
  void SetMarqueeRect(const trackview::Rect& inDataRect);

 private:
  trackview::TrackView* const mTrackView;
  trackview::Rect mMarqueeRect;
};

}  // namespace vek::sharedui
