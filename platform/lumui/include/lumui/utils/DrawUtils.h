// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/drawbot/Drawbot.h"

namespace lumui::utils {

// From the top of the rectangle to its bottom. The weight, from 0 to 1, is how far down both
// colours are mixed half and half.
LUMUI_API void DrawGradient(drawbot::Drawbot& inDrawbot, const drawbot::Drawbot::Rect& inRect,
                            const drawbot::ColorRGBA& inTop, const drawbot::ColorRGBA& inBottom,
                            float inWeight);

// One line, centred in height and cut off at the end, with the same text below it in the colour of
// the shadow. It keeps inIndent from the sides; inOffset is how far down the shadow falls.
LUMUI_API void DrawTextWithShadow(drawbot::Drawbot& inDrawbot, const lumcore::UTF16String& inText,
                                  const drawbot::FontP& inFont,
                                  const drawbot::Drawbot::Rect& inRect,
                                  const drawbot::ColorRGBA& inColor,
                                  const drawbot::ColorRGBA& inShadow, float inIndent,
                                  float inOffset);

}  // namespace lumui::utils
