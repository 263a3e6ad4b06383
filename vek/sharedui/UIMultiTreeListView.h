// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "vek/hierarchyview/BasicMultiColumnListBase.h"
#include "vek/sharedui/UIMultiTreeListNode.h"

namespace vek {

class UIMultiTreeListController;

// The list of a UIMultiTreeList: rows that a host puts in, with what its controller says about
// them. It needs no subclass. Each change lays the rows out anew, unless the layout is suspended.
class VEK_API UIMultiTreeListView : public hierarchyview::BasicMultiColumnListBase {
 public:
  using NodeP = boost::intrusive_ptr<UIMultiTreeListNode>;

  explicit UIMultiTreeListView(trackview::TrackView* inTrackView, bool inIsSingleSelect = false);
  ~UIMultiTreeListView() override;

  void SetController(UIMultiTreeListController* inController);  // null for none
  UIMultiTreeListController* GetController() const { return mController; }

  // Under inParent, null for the top level, behind the others or where the order wants it. The item
  // is in no list (a contract).
  void InsertItem(NodeP const& inItem, UIMultiTreeListNode* inParent = nullptr);
  void InsertItems(std::vector<NodeP> const& inItems, UIMultiTreeListNode* inParent = nullptr);
  // With what is below it, and out of the selection. One that is in another list, or in none, is
  // left alone.
  void RemoveItem(UIMultiTreeListNode* inItem);
  void RemoveItems(std::vector<NodeP> const& inItems);
  void RemoveItems();  // all
  // Opens what is above it.
  void RevealItemIfNotInView(UIMultiTreeListNode* inItem);
  // Calls nest. The rows are laid out once when the last is taken back.
  void SuspendLayout(bool inSuspend);

  // Whether a press anywhere in a row selects it; else one on its icon and its texts does.
  void SetFullRowSelect(bool inFullRow);
  bool GetFullRowSelect() const { return mFullRowSelect; }

  bool DoDoubleClick(trackview::Modifiers inModifiers, const Point& inDataPoint) override;
  bool DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode) override;
  bool DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent) override;
  void DoGainedKeyFocus() override;
  void DoLostKeyFocus() override;
  void DoViewPortResized() override;
  void ResizeHierarchy() override;
  void ListenToMessage(const selection::SelectionChangeMessage& inMessage) override;

 protected:
  std::auto_ptr<hierarchyview::TreeRowGeometryFactory> CreateRowGeometryFactory() override;

 private:
  void Attach(NodeP const& inItem, UIMultiTreeListNode* inParent, bool inResort);
  void Detach(UIMultiTreeListNode* inItem);
  UIMultiTreeListNode* FindNodeAt(const Point& inDataPoint);

  UIMultiTreeListController* mController = nullptr;
  bool mFullRowSelect = false;
  int mSuspended = 0;
  bool mNeedsLayout = false;
  boost::shared_ptr<UIMultiTreeListView*> mSelf;
};

}  // namespace vek
