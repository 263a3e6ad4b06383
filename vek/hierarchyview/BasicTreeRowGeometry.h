// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/BasicTreeRowGeometryBase.h"

namespace vek::trackview {
class TrackView;
}

namespace vek::hierarchyview {

class TreeControlBase;

// A row of a tree: its text in the control's font. It borrows the control and its view.
class VEK_API BasicTreeRowGeometry : public BasicTreeRowGeometryBase {
 public:
  BasicTreeRowGeometry(TreeControlBase* inTreeControl, trackview::TrackView* inTrackView,
                       HierarchyEntryBase const* inEntry,
                       lumcore::geom::PointT<float> const& inPosition, bool inHasIcon);

  void ImageNode(HierarchyGeometry const& inGeometry, lumui::drawbot::Drawbot& ioDrawbot,
                 lumcore::geom::RectT<float> const& inRow, bool inWantsLine) override;
  lumcore::geom::RectT<float> GetHighlightRect() const override;
  // The icon and what is highlighted take clicks, and so does what lies between them.
  bool PointInSelectArea(lumcore::geom::PointT<float> const& inPoint) const override;
  bool RectOverlapsSelectArea(lumcore::geom::RectT<float> const& inRect) const override;

 protected:
  TreeControlBase* GetTreeControl() const { return mTreeControl; }
  trackview::TrackView* GetTrackView() const { return mTrackView; }

 private:
  TreeControlBase* mTreeControl;
  trackview::TrackView* mTrackView;
};

class VEK_API BasicTreeRowGeoFactory : public TreeRowGeometryFactory {
 public:
  BasicTreeRowGeoFactory(TreeControlBase* inTreeControl, trackview::TrackView* inTrackView,
                         bool inHasIcon);

  std::auto_ptr<TreeRowGeometry> ServeRowGeometry(
      HierarchyEntryBase const* inEntry, lumcore::geom::PointT<float> const& inPosition) override;

 private:
  TreeControlBase* mTreeControl;
  trackview::TrackView* mTrackView;
  bool mHasIcon;
};

}  // namespace vek::hierarchyview
