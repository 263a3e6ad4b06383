// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "MapLayout.h"
#include "MapPainter.h"
#include "lumcore/Strings.h"

namespace lumui::drawbot {
class Drawbot;
}
namespace vek::trackview {
class TrackView;
}

namespace outliner {

class OutlineDocument;

// What a map shows: the rows of a document where its layout puts them, and what a gesture marks
// among them for its time. It asks the track view for drawing wherever something looks different.
//
// The track view outlives it, the document is borrowed until another is set.
class MapScene {
 public:
  using Point = MapLayout::Point;
  using Rect = MapLayout::Rect;
  using Index = MapLayout::Index;

  explicit MapScene(vek::trackview::TrackView& inTrackView);

  // Null for none.
  void SetDocument(OutlineDocument* inDocument);
  OutlineDocument* GetDocument() const { return mDocument; }
  // After rows have come, gone, moved or changed. The track view gets the new size. A row that was
  // in view stays where it was on the screen.
  void Rebuild();

  const MapLayout& GetLayout() const { return mLayout; }
  const MapPainter& GetPainter() const { return mPainter; }
  // Null for the root and for what is no box; as the document is at this moment.
  OutlineRow* RowOf(Index inIndex) const;
  OutlineRow* RowAt(const Point& inPoint) const;
  const lumcore::UTF16String& TextOf(Index inIndex) const;

  // Whether the selection has the keyboard.
  void SetFocused(bool inFocused);
  void InvalidateRow(const OutlineRow& inRow);
  void InvalidateAll();

  // Gestures. The boxes in a rubber band look selected; the target of a move has a ring; a copy of
  // the moved box is under the pointer, with its middle at the point.
  void SetBand(std::vector<Index> inBoxes);
  void SetDropTarget(Index inIndex);  // kNone for none
  void ShowGhost(Index inIndex, const Point& inMiddle);
  void HideGhost();

  void Draw(lumui::drawbot::Drawbot& inDrawbot, const Rect& inDamage) const;

 private:
  MapMark MarkOf(const MapPainter::Node& inNode) const;
  Rect GetGhostBox() const;
  void Invalidate(const Rect& inRect);
  // A row of which something is to be seen, the first selected one before others; kNone for none.
  Index FindLandmark() const;

  vek::trackview::TrackView& mTrackView;
  OutlineDocument* mDocument = nullptr;
  MapPainter mPainter;
  MapLayout mLayout;
  MapPainter::Source mSource;
  lumcore::UTF16String mTitle;
  bool mIsFocused = false;
  std::vector<Index> mBand;  // ascending
  Index mDropTarget = MapLayout::kNone;
  Index mGhost = MapLayout::kNone;
  Point mGhostMiddle;
};

}  // namespace outliner
