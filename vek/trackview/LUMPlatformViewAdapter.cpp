// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/LUMPlatformViewAdapter.h"

#include <memory>
#include <utility>

#include "vek/trackview/PlatformScrollView.h"

namespace vek::trackview {

LUMPlatformViewAdapter::LUMPlatformViewAdapter()
    : UI_NodeAdapterBase("vek::LUMPlatformView", "lumui::ui::UI_SubView") {}

LUMPlatformViewAdapter::~LUMPlatformViewAdapter() = default;

boost::intrusive_ptr<lumui::ui::UI_Node> LUMPlatformViewAdapter::DoCreateNode(
    const lumui::ui::NodeSource&) const {
  return PlatformScrollView::Create();
}

bool LUMPlatformViewAdapter::DoFits(const lumui::ui::UI_Node& inNode) const {
  return dynamic_cast<const PlatformScrollView*>(&inNode) != nullptr;
}

void LUMPlatformViewAdapter::DoSetProperties(lumui::ui::UI_Node&,
                                             const lumui::ui::UI_NodeProperties&) const {}

void LUMPlatformViewAdapter::DoGetProperties(const lumui::ui::UI_Node&,
                                             lumcore::proplist::PropList&) const {}

bool LUMPlatformViewAdapter::DoMakesItsChildren() const {
  return true;
}

}  // namespace vek::trackview
