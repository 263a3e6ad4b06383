// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyArrowTracker.h"

#include <cmath>
#include <list>
#include <vector>

#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/hierarchyview/HierarchyDragSelectTracker.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

using lumcore::geom::RectT;
using EntryP = boost::intrusive_ptr<HierarchyEntryBase>;

namespace {

void ResetCursor() {
  if (auto* const manager = lumui::ui::UI_NodeManager::Get(false))
    manager->SetCursor(lumui::ui::CursorShape::kArrow);
}

}  // namespace

HierarchyArrowTracker::HierarchyArrowTracker(trackview::TrackView* inTrackView,
                                             TreeControlBase& inControl, bool inIsSingleSelect,
                                             bool inAllowsDragOut)
    : Tracker(inTrackView, true, true),
      mGeometry(inControl.GetGeometry()),
      mControl(&inControl),
      mIsSingleSelect(inIsSingleSelect),
      mAllowsDragOut(inAllowsDragOut) {}

HierarchyArrowTracker::~HierarchyArrowTracker() = default;

void HierarchyArrowTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint,
                                          bool inHover) {
  mModifiers = inModifiers;
  if (inHover) return ResetCursor();
  mDragPending = TrackClickOnItem(inModifiers, inDataPoint, false);
  if (!mDragPending) TrackClickOffItem(inModifiers, inDataPoint, false);
  mLastPoint = inDataPoint;
  mStartPoint = inDataPoint;
  if (mDelegate) mDelegate->BeginTracking(inModifiers, inDataPoint, false);
}

void HierarchyArrowTracker::ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) {
  const bool isFar = std::abs(inDataPoint.x - mStartPoint.x) > kDragThreshold ||
                     std::abs(inDataPoint.y - mStartPoint.y) > kDragThreshold;
  if (!mDelegate && mAllowsDragOut && isFar && mDragPending) {
    mDragPending = false;
    return StartDragEvent(mStartPoint, inDataPoint);
  }
  mLastPoint = inDataPoint;
  mModifiers = inModifiers;
  if (mDelegate) mDelegate->ContinueTracking(inModifiers, inDataPoint);
}

void HierarchyArrowTracker::EndTracking(Modifiers inModifiers, const Point& inDataPoint,
                                        bool inCompleted) {
  if (!mDelegate) return;
  mDelegate->EndTracking(inModifiers, inDataPoint, inCompleted);
  mDelegate.reset();
}

bool HierarchyArrowTracker::TrackClickOnItem(Modifiers inModifiers, const Point& inDataPoint,
                                             bool inHover) {
  const HierarchyGeometry::iterator row = mControl->FindRowAt(inDataPoint);
  if (!*row) return false;
  const std::auto_ptr<TreeRowGeometry> layout = mControl->GetEntryGeometry(row);
  if (layout->GetNodeExpansionArea().Contains(inDataPoint)) {
    TrackClickOnColExpPart(row, inModifiers, inHover);
    return true;
  }
  // The text and the icon count only as far as the row says that they select.
  if (!layout->PointInSelectArea(inDataPoint)) return false;
  SelectHierarchyItem(row, inModifiers, inHover);
  return true;
}

bool HierarchyArrowTracker::TrackClickOffItem(Modifiers /*inModifiers*/, const Point& inDataPoint,
                                              bool inHover) {
  if (!inHover && mIsSingleSelect) {
    mControl->DeselectAll();
    mControl->SetFocusItem(nullptr, true);
  }
  if (!inHover && !mIsSingleSelect) {
    const HierarchyGeometry::iterator row = mControl->FindRowAt(inDataPoint);
    if (!*row || !mControl->GetEntryGeometry(row)->PointInSelectArea(inDataPoint))
      BeginRubberBand();
  }
  return mDelegate != nullptr;
}

void HierarchyArrowTracker::TrackClickOnColExpPart(HierarchyGeometry::iterator inRow,
                                                   Modifiers /*inModifiers*/, bool inHover) {
  if (inHover) return ResetCursor();
  HierarchyEntryBase* const entry = *inRow;
  if (!entry->CanExpand()) {
    if (!mIsSingleSelect) BeginRubberBand();
  } else if (entry->GetNodeState() == kNodeCollapsed) {
    mControl->ExpandNode(entry, true);
  } else {
    mControl->CollapseNode(entry, true);  // asked of CanExpand too, by what the twisty shows
  }
}

void HierarchyArrowTracker::SelectHierarchyItem(HierarchyGeometry::iterator inRow,
                                                Modifiers inModifiers, bool inHover) {
  if (inHover) return;
  if (!mIsSingleSelect && inModifiers.Has(lumui::ui::kModShift)) {
    SelectRange(inRow);
  } else {
    mControl->SelectEntry(*inRow, !mIsSingleSelect && inModifiers.Has(lumui::ui::kModCommand));
  }
}

void HierarchyArrowTracker::StartDragEvent(const Point& inStart, const Point& /*inCurrent*/) {
  mControl->StartDragOut(inStart);
}

bool HierarchyArrowTracker::SelectRange(HierarchyGeometry::iterator const& inClicked) {
  const int selected = mControl->NumSelectedEntries();
  HierarchyEntryBase* const focusItem = mControl->GetFocusItem();
  if (selected == 0 || !focusItem || focusItem == *inClicked) return false;
  HierarchyGeometry& geometry = *mControl->GetGeometry();
  HierarchyGeometry::iterator focus;
  for (RowWalk row(geometry); !row.AtEnd() && !*focus; row.Next()) {
    if (row.GetEntry() == focusItem) focus = row.GetIterator();
  }
  if (!*focus) return false;
  const RectT<float> highlight = mControl->GetHighlightRect(focus);
  if (highlight.IsEmpty()) return false;

  const bool isBelow = highlight.y > mControl->GetEntryGeometry(inClicked)->GetRowRect().y;
  HierarchyGeometry::iterator row = isBelow ? inClicked : ExtendUp(focus, selected);
  HierarchyGeometry::iterator behind = inClicked;
  if (isBelow) {
    behind = ExtendDown(focus, selected);
  } else {
    ++behind;
  }
  std::list<HierarchyEntryBase*> entries;
  std::vector<EntryP> held;  // a host may drop rows as it deselects
  for (; row != behind && row != geometry.end(); ++row) {
    entries.push_back(*row);
    held.push_back(HoldEntry(*row));
  }
  HierarchyEntryBase* const clicked = *inClicked;
  mControl->DeselectAll();
  mControl->SetFocusItem(nullptr, true);
  mControl->SetFocusItem(clicked, true);
  mControl->ToggleEntrySelectionState(entries);
  return true;
}

// Behind the focus row and, where the other selected rows follow it one by one, behind those.
HierarchyGeometry::iterator HierarchyArrowTracker::ExtendDown(
    HierarchyGeometry::iterator const& inFocus, int inSelected) const {
  HierarchyGeometry::iterator behindFocus = inFocus;
  ++behindFocus;
  HierarchyGeometry::iterator row = behindFocus;
  for (int i = 1; i < inSelected; ++i, ++row) {
    if (row == mControl->GetGeometry()->end() || !IsSelected(*row)) return behindFocus;
  }
  return row;
}

// The row that a geometry's steps back reach in as many steps as other rows are selected, where
// all from there down to the focus are selected; otherwise the focus row.
HierarchyGeometry::iterator HierarchyArrowTracker::ExtendUp(
    HierarchyGeometry::iterator const& inFocus, int inSelected) const {
  HierarchyGeometry& geometry = *mControl->GetGeometry();
  const HierarchyGeometry::iterator first = geometry.begin();
  HierarchyGeometry::iterator top = inFocus;
  for (int i = 1; i < inSelected; ++i) {
    if (top == first) return inFocus;
    --top;
  }
  for (HierarchyGeometry::iterator row = top; row != inFocus; ++row) {
    // A way back out of a subtree ends on null, which is not where that ends.
    if (!*row || row == geometry.end() || !IsSelected(*row)) return inFocus;
  }
  return top;
}

bool HierarchyArrowTracker::IsSelected(HierarchyEntryBase const* inEntry) const {
  return inEntry->Selected(mControl->GetSelectionManager());
}

void HierarchyArrowTracker::BeginRubberBand() {
  if (!mControl->GetGeometry()) return;
  mDelegate.reset(new HierarchyDragSelectTracker(mTrackView, mControl, mControl->GetGeometry()));
}

}  // namespace vek::hierarchyview
