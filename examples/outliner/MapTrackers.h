// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "MapLayout.h"
#include "OutlineRow.h"
#include "vek/trackview/Tracker.h"

namespace vek::trackview {
class TrackerDragAndDropInterface;
}

namespace outliner {

class MapOverlay;

// A press on a box: selects, and once it is dragged, moves the selected branches to the end of the
// one that it is let go on. Onto one of themselves, or below one, they cannot be moved. The rows
// are known by numbers, since anything may happen to the outline meanwhile. Out of the view they
// are offered to other programs, as an outline and as text.
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
  void Send();

  MapOverlay& mOverlay;
  const OutlineRow::Id mRow;
  Point mStart;  // in local units, which do not grow with the zoom
  bool mIsDragging = false;
  bool mSelectsAtEnd = false;
};

// A drag of another program's over the map, or one of the map's own that comes back: files of
// outlines and text become rows below the box that they are let go on, beside all boxes of the
// first level. Files are read when they are dropped, all of them before the first becomes a row.
class MapDropTracker final : public vek::trackview::Tracker {
 public:
  using Point = vek::trackview::Point;
  using Modifiers = vek::trackview::Modifiers;

  // inDrag outlives the tracker.
  MapDropTracker(MapOverlay& inOverlay, vek::trackview::TrackerDragAndDropInterface& inDrag);
  ~MapDropTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 private:
  OutlineRow* FindTarget(const Point& inDataPoint) const;
  unsigned FindEffect(const OutlineRow* inTarget) const;
  void Drop(OutlineRow& ioTarget);

  MapOverlay& mOverlay;
  vek::trackview::TrackerDragAndDropInterface& mDrag;
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
