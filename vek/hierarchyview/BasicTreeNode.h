// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <memory>
#include <unordered_set>

#include "lumcore/Strings.h"
#include "lumui/drawbot/Image.h"
#include "vek/hierarchyview/HierarchyEntry.h"
#include "vek/selection/Node.h"

namespace vek::hierarchyview {

class BasicTreeSelJunction;

// A row of a ready-made tree: a text, an icon, and itself the node that is selected. It opens and
// closes where it has children. A host that has more to keep with a row derives from it.
class VEK_API BasicTreeNode : public HierarchyEntry, public selection::Node {
 public:
  explicit BasicTreeNode(lumcore::UTF16String const& inText, ENodeState inState = kNodeCollapsed);
  ~BasicTreeNode() override;

  lumcore::UTF16String const& GetText() const { return mText; }
  void SetText(lumcore::UTF16String const& inText) { mText = inText; }  // draws nothing
  // Null for none. It is drawn where the control has icons.
  void SetIcon(boost::intrusive_ptr<lumui::drawbot::ImageInterface> const& inIcon) {
    mIcon = inIcon;
  }
  // Whether the user may select it; at start he may.
  void SetSelectable(bool inSelectable) { mSelectable = inSelectable; }

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;
  bool CanExpand() const override;
  bool CanCollapse() const override;
  selection::Node* GetDataAsSelNode() const override;  // itself

 private:
  friend class BasicTreeSelJunction;

  bool DoSelectable() const override;

  lumcore::UTF16String mText;
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> mIcon;
  bool mSelectable = true;
  // Where the junction notes who has joined; it may outlive the junction.
  std::shared_ptr<std::unordered_set<const selection::Node*>> mJoined;
};

// The root of a ready-made tree: open, and mostly hidden.
class VEK_API BasicTreeRootNode : public BasicTreeNode {
 public:
  explicit BasicTreeRootNode(lumcore::UTF16String const& inText = lumcore::UTF16String());
};

}  // namespace vek::hierarchyview
