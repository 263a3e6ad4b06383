// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MarkedText.h"

#include <algorithm>

#include "lumui/drawbot/Drawbot.h"

namespace outliner {

namespace {

// In units: how far a mark reaches beyond its letters, and how far it stays within the line.
constexpr float kBeside = 1;
constexpr float kWithin = 2;
constexpr float kRadius = 2;

}  // namespace

void DrawMarkedText(lumui::drawbot::Drawbot& ioDrawbot, const lumcore::UTF16String& inText,
                    const TextSearch& inSearch, const lumui::drawbot::FontP& inFont,
                    const TextInks& inInks, const lumcore::geom::RectT<float>& inRect) {
  if (inText.empty() || inRect.width <= 0) return;
  const auto widthTo = [&](std::size_t inEnd) {
    return inFont->MeasureWidthOnce(inText.substr(0, inEnd));
  };
  for (const auto& match : inSearch.FindAll(inText)) {
    const float left = widthTo(match.start);
    if (left >= inRect.width) break;
    const float right = std::min(widthTo(match.start + match.length), inRect.width);
    lumui::drawbot::Path mark;
    mark.AddRoundedRect({inRect.x + left - kBeside, inRect.y + kWithin, right - left + 2 * kBeside,
                         inRect.height - 2 * kWithin},
                        kRadius);
    ioDrawbot.FillPath(mark, inInks.mark);
  }
  ioDrawbot.DrawStringInRect(inText, inFont, inInks.text, inRect);
}

}  // namespace outliner
