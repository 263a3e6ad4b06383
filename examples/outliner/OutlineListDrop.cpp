// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The part of the outline's list that says where a drop goes, and shows it.

#include "OutlineDocument.h"
#include "OutlineEntries.h"
#include "OutlineRowLook.h"
#include "OutlineTreeList.h"
#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "vek/hierarchyview/TreeListGeometry.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

using vek::hierarchyview::kNodeExpanded;
using vek::hierarchyview::TreeRowGeometry;

namespace {

constexpr float kRowHeight = vek::hierarchyview::TreeListGeometry::kRowHeight;
// Of a row's height, at its top and its bottom: a drop there goes beside the row.
constexpr float kEdgeShare = 0.3f;
constexpr float kLevel = vek::hierarchyview::TreeListGeometry::kIndent;
constexpr float kTwisty = 17;  // from the left of a row to where its text begins
constexpr float kLineHeight = 2;
constexpr float kKnobRadius = 3.5f;
constexpr float kBoxRadius = 4;

const vek::hierarchyview::HierarchyEntryBase* LastChildOf(
    const vek::hierarchyview::HierarchyEntryBase& inParent) {
  return inParent.GetChildren().empty() ? nullptr : inParent.GetChildren().back().get();
}

}  // namespace

std::optional<OutlineTreeList::DropPlace> OutlineTreeList::FindDropPlace(const Point& inDataPoint) {
  if (!mDocument || !GetGeometry()) return std::nullopt;
  DropPlace place;
  place.target = {MoveTarget::kLastBelow, mDocument->GetTree().GetRoot().GetId()};
  place.entry = FindEntryAt(inDataPoint);
  if (!place.entry) return place;
  const auto row = GetGeometry()->FindEntry(inDataPoint);
  const Rect area = GetGeometry()->EntryArea(row);
  place.indent = area.x;
  place.target.row = place.entry->GetRowId();
  if (IsSorted()) return place;
  const float share = (inDataPoint.y - area.y) / kRowHeight;
  if (share < kEdgeShare) {
    place.target.place = MoveTarget::kBefore;
  } else if (share > 1 - kEdgeShare) {
    if (place.entry->CanCollapse() && place.entry->GetNodeState() == kNodeExpanded) {
      // The next row is the first below this one.
      place.target = {
          MoveTarget::kBefore,
          static_cast<OutlineEntry*>(place.entry->GetChildren().front().get())->GetRowId()};
      place.indent += kLevel;
      return place;
    }
    // Behind the last row of a branch the pointer says which branch it is.
    const Entry* target = place.entry;
    while (inDataPoint.x < place.indent && target->GetParent()->GetParent() &&
           LastChildOf(*target->GetParent()) == target) {
      target = target->GetParent();
      place.indent -= kLevel;
    }
    place.target = {MoveTarget::kAfter, static_cast<const OutlineEntry*>(target)->GetRowId()};
  }
  return place;
}

void OutlineTreeList::ShowDropPlace(const std::optional<DropPlace>& inPlace) {
  mDropPlace = inPlace;
  SetDragFeedback(inPlace ? inPlace->entry : nullptr, inPlace && !inPlace->entry);
}

// Rows are clipped to themselves, so a line stands within the row that it is shown at.
void OutlineTreeList::DoDrawItemDropFeedback(lumui::drawbot::Drawbot& inDrawbot,
                                             boost::intrusive_ptr<lumui::ui::Theme>,
                                             std::auto_ptr<TreeRowGeometry> const& inRow) const {
  if (!mDropPlace || !mDropPlace->entry) return;
  const float width = GetTrackView()->LocalArea().Right();
  const float top = inRow->GetNodeExpansionArea().y - 2;
  const auto color = palette::Accent();
  const bool isOwn = mDropPlace->target.row == mDropPlace->entry->GetRowId();
  lumui::drawbot::Path path;
  if (isOwn && mDropPlace->target.place == MoveTarget::kLastBelow) {
    path.AddRoundedRect({2.5f, top + 1.0f, width - 5, kRowHeight - 2}, kBoxRadius);
    inDrawbot.StrokePath(path, lumui::drawbot::Pen(color, 2));
    return;
  }
  const bool isAbove = isOwn && mDropPlace->target.place == MoveTarget::kBefore;
  const float y = isAbove ? top + kLineHeight / 2 : top + kRowHeight - kLineHeight / 2;
  const float x = mDropPlace->indent + kTwisty;
  path.AddEllipse({x - kKnobRadius, y - kKnobRadius, 2 * kKnobRadius, 2 * kKnobRadius});
  path.AddRect({x, y - kLineHeight / 2, width - x, kLineHeight});
  inDrawbot.FillPath(path, color);
}

}  // namespace outliner
