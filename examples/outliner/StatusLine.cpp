// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "StatusLine.h"

#include <algorithm>

#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace outliner {

namespace {

constexpr float kTextSize = 12;
constexpr float kMargin = 20;

}  // namespace

void StatusLine::SetTexts(const lumcore::UTF16String& inCounts, const lumcore::UTF16String& inNews,
                          const lumcore::UTF16String& inHints) {
  if (inCounts == mCounts && inNews == mNews && inHints == mHints) return;
  mCounts = inCounts;
  mNews = inNews;
  mHints = inHints;
  UI_InvalidateAll();
}

void StatusLine::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
  inDrawbot->FillRect({0, 0, area.width, 1}, palette::Line());

  const auto font = inDrawbot->GetSupplier()->NewFont(nullptr, kTextSize);
  float left = kMargin;
  float right = area.width - kMargin;
  const auto put = [&](const lumcore::UTF16String& inText,
                       const lumui::drawbot::ColorRGBA& inColor) {
    if (inText.empty() || left >= right) return;
    inDrawbot->DrawStringInRect(inText, font, inColor, {left, 1, right - left, area.height - 1});
    left += font->MeasureWidth(inText) + kMargin;
  };
  put(mCounts, palette::Ink());
  put(mNews, palette::Accent());
  // Hints are the first to go where there is little room.
  const float hints = font->MeasureWidth(mHints) + 1;
  if (hints > right - left) return;
  left = right - hints;
  put(mHints, palette::FaintInk());
}

}  // namespace outliner
