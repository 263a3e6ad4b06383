// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/drawbot/Color.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"

// The theme's colours, by what the outliner paints with them. Asked anew at each paint, since the
// user may have changed the brightness.
namespace outliner::palette {

inline lumui::drawbot::ColorRGBA Of(lumui::ui::themev5::Color inColor) {
  return lumui::ui::Theme::Get()->GetColor(inColor);
}

inline auto Paper() {
  return Of(lumui::ui::themev5::kColor_ListBackground);
}
inline auto Strip() {
  return Of(lumui::ui::themev5::kColor_PanelBackground);
}
inline auto Line() {
  return Of(lumui::ui::themev5::kColor_Divider);
}
inline auto Guide() {
  return Of(lumui::ui::themev5::kColor_ListRowSeparator);
}
inline auto Ink() {
  return Of(lumui::ui::themev5::kColor_Text);
}
inline auto RowInk() {
  return Of(lumui::ui::themev5::kColor_ListText);
}
inline auto FaintInk() {
  return Of(lumui::ui::themev5::kColor_TextSecondary);
}
inline auto DisabledInk() {
  return Of(lumui::ui::themev5::kColor_TextDisabled);
}
inline auto Accent() {
  return Of(lumui::ui::themev5::kColor_LinkText);
}
inline auto RowMark() {
  return Of(lumui::ui::themev5::kColor_ListTwisty);
}
inline auto Selection() {
  return Of(lumui::ui::themev5::kColor_ListRowSelected);
}
inline auto SelectionInk() {
  return Of(lumui::ui::themev5::kColor_ListTextSelected);
}
inline auto IdleSelection() {
  return Of(lumui::ui::themev5::kColor_ListRowSelectedInactive);
}
inline auto DropTarget() {
  return Of(lumui::ui::themev5::kColor_DropTarget);
}
// Behind a text that was looked for: it lies under the ink, and over the band of a selection.
inline auto FoundText() {
  constexpr float kOpacity = 0.45f;
  return lumui::ui::Theme::Get()
      ->GetColor(lumui::ui::themev2::kColor_WarningMark)
      .WithAlpha(kOpacity);
}

}  // namespace outliner::palette
