// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::ui {

// What ground icons are drawn for. Those for a dark one have "_D" at the end of their names.
enum IconType : int { kIconsForAnyGround = 1, kIconsForDarkGround = 2 };

// By the brightness of the theme.
LUMUI_API int GetIconType();

}  // namespace lumui::ui
