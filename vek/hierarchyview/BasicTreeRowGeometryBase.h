// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/drawbot/Font.h"
#include "vek/hierarchyview/TreeRowGeometry.h"

namespace vek::hierarchyview {

// Lays a row out from left to right: twisty, icon, text. A flat list has no twisty. Making one adds
// up constants only; the text is measured when a rectangle is asked for.
class VEK_API BasicTreeRowGeometryBase : public TreeRowGeometry {
 public:
  lumcore::geom::RectT<float> GetNodeExpansionArea() const override;
  lumcore::geom::RectT<float> GetRowRect() const override;
  lumcore::geom::RectT<float> GetIconRect() const override;

  // The attribute whose text is the row's.
  virtual unsigned int GetIDTypeForHighlightText() const;  // 0

 protected:
  BasicTreeRowGeometryBase(HierarchyEntryBase const* inEntry,
                           lumcore::geom::PointT<float> const& inPosition, bool inHasIcon,
                           bool inIsFlatList, lumui::drawbot::FontP inFont);

  lumui::drawbot::FontP const& GetFont() const { return mFont; }
  // From the row's top left, for rows that lay out their own text; the text's rectangle goes by
  // the icon instead.
  lumcore::geom::PointT<float> const& GetTextOffset() const { return mTextOffset; }
  lumcore::UTF16String GetText(unsigned int inAttribute) const;
  // The entry's icon in its own size, centred where icons stand; nothing where there is none.
  void DrawIcon(lumui::drawbot::Drawbot& ioDrawbot) const;

 private:
  bool mHasIcon;
  bool mIsFlatList;
  lumui::drawbot::FontP mFont;
  lumcore::geom::PointT<float> mIconOffset;
  lumcore::geom::PointT<float> mTextOffset;
};

}  // namespace vek::hierarchyview
