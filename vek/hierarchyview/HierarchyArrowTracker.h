// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <memory>

#include "vek/config/Export.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/trackview/Tracker.h"

namespace vek::hierarchyview {

class HierarchyEntryBase;
class TreeControlBase;

// What a press in a tree means: on a twisty it opens or closes, on a row it selects at once, and
// moving on from there drags rows out; elsewhere it begins a rubber band, for which this tracker
// makes another and hands the gesture on. A control serves one for every press and every hover.
class VEK_API HierarchyArrowTracker : public trackview::Tracker {
 public:
  using Point = trackview::Point;
  using Modifiers = trackview::Modifiers;

  // The control outlives the tracker.
  HierarchyArrowTracker(trackview::TrackView* inTrackView, TreeControlBase& inControl,
                        bool inIsSingleSelect, bool inAllowsDragOut);
  ~HierarchyArrowTracker() override;

  void BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool inHover) override;
  void ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) override;
  void EndTracking(Modifiers inModifiers, const Point& inDataPoint, bool inCompleted) override;

  // How far, on one axis, the pointer has to go beyond this before rows are dragged; data units.
  static constexpr float kDragThreshold = 4.0f;

 protected:
  // False if the point is on no row's twisty, icon or text.
  virtual bool TrackClickOnItem(Modifiers inModifiers, const Point& inDataPoint, bool inHover);
  // True if a rubber band begins.
  virtual bool TrackClickOffItem(Modifiers inModifiers, const Point& inDataPoint, bool inHover);
  virtual void TrackClickOnColExpPart(HierarchyGeometry::iterator inRow, Modifiers inModifiers,
                                      bool inHover);
  virtual void SelectHierarchyItem(HierarchyGeometry::iterator inRow, Modifiers inModifiers,
                                   bool inHover);
  virtual void StartDragEvent(const Point& inStart, const Point& inCurrent);

  // Selects from the focus item to the clicked row. Rows that are selected in one block with the
  // focus item, on the side away from the click, stay selected. False, and nothing changed, where
  // there is no selection, no focus row, or the click is on that row.
  bool SelectRange(HierarchyGeometry::iterator const& inClicked);

  TreeControlBase* GetControl() const { return mControl; }

 private:
  bool IsSelected(HierarchyEntryBase const* inEntry) const;
  HierarchyGeometry::iterator ExtendDown(HierarchyGeometry::iterator const& inFocus,
                                         int inSelected) const;
  HierarchyGeometry::iterator ExtendUp(HierarchyGeometry::iterator const& inFocus,
                                       int inSelected) const;
  void BeginRubberBand();

  std::unique_ptr<trackview::Tracker> mDelegate;  // the rubber band's, while one runs
  HierarchyGeometry* mGeometry;
  Modifiers mModifiers;
  Point mLastPoint;
  Point mStartPoint;
  TreeControlBase* mControl;
  bool mDragPending = false;  // the press hit a row, and no drag has begun yet
  bool mIsSingleSelect;
  bool mAllowsDragOut;
};

}  // namespace vek::hierarchyview
