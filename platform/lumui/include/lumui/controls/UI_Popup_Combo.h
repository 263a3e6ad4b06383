// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/controls/UI_Popup.h"

namespace lumui::controls {

// A popup with a field, in which the user may type what no item says. Typing is told as kChanging,
// and as kChanged when Enter, a button or the loss of the keyboard ends it; nothing is chosen from
// the first letter on.
class LUMUI_API UI_Popup_Combo : public UI_Popup {
 public:
  UI_Popup_Combo();
  ~UI_Popup_Combo() override;

  // True at start.
  void SetEditable(bool inEditable) { SetEditableState(inEditable); }
  bool IsEditable() const { return GetEditableState(); }
};

}  // namespace lumui::controls
