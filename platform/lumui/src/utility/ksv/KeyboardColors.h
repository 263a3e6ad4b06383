// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/drawbot/Color.h"
#include "lumui/ui/Theme.h"
#include "lumui/ui/ThemeColors.h"

namespace lumui::utility::ksv {

// A colour of the theme; without one, or where it lacks the colour, a grey of that lightness.
inline drawbot::ColorRGBA ThemeColor(ui::themev5::Color inColor, float inGrey) {
  const auto theme = ui::Theme::Get();
  if (theme && theme->HasColor(inColor)) return theme->GetColor(inColor);
  return drawbot::ColorRGBA(inGrey, inGrey, inGrey, 1);
}

inline drawbot::ColorRGBA Mixed(const drawbot::ColorRGBA& inA, const drawbot::ColorRGBA& inB,
                                float inPartOfB) {
  const auto mix = [&](float inFirst, float inSecond) {
    return inFirst + (inSecond - inFirst) * inPartOfB;
  };
  return drawbot::ColorRGBA(mix(inA.red, inB.red), mix(inA.green, inB.green),
                            mix(inA.blue, inB.blue), 1);
}

}  // namespace lumui::utility::ksv
