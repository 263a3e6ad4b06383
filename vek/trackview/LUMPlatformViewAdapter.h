// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/UI_NodeAdapter.h"
#include "vek/config/Export.h"

namespace vek::trackview {

// Makes "vek::LUMPlatformView" of node archives: a scroll view around a platform view with a track
// view, see PlatformScrollView::Create. It has no properties of its own. An App registers
// it when it starts.
class VEK_API LUMPlatformViewAdapter : public lumui::ui::UI_NodeAdapterBase {
 public:
  LUMPlatformViewAdapter();
  ~LUMPlatformViewAdapter() override;

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

}  // namespace vek::trackview
