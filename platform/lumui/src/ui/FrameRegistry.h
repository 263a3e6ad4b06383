// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/OS_Frame.h"

namespace lumui::ui {

// For windows and frames alike. Never used again, so that a handle kept too long finds no other
// window.
HWND NewWindowHandle();
// Its window has it now. False for a handle that is no frame.
bool RemoveFrame(HWND inFrame);

}  // namespace lumui::ui
