// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace lumui::ui {
class KeyboardEvent;
}

namespace vek::uisupport {

// Whatever a host hands key events to besides the command system. The framework calls none.
class VEK_API KeyEventHandler {
 public:
  KeyEventHandler();
  virtual ~KeyEventHandler();

  // True takes the event.
  virtual bool HandleKeyEvent(const lumui::ui::KeyboardEvent& inEvent) = 0;
};

}  // namespace vek::uisupport
