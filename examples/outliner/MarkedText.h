// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "TextSearch.h"
#include "lumcore/geom/Rect.h"
#include "lumui/drawbot/Color.h"
#include "lumui/drawbot/Font.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace outliner {

struct TextInks {
  lumui::drawbot::ColorRGBA text;
  lumui::drawbot::ColorRGBA mark;
};

// A text cut off at its rectangle, with a mark behind each part of it that the search finds.
void DrawMarkedText(lumui::drawbot::Drawbot& ioDrawbot, const lumcore::UTF16String& inText,
                    const TextSearch& inSearch, const lumui::drawbot::FontP& inFont,
                    const TextInks& inInks, const lumcore::geom::RectT<float>& inRect);

}  // namespace outliner
