// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "vek/config/Export.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace vek::hierarchyview {

class HierarchyEntryBase;
class HierarchyGeometry;

// The layout of one row: where its parts lie, what counts as a hit, and how it is drawn, all in the
// control's data coordinates. It is made whenever somebody needs it and gone at once, so it always
// follows the entry as it stands. It borrows the entry.
class VEK_API TreeRowGeometry {
 public:
  // The position is the row's top left corner.
  TreeRowGeometry(HierarchyEntryBase const* inEntry,
                  lumcore::geom::PointT<float> const& inPosition);
  TreeRowGeometry(const TreeRowGeometry&) = delete;
  TreeRowGeometry& operator=(const TreeRowGeometry&) = delete;
  virtual ~TreeRowGeometry();

  virtual void ImageNode(HierarchyGeometry const& inGeometry, lumui::drawbot::Drawbot& ioDrawbot,
                         lumcore::geom::RectT<float> const& inRow, bool inWantsLine) = 0;
  // Where a click opens or closes the entry; empty where there is no twisty.
  virtual lumcore::geom::RectT<float> GetNodeExpansionArea() const = 0;
  // That of the text, not of the whole row.
  virtual lumcore::geom::RectT<float> GetRowRect() const = 0;
  virtual lumcore::geom::RectT<float> GetIconRect() const = 0;  // empty without an icon
  virtual lumcore::geom::RectT<float> GetHighlightRect() const = 0;
  virtual bool PointInSelectArea(lumcore::geom::PointT<float> const& inPoint) const = 0;
  virtual bool RectOverlapsSelectArea(lumcore::geom::RectT<float> const& inRect) const = 0;
  virtual bool DrawFocusMarquee() const;  // true

 protected:
  HierarchyEntryBase const* GetEntry() const { return mEntry; }
  lumcore::geom::PointT<float> const& GetPosition() const { return mPosition; }

 private:
  HierarchyEntryBase const* mEntry;
  lumcore::geom::PointT<float> mPosition;
};

// Makes the rows of one control, which owns it.
class VEK_API TreeRowGeometryFactory {
 public:
  TreeRowGeometryFactory() = default;
  TreeRowGeometryFactory(const TreeRowGeometryFactory&) = delete;
  TreeRowGeometryFactory& operator=(const TreeRowGeometryFactory&) = delete;
  virtual ~TreeRowGeometryFactory();

  virtual std::auto_ptr<TreeRowGeometry> ServeRowGeometry(
      HierarchyEntryBase const* inEntry, lumcore::geom::PointT<float> const& inPosition) = 0;
};

}  // namespace vek::hierarchyview
