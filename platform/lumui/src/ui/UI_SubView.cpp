// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_SubView.h"

#include <utility>

#include "ui/NodePeer.h"

namespace lumui::ui {

UI_SubView::UI_SubView() = default;

UI_SubView::UI_SubView(std::unique_ptr<NodePeer> inPeer) : UI_Node(std::move(inPeer)) {}

UI_SubView::~UI_SubView() = default;

}  // namespace lumui::ui
