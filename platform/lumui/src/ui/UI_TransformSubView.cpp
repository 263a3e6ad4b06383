// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_TransformSubView.h"

namespace lumui::ui {

UI_TransformSubView::UI_TransformSubView() {
  UI_SetNodeID("UI_TransformSubView");
}

UI_TransformSubView::~UI_TransformSubView() = default;

bool UI_TransformSubView::UI_WantsKeyboardFocus() const {
  return false;
}

}  // namespace lumui::ui
