// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/drawbot/Drawbot.h"

#include "lumcore/debug/Contract.h"

namespace lumui::drawbot {

void Drawbot::DrawStringInRect(const lumcore::UTF16String& inText, const FontP& inFont,
                               const ColorRGBA& inColor, const Rect& inRect,
                               TextAlignment inAlignment, TextTruncation inTruncation) {
  LUM_INPUT_CONTRACT(inFont);
  if (inText.empty() || inRect.IsEmpty()) return;
  const float ascent = inFont->GetAscent();
  Point origin(inRect.x,
               inRect.y + 0.5f * (inRect.height - (ascent + inFont->GetDescent())) + ascent);
  if (inAlignment != TextAlignment::kLeft) {
    const auto shown = TruncateString(inText, inFont, inTruncation, inRect.width);
    const float room = inRect.width - inFont->MeasureWidth(shown);
    origin.x += inAlignment == TextAlignment::kCenter ? 0.5f * room : room;
  }
  DrawString(inText, inFont, inColor, origin, inTruncation, inRect.width);
}

void Drawbot::DrawImage(const ImageInterface& inImage, const Point& inOrigin, float inOpacity) {
  DrawImage(inImage, Rect(inOrigin.x, inOrigin.y, inImage.GetWidth(), inImage.GetHeight()),
            inOpacity);
}

}  // namespace lumui::drawbot
