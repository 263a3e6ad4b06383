// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineRow.h"
#include "vek/hierarchyview/HierarchyArrowTracker.h"
#include "vek/trackview/Tracker.h"

namespace vek::trackview {
class TrackerDragAndDropInterface;
}

namespace outliner {

class OutlineTreeList;

// A press in the outline's list. What is selected together is dragged together, so a click on one
// of several selected rows selects it alone only at its end.
class OutlinePressTracker final : public vek::hierarchyview::HierarchyArrowTracker {
 public:
  explicit OutlinePressTracker(OutlineTreeList& inList);
  ~OutlinePressTracker() override;

  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 protected:
  void SelectHierarchyItem(vek::hierarchyview::HierarchyGeometry::iterator inRow,
                           Modifiers inModifiers, bool inHover) override;
  void StartDragEvent(const Point& inStart, const Point& inCurrent) override;

 private:
  OutlineTreeList& mList;
  OutlineRow::Id mSelectsAtEnd = 0;
};

// A drag over the list: rows of the document itself are moved, files of outlines and text of others
// become rows. Files are read when they are dropped.
class OutlineDropTracker final : public vek::trackview::Tracker {
 public:
  using Point = vek::trackview::Point;
  using Modifiers = vek::trackview::Modifiers;

  // inDrag outlives the tracker.
  OutlineDropTracker(OutlineTreeList& inList, vek::trackview::TrackerDragAndDropInterface& inDrag);
  ~OutlineDropTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 private:
  OutlineTreeList& mList;
  vek::trackview::TrackerDragAndDropInterface& mDrag;
};

}  // namespace outliner
