// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapOverlay.h"

#include <algorithm>
#include <utility>

#include "MapTools.h"
#include "MapTrackers.h"
#include "OutlineDocument.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/sharedui/MarqeeOverlay.h"
#include "vek/trackview/PlatformView.h"

namespace outliner {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;

namespace {

constexpr float kBandReach = 2;  // local units

}  // namespace

MapOverlay::MapOverlay(vek::trackview::TrackView& inTrackView, vek::sharedui::MarqeeOverlay& inBand,
                       Functions inFunctions)
    : Overlay(maplayers::kMap, kStateActive),
      mTrackView(inTrackView),
      mBand(inBand),
      mFunctions(std::move(inFunctions)),
      mScene(inTrackView) {}

MapOverlay::~MapOverlay() = default;

void MapOverlay::DoImageRect(const vek::trackview::Rect& inDataRect,
                             lumui::drawbot::Drawbot& inDrawbot,
                             boost::intrusive_ptr<lumui::ui::Theme>) const {
  mScene.Draw(inDrawbot, inDataRect);
}

bool MapOverlay::DoDoubleClick(Modifiers inModifiers, const Point& inDataPoint) {
  OutlineRow* const row = mScene.RowAt(inDataPoint);
  if (!row || !inModifiers.IsEmpty()) return false;
  mScene.GetDocument()->SelectRows({row});
  mFunctions.goToRow();
  return true;
}

// A row that is selected already stays so with all others: the menu is for them together.
bool MapOverlay::DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node&) {
  Point point = inLocalPoint;
  mTrackView.LocalToData(point);
  OutlineRow* const row = mScene.RowAt(point);
  if (!mScene.GetDocument()) return false;
  if (row && !mScene.GetDocument()->IsSelected(*row)) mScene.GetDocument()->SelectRows({row});
  mFunctions.openRowMenu(inLocalPoint);
  return true;
}

std::auto_ptr<vek::trackview::Tracker> MapOverlay::DoAcquireTracker(
    const Point& inDataPoint, bool inHover,
    vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) {
  using TrackerP = std::auto_ptr<vek::trackview::Tracker>;
  if (inHover || !mScene.GetDocument()) return TrackerP();
  if (inDragAndDrop) return TrackerP(new MapDropTracker(*this, *inDragAndDrop));
  if (!IsLeftPress(mTrackView)) return TrackerP();
  if (OutlineRow* const row = mScene.RowAt(inDataPoint)) {
    return TrackerP(new MapMoveTracker(*this, *row));
  }
  return TrackerP(new MapBandTracker(*this));
}

void MapOverlay::SelectWithPointer(OutlineRow& inRow, Modifiers inModifiers) {
  OutlineDocument& document = *mScene.GetDocument();
  const OutlineTree& tree = document.GetTree();
  if (inModifiers.Has(lumui::ui::kModShift)) {
    const OutlineRow* anchor = mAnchor == 0 ? nullptr : tree.FindRow(mAnchor);
    const auto selected = document.GetSelectedRows();
    if (!anchor || !document.IsSelected(*anchor)) {
      anchor = selected.empty() ? &inRow : selected.front();
    }
    mAnchor = anchor->GetId();
    const std::size_t from = std::min(tree.GetLine(*anchor), tree.GetLine(inRow));
    const std::size_t to = std::max(tree.GetLine(*anchor), tree.GetLine(inRow));
    const auto first = tree.GetLines().begin();
    document.SelectRows(
        {first + static_cast<std::ptrdiff_t>(from), first + static_cast<std::ptrdiff_t>(to) + 1});
    return;
  }
  mAnchor = inRow.GetId();
  if (inModifiers.Has(lumui::ui::kModCommand)) {
    document.GetSelection().ToggleSelectables({&inRow}, vek::selection::eSendMessages);
  } else {
    document.SelectRows({&inRow});
  }
}

bool MapOverlay::DoKeyEvent(const KeyboardEvent& inEvent) {
  if (!inEvent.IsActionKeyDown() || !inEvent.GetModKey().IsEmpty()) return false;
  switch (inEvent.GetCode().GetControlCode(false)) {
    case KeyboardCode::kEscape:
      if (!mTrackView.GetPlatformView().IsTracking()) return false;
      GiveUpGesture();
      return true;
    case KeyboardCode::kLeftArrow:
      return StepSideways(false);
    case KeyboardCode::kRightArrow:
      return StepSideways(true);
    default:
      return false;
  }
}

void MapOverlay::GiveUpGesture() {
  mIsGivenUp = true;
  mScene.SetDropTarget(MapLayout::kNone);
  mScene.HideGhost();
  mScene.SetBand({});
  ShowBand(vek::trackview::Rect());
}

void MapOverlay::ShowBand(const vek::trackview::Rect& inDataRect) {
  InvalidateBand();
  mBand.SetMarqueeRect(inDataRect);
  mBandRect = inDataRect;
  InvalidateBand();
}

// With the outer half of its line, which the band itself leaves out where it is new.
void MapOverlay::InvalidateBand() {
  if (mBandRect.IsEmpty()) return;
  const float reach = kBandReach / mTrackView.GetCoordScale();
  mTrackView.GetPlatformView().InvalidateDataRect(
      vek::trackview::Rect(mBandRect.x - reach, mBandRect.y - reach, mBandRect.width + 2 * reach,
                           mBandRect.height + 2 * reach));
}

bool MapOverlay::DoWantsDragDropEvents() const {
  return mScene.GetDocument() != nullptr;
}

// To the parent of the first selected row, or to its first child.
bool MapOverlay::StepSideways(bool inToChild) {
  if (!mScene.GetDocument()) return false;
  const auto selected = mScene.GetDocument()->GetSelectedRows();
  if (selected.empty()) return false;
  OutlineRow* const parent = selected.front()->GetParent();
  OutlineRow* next = parent && parent->GetParent() ? parent : nullptr;
  if (inToChild) {
    next = selected.front()->GetChildCount() > 0 ? selected.front()->GetChild(0) : nullptr;
  }
  if (next) mScene.GetDocument()->SelectRows({next});
  return true;
}

}  // namespace outliner
