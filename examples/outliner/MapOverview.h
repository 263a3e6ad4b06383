// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "MapScene.h"
#include "lumui/drawbot/Image.h"
#include "vek/trackview/LUMPlatformView.h"

namespace outliner {

class MapOverviewOverlay;

// The whole map in small, with a frame around what the view shows of it: a press brings that place
// to the middle of the view, a drag takes the frame along. The picture is stretched to the size of
// the overview on both axes, so that a long outline is no thin line, and is made anew when the map
// or the theme changes.
class MapOverview final : public vek::trackview::LUMPlatformView {
 public:
  // Both are borrowed until Detach; behind that the overview is blank and deaf.
  MapOverview(const MapScene& inScene, vek::trackview::TrackView& inMap);
  ~MapOverview() override;
  void Detach();

  // After the map has another size or content.
  void MapChanged();
  // After the view has moved over the map.
  void FrameChanged();
  void UI_SetLocalRectF(const vek::trackview::Rect& inRect) override;

 private:
  void Fit();

  vek::trackview::TrackView* mMap;
  MapOverviewOverlay* mOverlay;  // of the own track view
};

}  // namespace outliner
