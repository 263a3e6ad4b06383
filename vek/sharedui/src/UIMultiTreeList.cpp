// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIMultiTreeList.h"

#include <algorithm>

#include "vek/hierarchyview/MultiColumnHeaderView.h"
#include "vek/sharedui/UIMultiTreeListView.h"
#include "vek/trackview/PlatformScrollView.h"

namespace vek {

using hierarchyview::MultiColumnHeaderView;
using trackview::LUMPlatformView;
using trackview::PlatformScrollView;
using trackview::PlatformView;
using trackview::TrackView;
using Flags = lumcore::utility::Flags<unsigned int>;
using Rect = trackview::Rect;

namespace {

constexpr float kColumnWidth = 100.0f;
constexpr float kMinColumnWidth = 15.0f;

// Tells the overlays of the keyboard too.
class ListPlatformView : public LUMPlatformView {
 public:
  void UI_FocusChanged(int inReason) override {
    LUMPlatformView::UI_FocusChanged(inReason);
    TrackView* const view = GetTrackView();
    if (!view) return;
    UI_HasKeyboardFocus() ? view->GainedKeyFocus() : view->LostKeyFocus();
  }
};

// Stands where the list stands, also where that is beyond the last column: the list is narrower by
// its scroll bar.
class HeaderScrollView : public PlatformScrollView {
 public:
  using PlatformScrollView::PlatformScrollView;

 protected:
  bool DoLimitsToContent() const override { return false; }
};

class Adapter : public lumui::ui::UI_NodeAdapterT<UIMultiTreeList> {
 public:
  using UI_NodeAdapterT::UI_NodeAdapterT;

 private:
  bool DoMakesItsChildren() const override { return true; }
};

template <class Scroll>
boost::intrusive_ptr<PlatformScrollView> NewScrollView(
    boost::intrusive_ptr<LUMPlatformView> const& inView, unsigned int inFlags) {
  std::auto_ptr<TrackView> trackView(new TrackView(*inView, false, 1, 1));
  inView->SetTrackView(trackView);
  return boost::intrusive_ptr<PlatformScrollView>(new Scroll(Flags(inFlags), inView));
}

template <class Kind>
Kind* Install(PlatformScrollView& inScroll, Kind* inOverlay) {
  std::auto_ptr<trackview::Overlay> overlay(inOverlay);
  inScroll.GetPlatformView().GetTrackView()->InstallOverlay(overlay, false);
  return inOverlay;
}

}  // namespace

UIMultiTreeList::UIMultiTreeList()
    : mHeaderScroll(NewScrollView<HeaderScrollView>(
          new LUMPlatformView,
          PlatformScrollView::kNoHorizontalBar | PlatformScrollView::kNoVerticalBar)),
      mListScroll(NewScrollView<PlatformScrollView>(new ListPlatformView, 0)) {
  UI_SetNodeID("UIMultiTreeList");
  mHeaderScroll->GetPlatformView().SetWantsKeyboardFocus(false);
  mHeaderScroll->GetPlatformView().SetFocusTaker(&mListScroll->GetPlatformView());
  TrackView& headerView = *mHeaderScroll->GetPlatformView().GetTrackView();
  mHeader = Install(*mHeaderScroll, new MultiColumnHeaderView(&headerView, true));
  TrackView& listView = *mListScroll->GetPlatformView().GetTrackView();
  mList = Install(*mListScroll, new UIMultiTreeListView(&listView));
  mHeader->SetKeepsRightPressesForMenu(true);
  mHeader->SetMultiColumnView(mList);
  mList->GetColumnStateChangedNoter()->AddListener(mHeader);
  UI_AddChild(mHeaderScroll);
  UI_AddChild(mListScroll);
  Follow(mListScroll->GetPlatformView(), mHeaderScroll->GetPlatformView(), mHeaderFollows);
  Follow(mHeaderScroll->GetPlatformView(), mListScroll->GetPlatformView(), mListFollows);
}

// Somebody may hold one of the two scroll views for longer.
UIMultiTreeList::~UIMultiTreeList() {
  mHeaderScroll->GetPlatformView().SetFocusTaker(nullptr);
  mHeaderFollows->clear();
  mListFollows->clear();
  mHeader->SetMultiColumnView(nullptr);
  mList->GetColumnStateChangedNoter()->RemoveListener(mHeader);
}

void UIMultiTreeList::Follow(PlatformView& inFollowed, PlatformView& inFollower,
                             PlatformView::PositionListener& outListener) {
  outListener.reset(
      new boost::function<void(PlatformView*)>([follower = &inFollower](PlatformView* inMoved) {
        follower->DependantDataPosChanged(inMoved, true, false);
      }));
  inFollowed.NotifyWhenDataPosChanged(outListener);
}

void UIMultiTreeList::SetShowHeader(bool inShow) {
  mShowHeader = inShow;
  mHeaderScroll->UI_Show(inShow);
  PlaceParts();
}

void UIMultiTreeList::SetHeaderHeight(float inHeight) {
  mHeaderHeight = inHeight;
  PlaceParts();
}

void UIMultiTreeList::SetColumns(std::vector<lumcore::UTF16String> const& inTitles) {
  mTitles = inTitles;
  while (mList->GetNumberOfColumns() > 0)
    mList->RemoveColumn(static_cast<unsigned short>(mList->GetNumberOfColumns() - 1));
  MultiColumnHeaderView::ColumnSet columns;
  for (const lumcore::UTF16String& title : mTitles) {
    const auto attribute =
        UIMultiTreeListNode::kFirstAttribute + static_cast<unsigned int>(columns.size());
    mList->InsertColumn(attribute, kColumnWidth, kMinColumnWidth, title.c_str(), nullptr);
    columns.emplace_back(attribute, title);
  }
  mHeader->SetColumnSet(columns);
}

void UIMultiTreeList::UI_SizeChanged(const Rect& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  PlaceParts();
}

void UIMultiTreeList::PlaceParts() {
  const Rect& all = UI_GetLocalRectF();
  const float top = mShowHeader ? std::min(mHeaderHeight, all.height) : 0.0f;
  mHeader->SetViewHeight(mHeaderHeight);
  TrackView& headerView = *mHeaderScroll->GetPlatformView().GetTrackView();
  headerView.ResizeDataSize(trackview::Point(headerView.DataSize().x, mHeaderHeight), false);
  mHeaderScroll->UI_SetLocalRectF(Rect(0, 0, all.width, top));
  mListScroll->UI_SetLocalRectF(Rect(0, top, all.width, all.height - top));
}

std::unique_ptr<lumui::ui::UI_NodeAdapterBase> NewUIMultiTreeListAdapter() {
  auto adapter = std::make_unique<Adapter>("vek::UIMultiTreeList", "lumui::ui::UI_SubView");
  const auto getList = [](const UIMultiTreeList& inList) -> UIMultiTreeListView& {
    return *inList.GetTreeControl();
  };
  adapter
      ->Add(
          "columns", [](const UIMultiTreeList& inList) { return inList.GetColumns(); },
          &UIMultiTreeList::SetColumns)
      .Add(
          "fullRowSelect",
          [=](const UIMultiTreeList& inList) { return getList(inList).GetFullRowSelect(); },
          [=](UIMultiTreeList& ioList, bool inFull) { getList(ioList).SetFullRowSelect(inFull); })
      .Add(
          "hasIcons", [=](const UIMultiTreeList& inList) { return getList(inList).HasIcons(); },
          [=](UIMultiTreeList& ioList, bool inHas) { getList(ioList).SetHasIcons(inHas); })
      .Add("headerHeight", &UIMultiTreeList::GetHeaderHeight, &UIMultiTreeList::SetHeaderHeight)
      .Add("showHeader", &UIMultiTreeList::GetShowHeader, &UIMultiTreeList::SetShowHeader);
  return adapter;
}

}  // namespace vek
