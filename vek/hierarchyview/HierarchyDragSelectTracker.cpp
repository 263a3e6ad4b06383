// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyDragSelectTracker.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <iterator>

#include "lumui/ui/ModifierKeys.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/trackview/PlatformView.h"

namespace vek::hierarchyview {

using lumcore::geom::RectT;

namespace {

RectT<float> Between(trackview::Point const& inA, trackview::Point const& inB) {
  return RectT<float>(std::min(inA.x, inB.x), std::min(inA.y, inB.y), std::abs(inA.x - inB.x),
                      std::abs(inA.y - inB.y));
}

}  // namespace

HierarchyDragSelectTracker::HierarchyDragSelectTracker(trackview::TrackView* inTrackView,
                                                       TreeControlBase* inControl,
                                                       HierarchyGeometry* inGeometry)
    : Tracker(inTrackView, true, true),
      mGeometry(inGeometry),
      mControl(inControl),
      mFollowsControl(inGeometry == inControl->GetGeometry()) {}

HierarchyDragSelectTracker::~HierarchyDragSelectTracker() = default;

void HierarchyDragSelectTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint,
                                               bool inHover) {
  if (inHover) return;
  mLastPoint = inDataPoint;
  mStartPoint = inDataPoint;
  if (!inModifiers.Has(lumui::ui::kModShift) && !inModifiers.Has(lumui::ui::kModCommand)) {
    mControl->DeselectAll();
    mControl->SetFocusItem(nullptr, true);
  } else {
    for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next()) {
      if (row.GetEntry()->Selected(mControl->GetSelectionManager()))
        mInitialSelection.push_back(row.GetEntry());
    }
    for (HierarchyEntryBase* const entry : mInitialSelection)
      mHeldEntries.push_back(HoldEntry(entry));
  }
  mBegan = true;
}

void HierarchyDragSelectTracker::ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) {
  if (inDataPoint == mLastPoint) return;
  Tracker::ContinueTracking(inModifiers, inDataPoint);
  // A selection that changes may make a host build the tree anew.
  if (mFollowsControl) mGeometry = mControl->GetGeometry();
  if (!mGeometry || !mControl->GetRowGeometryFactory()) return;
  EntryList selection = mInitialSelection;
  HierarchyGeometry::iterator target;
  GatherTouched(inModifiers, inDataPoint, selection, target);
  selection.sort(std::less<HierarchyEntryBase*>());
  if (selection != mCurrentSelection) {
    mCurrentSelection = selection;
    mFocusTarget = target;
    mHeldFocusTarget = HoldEntry(*target);
    mControl->DeselectAll();
    if (!selection.empty()) mControl->ToggleEntrySelectionState(selection);
  }
  mControl->SetMarqueeRect(Between(mStartPoint, inDataPoint));
  mLastPoint = inDataPoint;
}

void HierarchyDragSelectTracker::GatherTouched(Modifiers inModifiers, const Point& inDataPoint,
                                               EntryList& ioSelection,
                                               HierarchyGeometry::iterator& outTarget) const {
  const RectT<float> band = Between(mStartPoint, inDataPoint);
  const RectT<float> area = Between(mStartPoint, mLastPoint).Join(band);
  HierarchyGeometry::iterator row = mControl->FindEntryInCache(area.Origin());
  if (!*row) return;
  if (row == mGeometry->begin()) ++row;
  for (bool isFirst = true; row != mGeometry->end(); ++row) {
    if (!(*row)->GetDataAsSelNode()) continue;
    const std::auto_ptr<TreeRowGeometry> layout = mControl->GetEntryGeometry(row);
    if (layout->RectOverlapsSelectArea(band)) {
      const auto known = inModifiers.Has(lumui::ui::kModShift)
                             ? std::find(ioSelection.begin(), ioSelection.end(), *row)
                             : ioSelection.end();
      if (known != ioSelection.end()) {
        ioSelection.erase(known);
      } else {
        ioSelection.push_back(*row);
      }
      if (inDataPoint.y > mStartPoint.y || isFirst) {
        outTarget = row;
        isFirst = false;
      }
    }
    if (layout->GetRowRect().Bottom() > area.Bottom()) return;
  }
}

void HierarchyDragSelectTracker::EndTracking(Modifiers inModifiers, const Point& inDataPoint,
                                             bool /*inCompleted*/) {
  ContinueTracking(inModifiers, inDataPoint);
  if (mBegan && *mFocusTarget) {
    mControl->SetFocusItem(*mFocusTarget, true);
    mTrackView->GetPlatformView().InvalidateDataRect(
        mControl->GetEntryGeometry(mFocusTarget)->GetRowRect());
  }
  mControl->SetMarqueeRect(trackview::Rect());
}

}  // namespace vek::hierarchyview
