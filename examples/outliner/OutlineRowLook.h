// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineTreeList.h"
#include "vek/hierarchyview/BasicTreeListRowGeometry.h"

namespace outliner {

// One row of the outline's list: hit from edge to edge, with its note behind its text, and with
// what was looked for marked in every cell.
class OutlineRowLook final : public vek::hierarchyview::BasicTreeListRowGeometry {
 public:
  using Point = lumcore::geom::PointT<float>;
  using Rect = lumcore::geom::RectT<float>;

  OutlineRowLook(OutlineTreeList& inList, const vek::hierarchyview::HierarchyEntryBase* inEntry,
                 const Point& inPosition);

  void ImageNode(const vek::hierarchyview::HierarchyGeometry& inGeometry,
                 lumui::drawbot::Drawbot& ioDrawbot, const Rect& inRow, bool inWantsLine) override;
  bool PointInSelectArea(const Point& inPoint) const override;
  bool RectOverlapsSelectArea(const Rect& inRect) const override;

  // Of a column, where its text stands: between the margins, and in the first behind the indent.
  Rect GetCellRect(unsigned short inColumn) const;
  float GetIndent() const { return GetPosition().x; }

 private:
  void DrawBullet(lumui::drawbot::Drawbot& ioDrawbot,
                  const lumui::drawbot::ColorRGBA& inColor) const;
  void DrawCell(lumui::drawbot::Drawbot& ioDrawbot, unsigned short inColumn,
                const OutlineRow& inRow, bool inIsMarked) const;
  void DrawNote(lumui::drawbot::Drawbot& ioDrawbot, const OutlineRow& inRow, Rect inRest,
                bool inIsMarked) const;
  void DrawText(lumui::drawbot::Drawbot& ioDrawbot, const lumcore::UTF16String& inText,
                const lumui::drawbot::FontP& inFont, const lumui::drawbot::ColorRGBA& inInk,
                const Rect& inCell) const;

  OutlineTreeList& mList;
};

class OutlineRowLooks final : public vek::hierarchyview::TreeRowGeometryFactory {
 public:
  explicit OutlineRowLooks(OutlineTreeList& inList) : mList(inList) {}

  std::auto_ptr<vek::hierarchyview::TreeRowGeometry> ServeRowGeometry(
      const vek::hierarchyview::HierarchyEntryBase* inEntry,
      const lumcore::geom::PointT<float>& inPosition) override;

 private:
  OutlineTreeList& mList;
};

}  // namespace outliner
