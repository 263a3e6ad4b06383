// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineListTrackers.h"

#include "OutlineDocument.h"
#include "OutlineDrag.h"
#include "OutlineEdits.h"
#include "OutlineEntry.h"
#include "OutlineTreeList.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "vek/trackview/TrackerDragAndDropInterface.h"

namespace outliner {

OutlinePressTracker::OutlinePressTracker(OutlineTreeList& inList)
    : HierarchyArrowTracker(inList.GetTrackView(), inList, inList.GetIsSingleSelect(),
                            inList.AllowsDragOut()),
      mList(inList) {}

OutlinePressTracker::~OutlinePressTracker() = default;

void OutlinePressTracker::SelectHierarchyItem(vek::hierarchyview::HierarchyGeometry::iterator inRow,
                                              Modifiers inModifiers, bool inHover) {
  const bool isSelected = (*inRow)->Selected(mList.GetSelectionManager());
  if (inHover || !isSelected || !inModifiers.IsEmpty()) {
    return HierarchyArrowTracker::SelectHierarchyItem(inRow, inModifiers, inHover);
  }
  mSelectsAtEnd = static_cast<const OutlineEntry*>(*inRow)->GetRowId();
}

// The system's drag takes the place of this gesture, which ends in the middle of it.
void OutlinePressTracker::StartDragEvent(const Point& inStart, const Point& inCurrent) {
  mSelectsAtEnd = 0;
  HierarchyArrowTracker::StartDragEvent(inStart, inCurrent);
}

void OutlinePressTracker::EndTracking(Modifiers inModifiers, const Point& inDataPoint,
                                      bool inCompleted) {
  HierarchyArrowTracker::EndTracking(inModifiers, inDataPoint, inCompleted);
  OutlineDocument* const document = mList.GetDocument();
  if (mSelectsAtEnd == 0 || !inCompleted || !document) return;
  if (OutlineRow* const row = document->GetTree().FindRow(mSelectsAtEnd)) {
    document->SelectRows({row});
  }
}

OutlineDropTracker::OutlineDropTracker(OutlineTreeList& inList,
                                       vek::trackview::TrackerDragAndDropInterface& inDrag)
    : Tracker(inList.GetTrackView(), true, false), mList(inList), mDrag(inDrag) {}

OutlineDropTracker::~OutlineDropTracker() = default;

void OutlineDropTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool) {
  ContinueTracking(inModifiers, inDataPoint);
}

void OutlineDropTracker::ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) {
  Tracker::ContinueTracking(inModifiers, inDataPoint);
  OutlineDocument* const document = mList.GetDocument();
  const auto place = mList.FindDropPlace(inDataPoint);
  if (!document || !place) return;
  const unsigned effect =
      FindDropEffect(*document, edits::CanMoveTo(*document, place->target), mDrag.GetReceiveData());
  mList.ShowDropPlace(effect == lumui::ui::kDropNone ? std::nullopt : place);
  mDrag.SetDropEffect(effect);
}

void OutlineDropTracker::EndTracking(Modifiers, const Point& inDataPoint, bool inCompleted) {
  mList.ShowDropPlace(std::nullopt);
  OutlineDocument* const document = mList.GetDocument();
  const auto place = mList.FindDropPlace(inDataPoint);
  if (!inCompleted || !document || !place) return;
  const unsigned effect =
      FindDropEffect(*document, edits::CanMoveTo(*document, place->target), mDrag.GetReceiveData());
  if (effect == lumui::ui::kDropNone) return;
  if (TakeOwnRows(*document)) {
    edits::MoveTo(*document, place->target);
  } else {
    InsertRowsOfDrag(*document, place->target, *mDrag.GetReceiveData());
  }
  mDrag.SetDropEffect(effect);
}

}  // namespace outliner
