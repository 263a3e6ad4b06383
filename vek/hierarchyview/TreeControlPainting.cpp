// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The part of the tree control that paints. A paint costs what the damage touches and the way there
// from a row that an earlier paint came by: each row that a paint comes by is remembered.

#include <algorithm>

#include "lumcore/utility/ScopedValue.h"
#include "lumui/DrawUtils.h"
#include "lumui/controls/DrawTrianglePicture.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/hierarchyview/TreeControlSkin.h"
#include "vek/trackview/TrackView.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;
using lumui::drawbot::Brush;
using lumui::drawbot::ColorRGBA;
using lumui::drawbot::Drawbot;
using lumui::drawbot::Path;
using lumui::drawbot::Pen;
using lumui::drawbot::StDrawbotState;
using ThemeP = boost::intrusive_ptr<lumui::ui::Theme>;
using SkinColor = int (TreeControlSkin::*)() const;

namespace {

// In units.
constexpr float kLineWidth = 1.0f;
constexpr float kCornerRadius = 5.0f;
constexpr float kBandStrokeWidth = 3.0f;
constexpr float kBoxMargin = 4.0f;
constexpr float kBoxStrokeWidth = 3.0f;
constexpr float kViewBoxWidth = 10.0f;
constexpr float kInsertionHeight = 2.0f;
constexpr float kMarkerWidth = 4.0f;
constexpr PointT<float> kOpenTwistyOffset(3.0f, 0.0f);
constexpr PointT<float> kClosedTwistyOffset(5.0f, 0.0f);

constexpr ColorRGBA kBandFill(0.52f, 0.52f, 0.52f, 0.5f);
constexpr ColorRGBA kBandStroke(0.84f, 0.84f, 0.84f, 0.5f);

// What a tree is painted with: who says the number of the colour, the number where nobody does, and
// what is seen where no theme is loaded at all.
struct Use {
  SkinColor skin;
  int color;
  ColorRGBA plain;
};

namespace colors = lumui::ui::themev2;
constexpr Use kBackground{&TreeControlSkin::GetBackgroundColor, colors::kColor_TreeBackground,
                          ColorRGBA(1, 1, 1)};
constexpr Use kSeparator{&TreeControlSkin::GetRowSeparatorColor, colors::kColor_TreeRowSeparator,
                         ColorRGBA(0.9f, 0.9f, 0.9f)};
constexpr Use kBorder{&TreeControlSkin::GetBorderColor, colors::kColor_TreeBorder,
                      ColorRGBA(0.5f, 0.5f, 0.5f)};
constexpr Use kSelectedRow{&TreeControlSkin::GetSelectedRowColor, colors::kColor_TreeSelectedRow,
                           ColorRGBA(0.7f, 0.8f, 1)};
constexpr Use kInsertion{&TreeControlSkin::GetInsertionFeedbackColor,
                         colors::kColor_TreeInsertionFeedback, ColorRGBA(0, 0, 0)};
constexpr Use kBoxFill{&TreeControlSkin::GetBoxFeedbackFillColor, colors::kColor_TreeDropBoxFill,
                       ColorRGBA(0.5f, 0.5f, 0.5f, 0.25f)};
constexpr Use kBoxStroke{&TreeControlSkin::GetBoxFeedbackStrokeColor,
                         colors::kColor_TreeDropBoxStroke, ColorRGBA(0.3f, 0.3f, 0.3f)};

ColorRGBA GetColor(lumui::ui::Theme const* inTheme, Use const& inUse) {
  if (!inTheme) return inUse.plain;
  const auto* const set = lumui::skins::core::SkinManager::GetDefaultSet();
  const auto* const skin =
      set ? set->FindSkinFor<TreeControlSkin>(TreeControlSkin::kClassName) : nullptr;
  return inTheme->GetColor(skin ? (skin->*inUse.skin)() : inUse.color);
}

// For a row the box is around the row's band, for the view inside its edges.
void DrawBoxFeedback(Drawbot& ioDrawbot, lumui::ui::Theme const* inTheme, RectT<float> inRect,
                     float inViewWidth, bool inOnView) {
  inRect.x = kBoxMargin;
  inRect.width = inViewWidth - 2 * kBoxMargin;
  if (inOnView) {
    inRect.y += kBoxMargin;
    inRect.height -= 2 * kBoxMargin;
  }
  const Path box = lumui::GetRoundedRectPath(inRect, kCornerRadius);
  const ColorRGBA fill = GetColor(inTheme, kBoxFill);
  if (inOnView) {
    ioDrawbot.StrokePath(box, Pen(fill, kViewBoxWidth));
  } else {
    ioDrawbot.FillPath(box, Brush(fill));
  }
  ioDrawbot.StrokePath(box, Pen(GetColor(inTheme, kBoxStroke), kBoxStrokeWidth));
}

// A line above the row, or below all rows, with an arrow's head at its left.
void DrawInsertionFeedback(Drawbot& ioDrawbot, lumui::ui::Theme const* inTheme, RectT<float> inRect,
                           float inViewWidth, bool inOnView) {
  inRect.y += inOnView ? inRect.height - kInsertionHeight : -kInsertionHeight;
  inRect = RectT<float>(0, inRect.y, inViewWidth, kInsertionHeight);
  Path path;
  path.MoveTo(PointT<float>(inRect.x, inRect.y - 4.0f));
  path.LineTo(PointT<float>(inRect.x, inRect.y + 5.0f));
  path.LineTo(PointT<float>(inRect.x + kMarkerWidth, inRect.y + 2.0f));
  path.LineTo(PointT<float>(inRect.x + kMarkerWidth, inRect.y));
  path.LineTo(PointT<float>(inRect.x, inRect.y - 4.0f));
  inRect.x += 5.0f;
  path.AddRect(inRect);
  ioDrawbot.FillPath(path, Brush(GetColor(inTheme, kInsertion)));
}

}  // namespace

TreeControlSkin::~TreeControlSkin() = default;

class TreeControlBase::Painter {
 public:
  Painter(TreeControlBase& ioControl, Drawbot& ioDrawbot, ThemeP const& inTheme,
          RectT<float> const& inDamage)
      : mControl(ioControl),
        mDrawbot(ioDrawbot),
        mTheme(inTheme),
        mDamage(inDamage),
        mLocalArea(ioControl.mTrackView->LocalArea()),
        mSeparator(GetColor(inTheme.get(), kSeparator), kLineWidth) {}

  void Paint() {
    mDrawbot.FillRect(mDamage,
                      Brush(mControl.mHasBackgroundColor ? mControl.mBackgroundColor
                                                         : GetColor(mTheme.get(), kBackground)));
    if (mControl.mGeometry) {
      mControl.RenewNodeCache();
      HierarchyGeometry::iterator row = mControl.FindEntryInCache(mDamage.Origin());
      if (mControl.mHideRoot && row != mControl.mGeometry->end() && !(*row)->GetParent()) ++row;
      if (!mControl.mRowGeometryFactory) return;
      if (*row) PaintRows(PassRows(row));
    }
    if (mControl.mDrawShadowBox) lumui::DrawListBoxShadow(mLocalArea, mDrawbot);
    if (mControl.mDrawBorder) PaintBorder();
    if (!mControl.mMarqueeRect.IsEmpty()) PaintRubberBand();
    if (mControl.mDragFeedbackOnView) mControl.DoDrawViewDropFeedback(mDrawbot, mTheme);
  }

 private:
  // Rows that end above the damage would show nothing, since rows are clipped to themselves: many
  // of them are passed by at once.
  HierarchyGeometry::iterator PassRows(HierarchyGeometry::iterator const& inRow) {
    constexpr RowIndex::Row kFew = 64;
    const std::optional<RowIndex> index = RowIndex::Of(*mControl.mGeometry);
    const std::optional<RowIndex::Row> first = index ? index->Find(*inRow) : std::nullopt;
    if (!first) return inRow;
    const RowIndex::Row next = std::min(index->FindAt(mDamage.y), index->GetCount() - 1);
    if (next <= *first + kFew) return inRow;
    mControl.mPassedRows.emplace_back(*first, next - 1);
    return index->GetIterator(next);
  }

  void PaintRows(HierarchyGeometry::iterator inRow) {
    HierarchyGeometry& geometry = *mControl.mGeometry;
    while (inRow != geometry.end()) {
      const auto held = HoldEntry(*inRow);
      const std::uint64_t shape = HierarchyEntryBase::GetShapeVersion();
      RectT<float> area = geometry.EntryArea(inRow);
      if (area.Bottom() > mDamage.y) PaintRow(area, inRow);
      if (shape != HierarchyEntryBase::GetShapeVersion()) {
        // Drawing a row, which may read its text from elsewhere, has changed a tree.
        inRow = mControl.FindRow(*inRow);
        if (!*inRow) return;
        mControl.RenewNodeCache();
        area = geometry.EntryArea(inRow);
      }
      mControl.mNodeCache.insert_or_assign(mControl.mNodeCache.end(), area.y, inRow);
      if (area.Bottom() > mDamage.Bottom()) return;
      ++inRow;
    }
  }

  void PaintRow(RectT<float> inArea, HierarchyGeometry::iterator const& inRow) {
    HierarchyEntryBase* const entry = *inRow;
    inArea.width = std::max({inArea.width, mDamage.width, mLocalArea.width});
    RectT<float> band = inArea;
    band.x = std::min(inArea.x, mDamage.x);
    const StDrawbotState clipped(mDrawbot, band);
    if (mControl.IsSelected(entry)) {
      mDrawbot.FillRect(
          band, Brush(mControl.mHasCustomSelectionColor ? mControl.mCustomSelectionColor
                                                        : GetColor(mTheme.get(), kSelectedRow)));
    }
    const std::auto_ptr<TreeRowGeometry> layout =
        mControl.mRowGeometryFactory->ServeRowGeometry(entry, inArea.Origin());
    layout->ImageNode(*mControl.mGeometry, mDrawbot, inArea, mControl.mWantsLine);
    if (mControl.mWantsLine) {
      mDrawbot.StrokeLine(PointT<float>(band.x, inArea.Bottom()),
                          PointT<float>(band.Right(), inArea.Bottom()), mSeparator);
    }
    if (entry->CanExpand() || entry->CanCollapse()) PaintTwisty(inArea, entry);
    if (entry == mControl.mDragFeedbackEntry)
      mControl.DoDrawItemDropFeedback(mDrawbot, mTheme, layout);
  }

  void PaintTwisty(RectT<float> const& inArea, HierarchyEntryBase* inEntry) {
    const bool isOpen = inEntry->GetNodeState() == kNodeExpanded;
    lumui::controls::DrawTrianglePicture triangle(PointT<float>(1, 1), isOpen);
    if (mControl.mTwistyColor) triangle.SetColor(mControl.mTwistyColor(inEntry));
    triangle.Draw(mDrawbot, inArea, isOpen ? kOpenTwistyOffset : kClosedTwistyOffset);
  }

  void PaintBorder() {
    mDrawbot.StrokeRect(RectT<float>(mLocalArea.x + 0.5f, mLocalArea.y + 0.5f,
                                     mLocalArea.width - 1.0f, mLocalArea.height - 1.0f),
                        Pen(GetColor(mTheme.get(), kBorder), kLineWidth));
  }

  void PaintRubberBand() {
    const Path band = lumui::GetRoundedRectPath(mControl.mMarqueeRect, kCornerRadius);
    mDrawbot.FillPath(band, Brush(kBandFill));
    mDrawbot.StrokePath(band, Pen(kBandStroke, kBandStrokeWidth));
  }

  TreeControlBase& mControl;
  Drawbot& mDrawbot;
  ThemeP mTheme;
  RectT<float> mDamage;
  RectT<float> mLocalArea;
  Pen mSeparator;
};

void TreeControlBase::DoImageRect(const Rect& inDataRect, Drawbot& inDrawbot,
                                  ThemeP inTheme) const {
  if (inDataRect.IsEmpty()) return;
  // A first paint sizes the tree, and each one remembers rows.
  TreeControlBase& self = const_cast<TreeControlBase&>(*this);
  if (!mHierarchySized && !mSizesBeforePaint) {
    const lumcore::utility::StScopedValue<bool> sizing(self.mSizesBeforePaint, true);
    self.ResizeHierarchy();
  }
  Painter(self, inDrawbot, inTheme, inDataRect).Paint();
}

void TreeControlBase::RenewNodeCache() {
  if (IsNodeCacheGood()) return;
  mNodeCache.clear();
  mPassedRows.clear();
  mNodeCacheValid = true;
  mNodeCacheShape = HierarchyEntryBase::GetShapeVersion();
}

void TreeControlBase::DoDrawItemDropFeedback(Drawbot& inDrawbot, ThemeP inTheme,
                                             std::auto_ptr<TreeRowGeometry> const& inRow) const {
  const auto draw = mDragFeedbackType == kDragFeedbackBox ? DrawBoxFeedback : DrawInsertionFeedback;
  draw(inDrawbot, inTheme.get(), inRow->GetRowRect(), mTrackView->LocalArea().width, false);
}

void TreeControlBase::DoDrawViewDropFeedback(Drawbot& inDrawbot, ThemeP inTheme) const {
  const Rect area = mTrackView->LocalArea();
  if (mDragFeedbackType == kDragFeedbackBox) {
    DrawBoxFeedback(inDrawbot, inTheme.get(), area, area.width, true);
  } else if (mGeometry) {
    DrawInsertionFeedback(inDrawbot, inTheme.get(), mGeometry->Area(), area.width, true);
  }
}

}  // namespace vek::hierarchyview
