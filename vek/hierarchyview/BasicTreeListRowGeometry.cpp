// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicTreeListRowGeometry.h"

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Fonts.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "vek/hierarchyview/TreeControlSkin.h"
#include "vek/hierarchyview/TreeListControlBase.h"
#include "vek/selection/ActiveManager.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;
using lumui::drawbot::ColorRGBA;

namespace {

constexpr float kCutOffEnd = 5.0f;
constexpr float kHighlightMargin = 2.0f;
constexpr float kCellStart = 6.0f;  // of every column but the first
constexpr float kCellEnd = 3.0f;
constexpr float kInactiveOpacity = 0.45f;

ColorRGBA GetThemeColor(int inColor) {
  const auto theme = lumui::ui::Theme::Get();
  return theme ? theme->GetColor(inColor) : ColorRGBA();
}

ColorRGBA GetSelectionColor(TreeControlBase const& inTreeControl) {
  if (inTreeControl.HasCustomSelectionColor()) return inTreeControl.GetCustomSelectionColor();
  const auto* const skins = lumui::skins::core::SkinManager::GetDefaultSet();
  const auto* const skin =
      skins ? skins->FindSkinFor<TreeControlSkin>(TreeControlSkin::kClassName) : nullptr;
  return GetThemeColor(skin ? skin->GetSelectedRowColor()
                            : lumui::ui::themev2::kColor_TreeSelectedRow);
}

}  // namespace

BasicTreeListRowGeometry::BasicTreeListRowGeometry(TreeListControlBase* inTreeControl,
                                                   trackview::TrackView* inTrackView,
                                                   HierarchyEntryBase const* inEntry,
                                                   PointT<float> const& inPosition, bool inHasIcon,
                                                   bool inIsFlatList)
    : BasicTreeRowGeometryBase(inEntry, inPosition, inHasIcon, inIsFlatList,
                               inTreeControl->GetFont()),
      mTreeControl(inTreeControl),
      mTrackView(inTrackView) {}

void BasicTreeListRowGeometry::ImageNode(HierarchyGeometry const& /*inGeometry*/,
                                         lumui::drawbot::Drawbot& ioDrawbot,
                                         RectT<float> const& inRow, bool /*inWantsLine*/) {
  if (GetEntry()->Selected(mTreeControl->GetSelectionManager())) DrawSelection(ioDrawbot, inRow);
  DrawIcon(ioDrawbot);
  DrawCells(ioDrawbot);
}

void BasicTreeListRowGeometry::DrawSelection(lumui::drawbot::Drawbot& ioDrawbot,
                                             RectT<float> const& inRow) const {
  const bool looksActive = mTreeControl->GetShowIfInactiveSelMgr() ||
                           selection::GetActiveManager() == mTreeControl->GetSelectionManager();
  ColorRGBA color = GetSelectionColor(*mTreeControl);
  if (!looksActive) color.alpha *= kInactiveOpacity;
  ioDrawbot.FillRect(RectT<float>(0, inRow.y, inRow.width, inRow.height), color);
}

void BasicTreeListRowGeometry::DrawCells(lumui::drawbot::Drawbot& ioDrawbot) const {
  // Entries make their font when it is first asked for, and so need not be const for it.
  lumui::drawbot::FontP font = const_cast<HierarchyEntryBase*>(GetEntry())->GetNodeFont(&ioDrawbot);
  if (!font) {
    font = ioDrawbot.GetSupplier()->NewFont(lumui::ui::GetFontName(0), lumui::ui::GetFontSize(0));
  }
  const ColorRGBA color = mTreeControl->HasCustomTextColor()
                              ? mTreeControl->GetCustomTextColor()
                              : GetThemeColor(lumui::ui::themev2::kColor_DefaultText);
  RectT<float> cell = GetRowRect();
  cell.width = 0;
  const unsigned short count = mTreeControl->GetNumberOfColumns();
  for (unsigned short column = 0; column < count; ++column) {
    cell.x += cell.width;
    cell.width = mTreeControl->GetColumnWidth(column);
    // The first cell starts behind the indent, and ends where its column does all the same.
    const float start = column == 0 ? cell.x : kCellStart;
    if (column != 0) cell.x += start;
    cell.width -= start;
    ioDrawbot.DrawStringInRect(GetText(mTreeControl->GetColumnAttr(column)), font, color,
                               RectT<float>(cell.x, cell.y, cell.width - kCellEnd, cell.height));
  }
}

RectT<float> BasicTreeListRowGeometry::GetHighlightRect() const {
  RectT<float> text = GetRowRect();
  if (!GetEntry()) return text;
  const float width = GetFont()->MeasureWidth(GetText(mTreeControl->GetColumnAttr(0)));
  const float limit = mTreeControl->GetColumnWidth(0) - kCutOffEnd;
  text.width = text.x + width > limit ? limit - text.x : width;
  return RectT<float>(text.x - kHighlightMargin, text.y - kHighlightMargin,
                      text.width + 2 * kHighlightMargin, text.height);
}

// As the control has it for the entry, which is without the indent.
RectT<float> BasicTreeListRowGeometry::GetMainSelectArea() const {
  return mTreeControl->GetHighlightRect(GetEntry(), GetPosition().y).Join(GetIconRect());
}

bool BasicTreeListRowGeometry::PointInSelectArea(PointT<float> const& inPoint) const {
  if (GetMainSelectArea().Contains(inPoint)) return true;
  unsigned short column = 0;
  return mTreeControl->GetColumnHitByPoint(inPoint, column) &&
         mTreeControl->GetTextBoundingRect(this, GetEntry(), column).Contains(inPoint);
}

bool BasicTreeListRowGeometry::RectOverlapsSelectArea(RectT<float> const& inRect) const {
  bool overlaps = GetMainSelectArea().Intersects(inRect);
  const unsigned short count = mTreeControl->GetNumberOfColumns();
  for (unsigned short column = 0; column < count && !overlaps; ++column)
    overlaps = mTreeControl->GetTextBoundingRect(this, GetEntry(), column).Intersects(inRect);
  return overlaps;
}

bool BasicTreeListRowGeometry::DrawFocusMarquee() const {
  return false;
}

unsigned int BasicTreeListRowGeometry::GetIDTypeForHighlightText() const {
  return mTreeControl->GetColumnAttr(0);
}

BasicTreeListRowGeoFactory::BasicTreeListRowGeoFactory(TreeListControlBase* inTreeControl,
                                                       trackview::TrackView* inTrackView,
                                                       bool inHasIcon, bool inIsFlatList)
    : mTreeControl(inTreeControl),
      mTrackView(inTrackView),
      mHasIcon(inHasIcon),
      mIsFlatList(inIsFlatList) {}

std::auto_ptr<TreeRowGeometry> BasicTreeListRowGeoFactory::ServeRowGeometry(
    HierarchyEntryBase const* inEntry, PointT<float> const& inPosition) {
  return std::auto_ptr<TreeRowGeometry>(new BasicTreeListRowGeometry(
      mTreeControl, mTrackView, inEntry, inPosition, mHasIcon, mIsFlatList));
}

}  // namespace vek::hierarchyview
