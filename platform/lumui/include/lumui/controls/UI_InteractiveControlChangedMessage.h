// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::ui {
class UI_Node;
}

namespace lumui::controls {

// Tells that the user has changed a control. It lives while the listeners are called.
class LUMUI_API UI_InteractiveControlChangedMessage {
 public:
  explicit UI_InteractiveControlChangedMessage(ui::UI_Node* inControl) : mControl(inControl) {}
  virtual ~UI_InteractiveControlChangedMessage();

  ui::UI_Node* GetControl() const { return mControl; }  // never null

 private:
  ui::UI_Node* mControl;
};

}  // namespace lumui::controls
