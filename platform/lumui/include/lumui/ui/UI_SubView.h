// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/UI_Node.h"

namespace lumui::ui {

// A node inside a window: what hosts derive their drawn views from, and a plain holder of others.
class LUMUI_API UI_SubView : public UI_Node {
 public:
  UI_SubView();
  ~UI_SubView() override;

 protected:
  explicit UI_SubView(std::unique_ptr<NodePeer> inPeer);
};

}  // namespace lumui::ui
