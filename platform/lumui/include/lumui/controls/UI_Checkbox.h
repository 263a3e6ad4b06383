// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/controls/UI_TextButton.h"

namespace lumui::controls {

// A box with a mark and a text behind it. The down state is the mark.
class LUMUI_API UI_Checkbox : public UI_TextButton {
 public:
  UI_Checkbox();
  ~UI_Checkbox() override;
};

}  // namespace lumui::controls
