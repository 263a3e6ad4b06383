// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>

#include "vek/trackview/OverlayStack.h"
#include "vek/trackview/TrackView.h"

namespace vek::trackview {

struct TrackView::Record {
  Record(PlatformView& inPlatformView, bool inCentering, float inScaleMin, float inScaleMax)
      : scaleMin(inScaleMin),
        scaleMax(inScaleMax),
        centering(inCentering),
        platformView(&inPlatformView) {}

  Point dataSize{1, 1};
  Point coordOffset;
  Point coordFactor{1, 1};
  float coordScale = 1;
  float scaleMin;
  float scaleMax;
  bool centering;
  OverlayStack overlays;
  PlatformView* platformView;
  std::map<unsigned int, Overlay*> timers;
  messaging::Broadcaster<TrackerChangeMessage> trackerBroadcaster;
};

}  // namespace vek::trackview
