// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "lumui/ui/UI_SubView.h"
#include "vek/config/Export.h"
#include "vek/trackview/PlatformView.h"

namespace vek::hierarchyview {
class MultiColumnHeaderView;
}
namespace vek::trackview {
class PlatformScrollView;
}

namespace vek {

class UIMultiTreeListView;

// A list with columns as one node: a header, and below it the list in its scroll view, which scroll
// sideways together. A host takes the list, gives it a controller and puts rows in:
//
//   boost::intrusive_ptr<UIMultiTreeList> list(new UIMultiTreeList);
//   list->SetColumns({ToUTF16("Name"), ToUTF16("Size")});
//   list->GetTreeControl()->SetController(&controller);
//   list->GetTreeControl()->InsertItem(new UIMultiTreeListNode(7));
//
// Node archives make it as "vek::UIMultiTreeList" (NewUIMultiTreeListAdapter).
class VEK_API UIMultiTreeList : public lumui::ui::UI_SubView {
 public:
  static constexpr float kHeaderHeight = 20.0f;

  UIMultiTreeList();
  ~UIMultiTreeList() override;

  // Both live as long as this node.
  UIMultiTreeListView* GetTreeControl() const { return mList; }
  hierarchyview::MultiColumnHeaderView* GetHeaderView() const { return mHeader; }
  trackview::PlatformScrollView* GetListScrollView() const { return mListScroll.get(); }

  bool GetShowHeader() const { return mShowHeader; }
  void SetShowHeader(bool inShow);
  float GetHeaderHeight() const { return mHeaderHeight; }
  void SetHeaderHeight(float inHeight);  // units
  // In place of the columns that there are. Their attributes are their places here, from
  // UIMultiTreeListNode::kFirstAttribute; the user can show and hide all of them but the first.
  void SetColumns(std::vector<lumcore::UTF16String> const& inTitles);
  std::vector<lumcore::UTF16String> const& GetColumns() const { return mTitles; }

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  void Follow(trackview::PlatformView& inFollowed, trackview::PlatformView& inFollower,
              trackview::PlatformView::PositionListener& outListener);
  void PlaceParts();

  boost::intrusive_ptr<trackview::PlatformScrollView> mHeaderScroll;
  boost::intrusive_ptr<trackview::PlatformScrollView> mListScroll;
  hierarchyview::MultiColumnHeaderView* mHeader = nullptr;  // owned by its view, as is the list
  UIMultiTreeListView* mList = nullptr;
  trackview::PlatformView::PositionListener mHeaderFollows;
  trackview::PlatformView::PositionListener mListFollows;
  bool mShowHeader = true;
  float mHeaderHeight = kHeaderHeight;
  std::vector<lumcore::UTF16String> mTitles;
};

// An App registers it when it starts. Properties: "columns", "fullRowSelect", "hasIcons",
// "headerHeight", "showHeader".
VEK_API std::unique_ptr<lumui::ui::UI_NodeAdapterBase> NewUIMultiTreeListAdapter();

}  // namespace vek
