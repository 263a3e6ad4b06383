// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/IconType.h"

#include "lumui/ui/Theme.h"

namespace lumui::ui {

namespace {

// Where themes go over from their dark family to the light one.
constexpr float kBrightestDark = 0.5f;

}  // namespace

int GetIconType() {
  return Theme::GetBrightness() <= kBrightestDark ? kIconsForDarkGround : kIconsForAnyGround;
}

}  // namespace lumui::ui
