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
  enum Change : int {
    kChanging = 1,  // the user is at it: a letter of a text
    kChanged = 2,   // the change is complete: a click, a choice, a text that was left or entered
  };

  explicit UI_InteractiveControlChangedMessage(ui::UI_Node* inControl, Change inChange = kChanged)
      : mControl(inControl), mChange(inChange) {}
  virtual ~UI_InteractiveControlChangedMessage();

  ui::UI_Node* GetControl() const { return mControl; }  // never null
  Change GetChange() const { return mChange; }

 private:
  ui::UI_Node* mControl;
  Change mChange;
};

}  // namespace lumui::controls
