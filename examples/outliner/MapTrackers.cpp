// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapTrackers.h"

#include <algorithm>
#include <cmath>
#include <list>

#include "MapOverlay.h"
#include "OutlineDocument.h"
#include "OutlineDrag.h"
#include "OutlineEdits.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/sharedui/MarqeeOverlay.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"
#include "vek/trackview/TrackerDragAndDropInterface.h"

namespace outliner {

using vek::trackview::Rect;

namespace {

// Local units beyond the view's edge, up to which a drag scrolls and behind which it leaves.
constexpr float kLeaveDistance = 48;
constexpr float kDragDistance = 4;  // local units; a hand that clicks moves less

Rect RectBetween(const vek::trackview::Point& inA, const vek::trackview::Point& inB) {
  const auto [left, right] = std::minmax(inA.x, inB.x);
  const auto [top, bottom] = std::minmax(inA.y, inB.y);
  return Rect(left, top, right - left, bottom - top);
}

bool Extends(vek::trackview::Modifiers inModifiers) {
  return inModifiers.Has(lumui::ui::kModShift) || inModifiers.Has(lumui::ui::kModCommand);
}

}  // namespace

MapMoveTracker::MapMoveTracker(MapOverlay& inOverlay, OutlineRow& inRow)
    : Tracker(&inOverlay.GetTrackView(), true, false), mOverlay(inOverlay), mRow(inRow.GetId()) {}

MapMoveTracker::~MapMoveTracker() = default;

void MapMoveTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool) {
  mOverlay.BeginGesture();
  mExitCheck = true;
  mExitMargin = kLeaveDistance / mTrackView->GetCoordScale();
  mStart = inDataPoint;
  mTrackView->DataToLocal(mStart);
  OutlineDocument& document = *mOverlay.GetScene().GetDocument();
  OutlineRow* const row = document.GetTree().FindRow(mRow);
  // What is selected together is dragged together, so a click on one of them waits for its end.
  mSelectsAtEnd = !Extends(inModifiers) && document.IsSelected(*row);
  if (!mSelectsAtEnd) mOverlay.SelectWithPointer(*row, inModifiers);
}

OutlineRow* MapMoveTracker::FindTarget(const Point& inDataPoint) const {
  MapScene& scene = mOverlay.GetScene();
  if (!scene.GetDocument()) return nullptr;
  const MapLayout::Index index = scene.GetLayout().FindBox(inDataPoint);
  if (index == MapLayout::kNone) return nullptr;
  OutlineRow* const target =
      index == MapLayout::kRoot ? &scene.GetDocument()->GetTree().GetRoot() : scene.RowOf(index);
  return target && edits::CanMoveBelow(*scene.GetDocument(), *target) ? target : nullptr;
}

void MapMoveTracker::ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) {
  MapScene& scene = mOverlay.GetScene();
  if (mOverlay.IsGivenUp() || !scene.GetDocument()) return;
  Point local = inDataPoint;
  mTrackView->DataToLocal(local);
  const Point way = local - mStart;
  mIsDragging = mIsDragging || std::abs(way.x) > kDragDistance || std::abs(way.y) > kDragDistance;
  if (!mIsDragging) return;
  const MapLayout::Index dragged = scene.GetLayout().FindRow(mRow);
  if (!scene.RowOf(dragged)) return;  // it was deleted meanwhile
  CheckForExit(inDataPoint);
  if (mExited) return Send();
  Tracker::ContinueTracking(inModifiers, inDataPoint);
  const OutlineRow* const target = FindTarget(inDataPoint);
  scene.SetDropTarget(target ? scene.GetLayout().FindRow(target->GetId()) : MapLayout::kNone);
  scene.ShowGhost(dragged, inDataPoint);
  const bool isRefused = !target && scene.GetLayout().FindBox(inDataPoint) != MapLayout::kNone;
  lumui::ui::UI_NodeManager::Get(true)->SetCursor(isRefused ? lumui::ui::CursorShape::kForbidden
                                                            : lumui::ui::CursorShape::kMove);
}

// The system's drag takes the place of this gesture, which ends in the middle of it: to that end
// there is nothing left to do.
void MapMoveTracker::Send() {
  mOverlay.GiveUpGesture();
  SendSelectedRows(*mOverlay.GetScene().GetDocument(), mTrackView->GetPlatformView());
}

void MapMoveTracker::EndTracking(Modifiers inModifiers, const Point& inDataPoint,
                                 bool inCompleted) {
  MapScene& scene = mOverlay.GetScene();
  scene.SetDropTarget(MapLayout::kNone);
  scene.HideGhost();
  lumui::ui::UI_NodeManager::Get(true)->SetCursor(lumui::ui::CursorShape::kArrow);
  if (mOverlay.IsGivenUp() || !inCompleted || !scene.GetDocument()) return;
  OutlineRow* const row = scene.GetDocument()->GetTree().FindRow(mRow);
  if (!row) return;
  if (!mIsDragging) {
    if (mSelectsAtEnd) mOverlay.SelectWithPointer(*row, inModifiers);
    return;
  }
  if (OutlineRow* const target = FindTarget(inDataPoint)) {
    edits::MoveBelow(*scene.GetDocument(), *target);
  }
}

MapDropTracker::MapDropTracker(MapOverlay& inOverlay,
                               vek::trackview::TrackerDragAndDropInterface& inDrag)
    : Tracker(&inOverlay.GetTrackView(), false, false), mOverlay(inOverlay), mDrag(inDrag) {}

MapDropTracker::~MapDropTracker() = default;

OutlineRow* MapDropTracker::FindTarget(const Point& inDataPoint) const {
  MapScene& scene = mOverlay.GetScene();
  if (!scene.GetDocument()) return nullptr;
  OutlineRow* const row = scene.RowAt(inDataPoint);
  return row ? row : &scene.GetDocument()->GetTree().GetRoot();
}

unsigned MapDropTracker::FindEffect(const OutlineRow* inTarget) const {
  if (!inTarget) return lumui::ui::kDropNone;
  OutlineDocument& document = *mOverlay.GetScene().GetDocument();
  return FindDropEffect(document, edits::CanMoveBelow(document, *inTarget), mDrag.GetReceiveData());
}

void MapDropTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool) {
  ContinueTracking(inModifiers, inDataPoint);
}

void MapDropTracker::ContinueTracking(Modifiers, const Point& inDataPoint) {
  MapScene& scene = mOverlay.GetScene();
  const OutlineRow* const target = FindTarget(inDataPoint);
  const unsigned effect = FindEffect(target);
  const bool isTaken = effect != lumui::ui::kDropNone;
  scene.SetDropTarget(isTaken ? scene.GetLayout().FindRow(target->GetId()) : MapLayout::kNone);
  mDrag.SetDropEffect(effect);
}

void MapDropTracker::EndTracking(Modifiers, const Point& inDataPoint, bool inCompleted) {
  mOverlay.GetScene().SetDropTarget(MapLayout::kNone);
  if (!inCompleted) return;
  OutlineRow* const target = FindTarget(inDataPoint);
  const unsigned effect = FindEffect(target);
  if (effect == lumui::ui::kDropNone) return;
  Drop(*target);
  mDrag.SetDropEffect(effect);
}

void MapDropTracker::Drop(OutlineRow& ioTarget) {
  OutlineDocument& document = *mOverlay.GetScene().GetDocument();
  if (TakeOwnRows(document)) return edits::MoveBelow(document, ioTarget);
  InsertRowsOfDrag(document, {MoveTarget::kLastBelow, ioTarget.GetId()}, *mDrag.GetReceiveData());
}

MapBandTracker::MapBandTracker(MapOverlay& inOverlay)
    : Tracker(&inOverlay.GetTrackView(), true, false), mOverlay(inOverlay) {}

MapBandTracker::~MapBandTracker() = default;

void MapBandTracker::BeginTracking(Modifiers inModifiers, const Point& inDataPoint, bool) {
  mOverlay.BeginGesture();
  mStart = inDataPoint;
  if (!Extends(inModifiers)) mOverlay.GetScene().GetDocument()->SelectRows({});
}

std::vector<MapLayout::Index> MapBandTracker::FindBoxes(const Point& inDataPoint) const {
  const MapScene& scene = mOverlay.GetScene();
  std::vector<MapLayout::Index> boxes =
      scene.GetLayout().FindBoxes(RectBetween(mStart, inDataPoint));
  boxes.erase(std::remove_if(boxes.begin(), boxes.end(),
                             [&](MapLayout::Index inIndex) { return !scene.RowOf(inIndex); }),
              boxes.end());
  return boxes;
}

void MapBandTracker::ContinueTracking(Modifiers inModifiers, const Point& inDataPoint) {
  if (mOverlay.IsGivenUp() || !mOverlay.GetScene().GetDocument()) return;
  Tracker::ContinueTracking(inModifiers, inDataPoint);
  mOverlay.ShowBand(RectBetween(mStart, inDataPoint));
  mOverlay.GetScene().SetBand(FindBoxes(inDataPoint));
}

void MapBandTracker::EndTracking(Modifiers inModifiers, const Point& inDataPoint,
                                 bool inCompleted) {
  MapScene& scene = mOverlay.GetScene();
  mOverlay.ShowBand(Rect());
  scene.SetBand({});
  if (mOverlay.IsGivenUp() || !inCompleted || !scene.GetDocument()) return;
  std::vector<OutlineRow*> rows;
  for (const MapLayout::Index index : FindBoxes(inDataPoint))
    rows.push_back(scene.RowOf(index));
  if (rows.empty()) return;
  const OutlineTree& tree = scene.GetDocument()->GetTree();
  std::sort(rows.begin(), rows.end(), [&](const OutlineRow* inA, const OutlineRow* inB) {
    return tree.GetLine(*inA) < tree.GetLine(*inB);
  });
  scene.GetDocument()->GetSelection().Select(
      std::list<vek::selection::Node*>(rows.begin(), rows.end()),
      Extends(inModifiers) ? vek::selection::eKeepOthers : vek::selection::eDeselectOthers,
      vek::selection::eSendMessages);
}

}  // namespace outliner
