// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <list>
#include <vector>

#include "vek/config/Export.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/trackview/Tracker.h"

namespace vek::hierarchyview {

class TreeControlBase;

// The rubber band of a tree: rows that its rectangle touches are selected, where they have a node.
// With the range key or the add key what was selected before the press counts too, and the range
// key turns touched rows over. The row that the pointer touched last gets the focus at the end.
class VEK_API HierarchyDragSelectTracker : public trackview::Tracker {
 public:
  using Point = trackview::Point;
  using Modifiers = trackview::Modifiers;

  // Control and geometry outlive the tracker.
  HierarchyDragSelectTracker(trackview::TrackView* inTrackView, TreeControlBase* inControl,
                             HierarchyGeometry* inGeometry);
  ~HierarchyDragSelectTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

 private:
  using EntryList = std::list<HierarchyEntryBase*>;

  // The rows that the band touches on top of inSelection, and the one that would get the focus.
  void GatherTouched(Modifiers inModifiers, const Point& inDataPoint, EntryList& ioSelection,
                     HierarchyGeometry::iterator& outTarget) const;

  HierarchyGeometry* mGeometry;
  bool mBegan = false;
  HierarchyGeometry::iterator mFocusTarget;
  Point mLastPoint;
  Point mStartPoint;
  TreeControlBase* mControl;
  EntryList mInitialSelection;
  EntryList mCurrentSelection;  // compared, never followed

  bool mFollowsControl;  // the geometry is that of the control, whichever that is
  std::vector<boost::intrusive_ptr<HierarchyEntryBase>> mHeldEntries;
  boost::intrusive_ptr<HierarchyEntryBase> mHeldFocusTarget;
};

}  // namespace vek::hierarchyview
