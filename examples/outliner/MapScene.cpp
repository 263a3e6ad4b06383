// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapScene.h"

#include <algorithm>
#include <utility>

#include "OutlineDocument.h"
#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

constexpr float kRing = 4;  // what a mark may reach out of its box

}  // namespace

MapScene::MapScene(vek::trackview::TrackView& inTrackView) : mTrackView(inTrackView) {
  mSource.text = [this](const auto& inNode) -> const UTF16String& {
    return TextOf(mLayout.FindRow(inNode.row));
  };
  mSource.mark = [this](const auto& inNode) { return MarkOf(inNode); };
}

void MapScene::SetDocument(OutlineDocument* inDocument) {
  mDocument = inDocument;
  mBand.clear();
  mDropTarget = mGhost = MapLayout::kNone;
  mLayout = MapLayout();
  Rebuild();
}

void MapScene::Rebuild() {
  // Gestures go on with the new boxes.
  mBand.clear();
  mDropTarget = mGhost = MapLayout::kNone;
  if (!mDocument) {
    mTrackView.ResizeDataSize(Point(1, 1), true);
    return InvalidateAll();
  }
  auto& view = mTrackView.GetPlatformView();
  const Index landmark = FindLandmark();
  const OutlineRow::Id row = landmark == MapLayout::kNone ? 0 : mLayout.GetNode(landmark).row;
  const Point before = landmark == MapLayout::kNone ? Point() : mLayout.GetBox(landmark).Origin();

  const OutlineTree& tree = mDocument->GetTree();
  mTitle = tree.GetEnvelope().title.empty() ? mDocument->GetTitle() : tree.GetEnvelope().title;
  mLayout.Build(tree, [this](const OutlineRow& inRow, std::size_t inDepth) {
    return mPainter.MeasureBox(inDepth == 0 ? mTitle : inRow.GetText(), inDepth);
  });
  mTrackView.ResizeDataSize(mLayout.GetSize(), true);
  const Index after = landmark == MapLayout::kNone ? landmark : mLayout.FindRow(row);
  if (after != MapLayout::kNone) {
    const Point moved = mLayout.GetBox(after).Origin() - before;
    if (moved != Point()) view.DataPos(view.DataPos() + moved, false);
  }
  InvalidateAll();
}

MapScene::Index MapScene::FindLandmark() const {
  if (mLayout.GetNodes().size() < 2) return MapLayout::kNone;
  const Rect area = mTrackView.DataArea();
  const std::vector<Index> boxes = mLayout.FindBoxes(area);
  const auto isThere = [this](Index inIndex) { return RowOf(inIndex) != nullptr; };
  const auto selected = std::find_if(boxes.begin(), boxes.end(), [&](Index inIndex) {
    return isThere(inIndex) && mDocument->IsSelected(*RowOf(inIndex));
  });
  if (selected != boxes.end()) return *selected;
  const auto first = std::find_if(boxes.begin(), boxes.end(), isThere);
  return first == boxes.end() ? MapLayout::kNone : *first;
}

OutlineRow* MapScene::RowOf(Index inIndex) const {
  if (!mDocument || inIndex == MapLayout::kNone || inIndex == MapLayout::kRoot) return nullptr;
  return mDocument->GetTree().FindRow(mLayout.GetNode(inIndex).row);
}

OutlineRow* MapScene::RowAt(const Point& inPoint) const {
  return RowOf(mLayout.FindBox(inPoint));
}

const UTF16String& MapScene::TextOf(Index inIndex) const {
  static const UTF16String sNone;
  if (inIndex == MapLayout::kRoot) return mTitle;
  const OutlineRow* const row = RowOf(inIndex);
  return row ? row->GetText() : sNone;
}

MapMark MapScene::MarkOf(const MapPainter::Node& inNode) const {
  const Index index = mLayout.FindRow(inNode.row);
  if (index == mDropTarget) return MapMark::kDropTarget;
  if (std::binary_search(mBand.begin(), mBand.end(), index)) return MapMark::kSelected;
  const OutlineRow* const row = RowOf(index);
  if (!row || !mDocument->IsSelected(*row)) return MapMark::kNone;
  return mIsFocused ? MapMark::kSelected : MapMark::kIdleSelected;
}

// Boxes lie on whole pixels, which may be one beside where they are.
void MapScene::Invalidate(const Rect& inRect) {
  const float reach = kRing + 1 / mTrackView.GetCoordScale();
  mTrackView.GetPlatformView().InvalidateDataRect(Rect(
      inRect.x - reach, inRect.y - reach, inRect.width + 2 * reach, inRect.height + 2 * reach));
}

void MapScene::InvalidateAll() {
  mTrackView.GetPlatformView().InvalidateDataRect(mTrackView.DataArea());
}

void MapScene::InvalidateRow(const OutlineRow& inRow) {
  const Index index = mLayout.FindRow(inRow.GetId());
  if (index != MapLayout::kNone) Invalidate(mLayout.GetBox(index));
}

void MapScene::SetFocused(bool inFocused) {
  if (inFocused == mIsFocused) return;
  mIsFocused = inFocused;
  InvalidateAll();
}

void MapScene::SetBand(std::vector<Index> inBoxes) {
  std::sort(inBoxes.begin(), inBoxes.end());
  std::vector<Index> changed;
  std::set_symmetric_difference(mBand.begin(), mBand.end(), inBoxes.begin(), inBoxes.end(),
                                std::back_inserter(changed));
  mBand = std::move(inBoxes);
  constexpr std::size_t kMostSingleBoxes = 64;
  if (changed.size() > kMostSingleBoxes) return InvalidateAll();
  for (const Index index : changed)
    Invalidate(mLayout.GetBox(index));
}

void MapScene::SetDropTarget(Index inIndex) {
  if (inIndex == mDropTarget) return;
  for (const Index index : {std::exchange(mDropTarget, inIndex), inIndex}) {
    if (index != MapLayout::kNone) Invalidate(mLayout.GetBox(index));
  }
}

MapScene::Rect MapScene::GetGhostBox() const {
  const Rect box = mLayout.GetBox(mGhost);
  return Rect(mGhostMiddle.x - box.width / 2, mGhostMiddle.y - box.height / 2, box.width,
              box.height);
}

void MapScene::ShowGhost(Index inIndex, const Point& inMiddle) {
  HideGhost();
  mGhost = inIndex;
  mGhostMiddle = inMiddle;
  Invalidate(GetGhostBox());
}

void MapScene::HideGhost() {
  if (mGhost == MapLayout::kNone) return;
  Invalidate(GetGhostBox());
  mGhost = MapLayout::kNone;
}

void MapScene::Draw(lumui::drawbot::Drawbot& inDrawbot, const Rect& inDamage) const {
  inDrawbot.FillRect(inDrawbot.GetClipBounds(), palette::Paper());
  if (!mDocument) return;
  const float scale = mTrackView.GetCoordScale();
  mPainter.Draw(inDrawbot, mLayout, mSource, inDamage, scale, mTrackView.GetCoordOffset());
  if (mGhost == MapLayout::kNone) return;
  Rect box = GetGhostBox();
  mTrackView.DataToLocal(box);
  mPainter.DrawGhost(inDrawbot, TextOf(mGhost), mLayout.GetNode(mGhost).depth, box, scale);
}

}  // namespace outliner
