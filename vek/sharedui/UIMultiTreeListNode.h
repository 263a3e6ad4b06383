// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>

#include "vek/hierarchyview/HierarchyEntry.h"
#include "vek/selection/Node.h"

namespace vek {

class UIMultiTreeListController;
class UIMultiTreeListView;

// A row of a UIMultiTreeListView: a number that is the host's, and itself the node that is
// selected. What it shows its list's controller says; while it is in no list, or the list has no
// controller, it is empty and can be selected. It may outlive its list.
class VEK_API UIMultiTreeListNode : public hierarchyview::HierarchyEntry, public selection::Node {
 public:
  // That of column 0, and one more for each. No column has attribute 0: an order by that is none,
  // and rows that come later would not be put into their places.
  static constexpr unsigned int kFirstAttribute = 1;

  explicit UIMultiTreeListNode(unsigned int inID,
                               hierarchyview::ENodeState inState = hierarchyview::kNodeCollapsed);

  unsigned int GetID() const { return mID; }
  UIMultiTreeListView* GetView() const { return mView ? *mView : nullptr; }  // null in no list

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;
  bool CanExpand() const override;  // where it has children
  bool CanCollapse() const override;
  selection::Node* GetDataAsSelNode() const override;

 private:
  friend class UIMultiTreeListView;

  bool DoSelectable() const override;
  UIMultiTreeListController* GetController() const;

  unsigned int mID;
  boost::shared_ptr<UIMultiTreeListView*> mView;  // shared by the list's nodes; on null without it
};

}  // namespace vek
