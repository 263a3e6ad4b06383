// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"

class QKeyEvent;

namespace lumui::ui {

// What one key of Qt means, in the terms of KeyboardEvent.
struct KeyReadings {
  KeyboardCode code;
  ModifierKeys modifiers;
  KeyboardCode latinCode;
  KeyboardCode shiftedCode;
};

KeyReadings ReadKey(const QKeyEvent& inEvent);

}  // namespace lumui::ui
