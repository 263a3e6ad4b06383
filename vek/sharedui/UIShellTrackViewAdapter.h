// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/UI_NodeAdapter.h"
#include "vek/config/Export.h"

namespace vek::sharedui {

class UIShellTrackView;

// Makes "vek::UIShellTrackView" of node archives: a scroll view around a platform view whose track
// view has a UIShellTrackView without settings. Properties: "filetypes", "filesAtLeafNodes"; the
// tree is built when they are set. An App registers it when it starts.
class VEK_API UIShellTrackViewAdapter : public lumui::ui::UI_NodeAdapterBase {
 public:
  UIShellTrackViewAdapter();
  ~UIShellTrackViewAdapter() override;

  // The tree in a node that an archive has made so; null in any other.
  static UIShellTrackView* FindTree(const lumui::ui::UI_Node& inNode);

 private:
  boost::intrusive_ptr<lumui::ui::UI_Node> DoCreateNode(
      const lumui::ui::NodeSource& inSource) const override;
  bool DoFits(const lumui::ui::UI_Node& inNode) const override;
  void DoSetProperties(lumui::ui::UI_Node& ioNode,
                       const lumui::ui::UI_NodeProperties& inProperties) const override;
  void DoGetProperties(const lumui::ui::UI_Node& inNode,
                       lumcore::proplist::PropList& outSection) const override;
  bool DoMakesItsChildren() const override;
};

}  // namespace vek::sharedui
