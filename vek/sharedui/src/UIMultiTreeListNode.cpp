// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/UIMultiTreeListNode.h"

#include "lumui/drawbot/Image.h"
#include "vek/sharedui/UIMultiTreeListController.h"
#include "vek/sharedui/UIMultiTreeListView.h"

namespace vek {

UIMultiTreeListController::~UIMultiTreeListController() = default;

void UIMultiTreeListController::GetTextForNode(UIMultiTreeListView&, UIMultiTreeListNode const&,
                                               unsigned int, lumcore::UTF16String& outText) {
  outText.clear();
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIMultiTreeListController::GetIconForNode(
    UIMultiTreeListView&, UIMultiTreeListNode const&) {
  return nullptr;
}

bool UIMultiTreeListController::IsSelectable(UIMultiTreeListView&, UIMultiTreeListNode const&) {
  return true;
}

selection::Node* UIMultiTreeListController::GetDataAsSelNode(UIMultiTreeListView&,
                                                             UIMultiTreeListNode const&) {
  return nullptr;
}

bool UIMultiTreeListController::OnDoubleClick(UIMultiTreeListView&, UIMultiTreeListNode&) {
  return false;
}

bool UIMultiTreeListController::OnKeyEvent(UIMultiTreeListView&, lumui::ui::KeyboardEvent const&) {
  return false;
}

bool UIMultiTreeListController::OnContextMenu(UIMultiTreeListView&, UIMultiTreeListNode*,
                                              lumcore::geom::PointT<float> const&,
                                              lumui::ui::UI_Node&) {
  return false;
}

void UIMultiTreeListController::OnSelectionChanged(UIMultiTreeListView&,
                                                   std::list<UIMultiTreeListNode*> const&) {}

void UIMultiTreeListController::OnGainedKeyFocus(UIMultiTreeListView&) {}

void UIMultiTreeListController::OnLostKeyFocus(UIMultiTreeListView&) {}

void UIMultiTreeListController::OnSizeChanged(UIMultiTreeListView&) {}

UIMultiTreeListNode::UIMultiTreeListNode(unsigned int inID, hierarchyview::ENodeState inState)
    : HierarchyEntry(inState, nullptr), mID(inID) {}

UIMultiTreeListController* UIMultiTreeListNode::GetController() const {
  return GetView() ? GetView()->GetController() : nullptr;
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> UIMultiTreeListNode::GetNodeIcon() {
  UIMultiTreeListController* const controller = GetController();
  return controller ? controller->GetIconForNode(*GetView(), *this) : nullptr;
}

void UIMultiTreeListNode::GetCellText(unsigned int const& inAttribute,
                                      lumcore::UTF16String& outText) const {
  outText.clear();
  UIMultiTreeListController* const controller = GetController();
  if (controller && inAttribute >= kFirstAttribute)
    controller->GetTextForNode(*GetView(), *this, inAttribute - kFirstAttribute, outText);
}

bool UIMultiTreeListNode::CanExpand() const {
  return !GetChildren().empty();
}

bool UIMultiTreeListNode::CanCollapse() const {
  return !GetChildren().empty();
}

selection::Node* UIMultiTreeListNode::GetDataAsSelNode() const {
  UIMultiTreeListController* const controller = GetController();
  selection::Node* const data =
      controller ? controller->GetDataAsSelNode(*GetView(), *this) : nullptr;
  return data ? data : const_cast<UIMultiTreeListNode*>(this);
}

bool UIMultiTreeListNode::DoSelectable() const {
  UIMultiTreeListController* const controller = GetController();
  return !controller || controller->IsSelectable(*GetView(), *this);
}

}  // namespace vek
