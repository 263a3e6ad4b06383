// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/BasicTreeRowGeometryBase.h"

namespace vek::trackview {
class TrackView;
}

namespace vek::hierarchyview {

class TreeListControlBase;

// A row of a tree list: its cells, each cut off at the end of its column. It borrows the control
// and its view.
class VEK_API BasicTreeListRowGeometry : public BasicTreeRowGeometryBase {
 public:
  BasicTreeListRowGeometry(TreeListControlBase* inTreeControl, trackview::TrackView* inTrackView,
                           HierarchyEntryBase const* inEntry,
                           lumcore::geom::PointT<float> const& inPosition, bool inHasIcon,
                           bool inIsFlatList);

  void ImageNode(HierarchyGeometry const& inGeometry, lumui::drawbot::Drawbot& ioDrawbot,
                 lumcore::geom::RectT<float> const& inRow, bool inWantsLine) override;
  lumcore::geom::RectT<float> GetHighlightRect() const override;
  // The icon, what is highlighted, what lies between them, and the text of every cell.
  bool PointInSelectArea(lumcore::geom::PointT<float> const& inPoint) const override;
  bool RectOverlapsSelectArea(lumcore::geom::RectT<float> const& inRect) const override;
  bool DrawFocusMarquee() const override;  // false: the band of the selection shows the row
  unsigned int GetIDTypeForHighlightText() const override;  // what the first column shows

 protected:
  TreeListControlBase* GetTreeControl() const { return mTreeControl; }
  trackview::TrackView* GetTrackView() const { return mTrackView; }

 private:
  lumcore::geom::RectT<float> GetMainSelectArea() const;
  void DrawSelection(lumui::drawbot::Drawbot& ioDrawbot,
                     lumcore::geom::RectT<float> const& inRow) const;
  void DrawCells(lumui::drawbot::Drawbot& ioDrawbot) const;

  TreeListControlBase* mTreeControl;
  trackview::TrackView* mTrackView;
};

class VEK_API BasicTreeListRowGeoFactory : public TreeRowGeometryFactory {
 public:
  BasicTreeListRowGeoFactory(TreeListControlBase* inTreeControl, trackview::TrackView* inTrackView,
                             bool inHasIcon, bool inIsFlatList);

  std::auto_ptr<TreeRowGeometry> ServeRowGeometry(
      HierarchyEntryBase const* inEntry, lumcore::geom::PointT<float> const& inPosition) override;

 private:
  TreeListControlBase* mTreeControl;
  trackview::TrackView* mTrackView;
  bool mHasIcon;
  bool mIsFlatList;
};

}  // namespace vek::hierarchyview
