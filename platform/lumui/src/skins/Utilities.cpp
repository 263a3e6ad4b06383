// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/skins/core/Utilities.h"

#include "lumui/skins/core/SkinManager.h"
#include "lumui/ui/ThemeColors.h"

namespace lumui::skins::core::utilities {

namespace {

// "kColor_ContentBackground" in the documents of that generation.
constexpr int kContentBackgroundV4 = 4000001;

}  // namespace

int GetContentBackgroundColorID(const SkinSet* inSkins) {
  const bool isV4 = inSkins && inSkins->GetName() == "V4";
  return isV4 ? kContentBackgroundV4 : static_cast<int>(ui::themev5::kColor_PanelBackground);
}

}  // namespace lumui::skins::core::utilities
