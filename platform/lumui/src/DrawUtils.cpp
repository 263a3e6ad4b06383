// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/DrawUtils.h"

#include "lumui/drawbot/Drawbot.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"

namespace lumui {

void DrawListBoxShadow(const drawbot::Path::Rect& inRect, drawbot::Drawbot& inDrawbot) {
  // From the edge inward, one unit each.
  constexpr float kOpacities[] = {0.4f, 0.2f, 0.1f};
  const auto theme = ui::Theme::Get();
  drawbot::ColorRGBA color =
      theme ? theme->GetColor(ui::themev2::kColor_ListBoxShadow) : drawbot::ColorRGBA(0, 0, 0);
  const float full = color.alpha;
  float inset = 0;
  for (const float opacity : kOpacities) {
    color.alpha = full * opacity;
    const drawbot::Brush brush(color);
    const float length = inRect.height - inset - 1;  // the corner is the upper strip's
    inDrawbot.FillRect({inRect.x + inset, inRect.y + inset, inRect.width - inset, 1}, brush);
    inDrawbot.FillRect({inRect.x + inset, inRect.y + inset + 1, 1, length}, brush);
    ++inset;
  }
}

}  // namespace lumui
