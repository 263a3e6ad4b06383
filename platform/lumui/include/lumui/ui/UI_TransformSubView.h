// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/UI_SubView.h"

namespace lumui::ui {

// The view that an archive has for its root: a sub-view whose children follow its size, and which
// never takes the keyboard itself.
class LUMUI_API UI_TransformSubView : public UI_SubView {
 public:
  UI_TransformSubView();
  ~UI_TransformSubView() override;

  bool UI_WantsKeyboardFocus() const override;
};

}  // namespace lumui::ui
