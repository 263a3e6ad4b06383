// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utils/DrawUtils.h"

#include <algorithm>

namespace lumui::utils {

using drawbot::Brush;
using drawbot::ColorRGBA;
using drawbot::Drawbot;
using Point = Drawbot::Point;
using Rect = Drawbot::Rect;

void DrawGradient(Drawbot& inDrawbot, const Rect& inRect, const ColorRGBA& inTop,
                  const ColorRGBA& inBottom, float inWeight) {
  if (inRect.IsEmpty()) return;
  const ColorRGBA middle((inTop.red + inBottom.red) / 2, (inTop.green + inBottom.green) / 2,
                         (inTop.blue + inBottom.blue) / 2, (inTop.alpha + inBottom.alpha) / 2);
  const float turn = inRect.y + inRect.height * std::clamp(inWeight, 0.0f, 1.0f);
  inDrawbot.FillRect(Rect(inRect.x, inRect.y, inRect.width, turn - inRect.y),
                     Brush(Point(0, inRect.y), inTop, Point(0, turn), middle));
  inDrawbot.FillRect(Rect(inRect.x, turn, inRect.width, inRect.Bottom() - turn),
                     Brush(Point(0, turn), middle, Point(0, inRect.Bottom()), inBottom));
}

void DrawTextWithShadow(Drawbot& inDrawbot, const lumcore::UTF16String& inText,
                        const drawbot::FontP& inFont, const Rect& inRect, const ColorRGBA& inColor,
                        const ColorRGBA& inShadow, float inIndent, float inOffset) {
  const Rect text(inRect.x + inIndent, inRect.y, inRect.width - 2 * inIndent, inRect.height);
  if (text.IsEmpty()) return;
  const Rect below(text.x, text.y + inOffset, text.width, text.height);
  inDrawbot.DrawStringInRect(inText, inFont, inShadow, below);
  inDrawbot.DrawStringInRect(inText, inFont, inColor, text);
}

}  // namespace lumui::utils
