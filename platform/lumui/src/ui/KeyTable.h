// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "lumui/ui/KeyboardCode.h"

namespace lumui::ui {

// A key as Qt names it: Qt::Key, and whether it is on the number pad. Key 0 is no key.
struct QtKey {
  int key = 0;
  bool keypad = false;
};

KeyboardCode CodeFromQt(const QtKey& inKey);
QtKey QtFromCode(KeyboardCode inCode);
int OSCodeFromCode(KeyboardCode inCode);

}  // namespace lumui::ui
