// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeControlBase.h"

#include <algorithm>
#include <iterator>
#include "lumcore/debug/Contract.h"

#include "lumcore/utility/StringUtils.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Fonts.h"
#include "vek/hierarchyview/CompareCellTexts.h"
#include "vek/hierarchyview/HierarchyArrowTracker.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/RowIndex.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeGeometry.h"
#include "vek/trackview/PlatformView.h"
#include "vek/utility/VekResources.h"

namespace vek::hierarchyview {

using lumui::ui::AccessibleChange;

namespace {

// In units.
constexpr float kRowHeight = 19.0f;
constexpr float kDropFudge = 12.0f;
constexpr float kMarqueeMargin = 20.0f;

}  // namespace

TreeControlBase::TreeControlBase(trackview::TrackView* inTrackView, bool inHideRoot,
                                 unsigned short inIndent, bool inIsSingleSelect,
                                 bool inAllowsDragOut)
    : Overlay(kLayerDefault, kStateActive),
      mHideRoot(inHideRoot),
      mIndent(inIndent),
      mTrackView(inTrackView),
      mIsSingleSelect(inIsSingleSelect),
      mAllowsDragOut(inAllowsDragOut),
      mDefaultCompareFunction(new CompareFunction(CompareCellTexts())) {}

TreeControlBase::~TreeControlBase() = default;

void TreeControlBase::BuildHierarchy() {
  mRowGeometryFactory.reset(CreateRowGeometryFactory().release());
  DoBuildHierarchy();
  mGeometry.reset(CreateGeometry().release());
  ResizeHierarchy();
}

void TreeControlBase::ResizeHierarchy() {
  if (!mGeometry || !mTrackView->GetPlatformView().GetDrawSupplier()) return;
  const Rect area = mGeometry->Area();
  const float fudge = mWantsDropFudge ? kDropFudge : 0.0f;
  mNodeCacheValid = false;  // also for a view that paints in the middle of the next call
  mTrackView->ResizeDataSize(Point(area.width, area.height + fudge), true);
  mNodeCacheValid = false;
  mHierarchySized = true;
  AnnounceRow(AccessibleChange::kItems, nullptr);
}

void TreeControlBase::ExpandAll() {
  if (!mGeometry) return;
  // The walk enters an entry when it leaves its row, and so comes by what opens here.
  for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next()) {
    if (!CanExpandNode(row.GetEntry())) continue;
    const std::uint64_t shape = HierarchyEntryBase::GetShapeVersion();
    ExpandNode(row.GetEntry(), false);
    // One change is that of the state alone.
    if (HierarchyEntryBase::GetShapeVersion() == shape + 1) row.FollowChange();
  }
  ResizeHierarchy();
}

void TreeControlBase::ExpandNode(HierarchyEntryBase* inEntry, bool inResize) {
  SetOpen(inEntry, kNodeExpanded, inResize);
}

void TreeControlBase::SetOpen(HierarchyEntryBase* inEntry, ENodeState inState, bool inResize) {
  const auto held = HoldEntry(inEntry);
  inEntry->SetNodeState(inState);
  if (!inResize) return;
  ResizeHierarchy();
  AnnounceRow(AccessibleChange::kState, inEntry);
}

bool TreeControlBase::CanExpandNode(HierarchyEntryBase const* inEntry) const {
  return inEntry->CanExpand();
}

void TreeControlBase::CollapseNode(HierarchyEntryBase* inEntry, bool inResize) {
  SetOpen(inEntry, kNodeCollapsed, inResize);
}

bool TreeControlBase::CanCollapseNode(HierarchyEntryBase const* inEntry) const {
  return inEntry->CanCollapse();
}

void TreeControlBase::GotoLast() {
  if (!mGeometry) return;
  if (const std::optional<RowIndex> index = RowIndex::Of(*mGeometry)) {
    Reveal(mGeometry->EntryArea(index->GetIterator(index->GetCount() - 1)));
    return;
  }
  Rect area;
  bool any = false;
  for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next(), any = true)
    area = Rect(0, row.GetTop(), 0, row.GetHeight());
  if (any) Reveal(area);
}

void TreeControlBase::GotoFirst() {
  if (!mGeometry) return;
  const RowWalk row(*mGeometry);
  if (!row.AtEnd()) Reveal(Rect(0, row.GetTop(), 0, row.GetHeight()));
}

void TreeControlBase::SetBackgroundColor(lumui::drawbot::ColorRGBA const& inColor) {
  mBackgroundColor = inColor;
  mHasBackgroundColor = true;
}

void TreeControlBase::SetCustomTextColor(lumui::drawbot::ColorRGBA const& inColor) {
  mCustomTextColor = inColor;
  mHasCustomTextColor = true;
}

void TreeControlBase::SetCustomSelectionColor(lumui::drawbot::ColorRGBA const& inColor) {
  mCustomSelectionColor = inColor;
  mHasCustomSelectionColor = true;
}

void TreeControlBase::SetupIdleTimeCallback() {}

void TreeControlBase::ReleaseIdleTimeCallback() {}

std::auto_ptr<HierarchyGeometry> TreeControlBase::CreateGeometry() {
  return std::auto_ptr<HierarchyGeometry>(new TreeGeometry(this, mIndent, mHideRoot, kRowHeight));
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> TreeControlBase::GetExpandedTwisty() {
  return utility::GetLibraryImage(*GetSupplier(),
                                  lumcore::utility::ToUTF8("SP_DisclosureTriangle_Xs_N"));
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> TreeControlBase::GetUnExpandedTwisty() {
  return utility::GetLibraryImage(*GetSupplier(),
                                  lumcore::utility::ToUTF8("SP_DisclosureTriangleDown_Xs_N.png"));
}

std::auto_ptr<trackview::Tracker> TreeControlBase::DoAcquireTracker(
    const Point& inDataPoint, bool inHover, trackview::TrackerDragAndDropInterface* inDragAndDrop) {
  if (inDragAndDrop) return DoServeDropTracker(inDataPoint, inHover, inDragAndDrop);
  return std::auto_ptr<trackview::Tracker>(
      new HierarchyArrowTracker(mTrackView, *this, mIsSingleSelect, mAllowsDragOut));
}

std::auto_ptr<trackview::Tracker> TreeControlBase::DoServeDropTracker(
    const Point&, bool, trackview::TrackerDragAndDropInterface*) {
  return std::auto_ptr<trackview::Tracker>();
}

void TreeControlBase::DoStartDragOut(const Point&) {}

void TreeControlBase::StartDragOut(const Point& inDataPoint) {
  DoStartDragOut(inDataPoint);
}

bool TreeControlBase::IsNodeCacheGood() const {
  return mNodeCacheValid && mNodeCacheShape == HierarchyEntryBase::GetShapeVersion();
}

HierarchyGeometry::iterator TreeControlBase::FindEntryInCache(const Point& inDataPoint) {
  if (!IsNodeCacheGood() || mNodeCache.empty()) return mGeometry->begin();
  if (!mPassedRows.empty()) return FindPassedRow(inDataPoint);
  auto row = mNodeCache.lower_bound(inDataPoint.y);
  if (row != mNodeCache.begin()) --row;
  return row->second;
}

// As if each passed row stood in the map.
HierarchyGeometry::iterator TreeControlBase::FindPassedRow(const Point& inDataPoint) {
  const std::optional<RowIndex> index = RowIndex::Of(*mGeometry);
  if (!index) return mGeometry->begin();
  const auto behind = mNodeCache.lower_bound(inDataPoint.y);
  const bool isAbove = behind != mNodeCache.begin();
  const auto cached = isAbove ? std::prev(behind) : behind;
  float top = cached->first;
  bool found = isAbove;
  std::optional<RowIndex::Row> passed;
  const RowIndex::Row at = index->FindAt(inDataPoint.y);
  for (const auto& [first, last] : mPassedRows) {
    const bool runsAbove = index->GetTop(first) < inDataPoint.y;
    const RowIndex::Row row = runsAbove ? std::min(at, last) : first;
    const float rowTop = index->GetTop(row);
    // Above the point the lowest row is wanted, below it the highest.
    if (runsAbove ? found && rowTop <= top : found || rowTop >= top) continue;
    top = rowTop;
    found = runsAbove;
    passed = row;
  }
  return passed ? index->GetIterator(*passed) : cached->second;
}

void TreeControlBase::DirtyNodeCache() {
  mNodeCacheValid = false;
}

void TreeControlBase::InvalidateNodeCache() {
  mNodeCacheValid = false;
}

void TreeControlBase::ClearRootEntry() {
  SetFocusItem(nullptr, false);
  if (mRootEntry) mRootEntry->RemoveAllChildren();
  mNodeCacheValid = false;
}

void TreeControlBase::ResetGeometry() {
  mFocusItem = nullptr;
  mHeldFocusItem.reset();
  mRootEntry.reset();
  mNodeCacheValid = false;
  mGeometry.reset();
}

void TreeControlBase::RemoveEntry(HierarchyEntryBase* inEntry) {
  LUM_INPUT_CONTRACT(inEntry && inEntry->GetParent());
  if (inEntry == mFocusItem) SetFocusItem(nullptr, false);
  inEntry->GetParent()->RemoveChild(inEntry);
}

void TreeControlBase::SetDragFeedback(HierarchyEntryBase* inEntry, bool inOnView) {
  mDragFeedbackEntry = inEntry;
  mHeldDragFeedbackEntry = HoldEntry(inEntry);
  mDragFeedbackOnView = inOnView;
  Invalidate(mTrackView->DataArea());
}

void TreeControlBase::SetMarqueeRect(const Rect& inDataRect) {
  if (!mMarqueeRect.IsEmpty()) {
    Invalidate(Rect(mMarqueeRect.x - kMarqueeMargin, mMarqueeRect.y - kMarqueeMargin,
                    mMarqueeRect.width + 2 * kMarqueeMargin,
                    mMarqueeRect.height + 2 * kMarqueeMargin));
  }
  mMarqueeRect = inDataRect;
  if (!inDataRect.IsEmpty()) Invalidate(inDataRect);
}

lumui::drawbot::FontP TreeControlBase::GetFont() {
  if (!mFont) mFont = GetSupplier()->NewFont(lumui::ui::GetFontName(0), lumui::ui::GetFontSize(0));
  return mFont;
}

lumui::drawbot::SupplierInterface const* TreeControlBase::GetSupplier() const {
  lumui::drawbot::SupplierInterface const* const supplier =
      mTrackView ? mTrackView->GetPlatformView().GetDrawSupplier() : nullptr;
  return supplier ? supplier : lumui::drawbot::GetDefaultSupplier();
}

void TreeControlBase::Invalidate(const Rect& inDataRect) const {
  mTrackView->GetPlatformView().InvalidateDataRect(inDataRect);
}

// Only ever scrolls up and down.
bool TreeControlBase::Reveal(Rect inDataRect) const {
  const Rect area = mTrackView->DataArea();
  inDataRect.x = area.x;
  inDataRect.width = area.width;
  return mTrackView->RevealRectIfNotInView(inDataRect, true);
}

}  // namespace vek::hierarchyview
