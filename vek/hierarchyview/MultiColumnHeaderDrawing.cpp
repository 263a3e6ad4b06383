// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/DrawUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/skins/core/SkinManager.h"
#include "lumui/ui/Fonts.h"
#include "lumui/ui/IconType.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "lumui/utils/DrawUtils.h"
#include "vek/hierarchyview/MultiColumnHeaderSkin.h"
#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/hierarchyview/MultiColumnView.h"
#include "vek/trackview/TrackView.h"
#include "vek/utility/VekResources.h"

namespace vek::hierarchyview {

using lumui::drawbot::Drawbot;
using lumui::drawbot::Pen;
using lumui::ui::Theme;
using Point = trackview::Point;
using Rect = trackview::Rect;
using namespace lumui::ui::themev2;

namespace {

constexpr float kOuterWeight = 0.39f;
constexpr float kInnerWeight = 0.41f;
constexpr float kSideMargin = 4.0f;
constexpr float kMargin = 3.0f;
constexpr float kTitleIndent = 9.0f;
constexpr float kShadowOffset = 1.0f;
constexpr float kGrooveTop = 5.0f;
constexpr float kGrooveBottom = 4.0f;
constexpr float kArrowRight = 10.0f;  // from the column's right edge
constexpr float kArrowWidth = 10.0f;
constexpr float kArrowHeight = 5.0f;
constexpr float kGhostRadius = 5.0f;
constexpr float kGhostPen = 3.0f;

Rect Inset(Rect const& inRect, float inSides, float inTopAndBottom) {
  return Rect(inRect.x + inSides, inRect.y + inTopAndBottom, inRect.width - 2 * inSides,
              inRect.height - 2 * inTopAndBottom);
}

// In the middle of the cell's height.
Rect GetArrowRect(Rect const& inCell, float inWidth, float inHeight) {
  return Rect(inCell.Right() - kArrowRight - inWidth, inCell.y + (inCell.height - inHeight) / 2,
              inWidth, inHeight);
}

MultiColumnHeaderSkin const* FindSkin() {
  const auto* const skins = lumui::skins::core::SkinManager::GetDefaultSet();
  return skins ? skins->FindSkinFor<MultiColumnHeaderSkin>(MultiColumnHeaderSkin::kClassName)
               : nullptr;
}

}  // namespace

MultiColumnHeaderSkin::~MultiColumnHeaderSkin() = default;

boost::intrusive_ptr<lumui::drawbot::ImageInterface> MultiColumnHeaderSkin::GetSortArrow(
    lumcore::UTF8String const& inName, lumui::drawbot::SupplierInterface const& inSupplier) const {
  return utility::GetLibraryImage(inSupplier, inName);
}

void MultiColumnHeaderView::DoImageRect(const Rect& inDataRect, Drawbot& inDrawbot,
                                        boost::intrusive_ptr<Theme> inTheme) const {
  if (!inTheme || inDataRect.IsEmpty()) return;
  const Rect area = mTrackView->LocalArea();
  DrawGround(area, inDrawbot, *inTheme);
  MultiColumnHeaderSkin const* const skin = FindSkin();
  const unsigned short count = mMultiColumnView ? mMultiColumnView->GetNumberOfColumns() : 0;
  for (unsigned short column = 0; column < count; ++column)
    DrawColumn(column, inDrawbot, *inTheme, skin);
  DrawDragFeedback(inDrawbot, *inTheme);
  if (mDrawTopBorder) {
    inDrawbot.StrokeLine(Point(area.x, area.y + 0.5f), Point(area.Right(), area.y + 0.5f),
                         Pen(inTheme->GetColor(kColor_HeaderTopBorder)));
  }
}

void MultiColumnHeaderView::DrawGround(Rect const& inArea, Drawbot& inDrawbot,
                                       Theme const& inTheme) const {
  lumui::utils::DrawGradient(inDrawbot, Inset(inArea, 1, 0),
                             inTheme.GetColor(kColor_HeaderOuterGradientTop),
                             inTheme.GetColor(kColor_HeaderOuterGradientBottom), kOuterWeight);
  lumui::utils::DrawGradient(inDrawbot, Inset(inArea, 2, 2),
                             inTheme.GetColor(kColor_HeaderInnerGradientTop),
                             inTheme.GetColor(kColor_HeaderInnerGradientBottom), kInnerWeight);
  const float bottom = inArea.Bottom() - 0.5f;
  inDrawbot.StrokeLine(Point(inArea.x, bottom), Point(inArea.Right(), bottom),
                       Pen(inTheme.GetColor(kColor_TreeHeaderLine)));
}

void MultiColumnHeaderView::DrawColumn(unsigned short inColumn, Drawbot& inDrawbot,
                                       Theme const& inTheme,
                                       MultiColumnHeaderSkin const* inSkin) const {
  const Rect cell = ToLocal(GetColumnHeaderRect(inColumn));
  if (!cell.Intersects(inDrawbot.GetClipBounds())) return;
  if (inSkin) {
    inSkin->DrawCell(inDrawbot, inTheme, cell, kSideMargin, kMargin);
  } else {
    const auto groove = inTheme.GetColor(kColor_HeaderColumnGroove);
    const auto ridge = inTheme.GetColor(kColor_HeaderColumnRidge);
    float x = cell.Right() - 1.5f;
    for (const auto& color : {groove, ridge, groove}) {
      inDrawbot.StrokeLine(Point(x, cell.y + kGrooveTop), Point(x, cell.Bottom() - kGrooveBottom),
                           Pen(color));
      x += 1.0f;
    }
  }

  const bool isSorted = inColumn == mMultiColumnView->GetSortColumn();
  Rect title = cell;
  if (isSorted) title.width -= kArrowRight + kArrowWidth - kTitleIndent;
  lumcore::UTF16String text;
  mMultiColumnView->GetColumnDescriptor(inColumn, text);
  const lumui::drawbot::FontP font =
      inDrawbot.GetSupplier()->NewFont(lumui::ui::GetFontName(0), lumui::ui::GetFontSize(0));
  lumui::utils::DrawTextWithShadow(
      inDrawbot, text, font, title, inTheme.GetColor(kColor_DefaultText),
      inTheme.GetColor(kColor_DefaultTextShadow), kTitleIndent, kShadowOffset);
  if (isSorted) DrawSortArrow(inColumn, cell, inDrawbot, inTheme, inSkin);
}

void MultiColumnHeaderView::DrawSortArrow(unsigned short inColumn, Rect const& inCell,
                                          Drawbot& inDrawbot, Theme const& inTheme,
                                          MultiColumnHeaderSkin const* inSkin) const {
  const bool ascending = mMultiColumnView->GetSortIsAscending();
  if (inSkin) {
    std::string name = ascending ? "SP_SortUp_Sm_N" : "SP_SortDown_Sm_N";
    if (lumui::ui::GetIconType() == lumui::ui::kIconsForDarkGround) name += "_D";
    const auto image = inSkin->GetSortArrow(lumcore::UTF8String(name.begin(), name.end()),
                                            *inDrawbot.GetSupplier());
    if (image) {
      inDrawbot.DrawImage(*image, GetArrowRect(inCell, image->GetWidth(), image->GetHeight()));
      return;
    }
  }
  std::list<Point> points;
  CalcSortDirectionArrow(inColumn, ascending, points);
  lumui::drawbot::Path path;
  for (Point point : points) {
    mTrackView->DataToLocal(point);
    if (path.IsEmpty()) {
      path.MoveTo(point);
    } else {
      path.LineTo(point);
    }
  }
  path.Close();
  inDrawbot.FillPath(path, inTheme.GetColor(kColor_HeaderSortArrow));
}

void MultiColumnHeaderView::CalcSortDirectionArrow(unsigned short inColumn, bool inAscending,
                                                   std::list<Point>& outPoints) const {
  const Rect box = GetArrowRect(GetColumnHeaderRect(inColumn), kArrowWidth, kArrowHeight);
  const float base = inAscending ? box.Bottom() : box.y;
  const float tip = inAscending ? box.y : box.Bottom();
  outPoints = {Point(box.x, base), Point(box.Right(), base), Point(box.x + box.width / 2, tip)};
}

void MultiColumnHeaderView::DrawDragFeedback(Drawbot& inDrawbot, Theme const& inTheme) const {
  if (!mDragFeedbackRect.IsEmpty()) {
    inDrawbot.StrokePath(lumui::GetRoundedRectPath(ToLocal(mDragFeedbackRect), kGhostRadius),
                         Pen(inTheme.GetColor(kColor_HeaderDropFrame), kGhostPen));
  }
  inDrawbot.FillRect(ToLocal(mDragInsertionRect), inTheme.GetColor(kColor_HeaderDropBar));
}

Rect MultiColumnHeaderView::ToLocal(Rect inRect) const {
  mTrackView->DataToLocal(inRect);
  return inRect;
}

}  // namespace vek::hierarchyview
