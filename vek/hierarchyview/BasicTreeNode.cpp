// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/BasicTreeNode.h"

namespace vek::hierarchyview {

BasicTreeNode::BasicTreeNode(lumcore::UTF16String const& inText, ENodeState inState)
    : HierarchyEntry(inState, nullptr), mText(inText) {}

BasicTreeNode::~BasicTreeNode() {
  if (mJoined) mJoined->erase(this);
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> BasicTreeNode::GetNodeIcon() {
  return mIcon;
}

void BasicTreeNode::GetCellText(unsigned int const& /*inAttribute*/,
                                lumcore::UTF16String& outText) const {
  outText = mText;
}

bool BasicTreeNode::CanExpand() const {
  return !GetChildren().empty();
}

bool BasicTreeNode::CanCollapse() const {
  return !GetChildren().empty();
}

selection::Node* BasicTreeNode::GetDataAsSelNode() const {
  return const_cast<BasicTreeNode*>(this);
}

bool BasicTreeNode::DoSelectable() const {
  return mSelectable;
}

BasicTreeRootNode::BasicTreeRootNode(lumcore::UTF16String const& inText)
    : BasicTreeNode(inText, kNodeExpanded) {}

}  // namespace vek::hierarchyview
