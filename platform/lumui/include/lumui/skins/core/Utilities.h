// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::skins::core {
class SkinSet;
}

namespace lumui::skins::core::utilities {

// The theme's colour (see lumui/ui/ThemeColors.h) of the ground on which panels have their
// controls, in the generation of colours that the set is named after. Without a set, that of the
// present controls.
LUMUI_API int GetContentBackgroundColorID(const SkinSet* inSkins);

}  // namespace lumui::skins::core::utilities
