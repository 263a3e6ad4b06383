// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "MapLayout.h"
#include "OutlineRow.h"
#include "vek/trackview/Tracker.h"

namespace outliner {

class MapOverlay;

// A press on a box: selects, and once it is dragged, moves the selected branches to the end of the
// one that it is let go on. Onto one of themselves, or below one, they cannot be moved. The rows
// are known by numbers, since anything may happen to the outline meanwhile.
class MapMoveTracker final : public vek::trackview::Tracker {
 public:
  using Point = vek::trackview::Point;
  using Modifiers = vek::trackview::Modifiers;

  MapMoveTracker(MapOverlay& inOverlay, OutlineRow& inRow);
  ~MapMoveTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 private:
  OutlineRow* FindTarget(const Point& inDataPoint) const;

  MapOverlay& mOverlay;
  const OutlineRow::Id mRow;
  Point mStart;  // in local units, which do not grow with the zoom
  bool mIsDragging = false;
  bool mSelectsAtEnd = false;
};

// A press beside the boxes: whatever the rubber band touches when it is let go is selected, with
// Shift or Ctrl besides what was. A press that drags nothing deselects all.
class MapBandTracker final : public vek::trackview::Tracker {
 public:
  using Point = vek::trackview::Point;
  using Modifiers = vek::trackview::Modifiers;

  explicit MapBandTracker(MapOverlay& inOverlay);
  ~MapBandTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 private:
  std::vector<MapLayout::Index> FindBoxes(const Point& inDataPoint) const;

  MapOverlay& mOverlay;
  Point mStart;
};

}  // namespace outliner
