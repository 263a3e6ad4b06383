// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "TitleStrip.h"

#include <algorithm>

#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"

namespace outliner {

namespace {

constexpr float kTitleSize = 18;
constexpr float kPlaceSize = 12;
constexpr float kMargin = 20;
constexpr float kLargestPlaceShare = 0.4f;

}  // namespace

void TitleStrip::SetTexts(const lumcore::UTF16String& inTitle,
                          const lumcore::UTF16String& inPlace) {
  if (inTitle == mTitle && inPlace == mPlace) return;
  mTitle = inTitle;
  mPlace = inPlace;
  UI_InvalidateAll();
}

void TitleStrip::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
  inDrawbot->FillRect({0, area.height - 1, area.width, 1}, palette::Line());

  const auto* supplier = inDrawbot->GetSupplier();
  const auto bold = supplier->NewFont(nullptr, kTitleSize, lumui::drawbot::FontStyle::kBold);
  const auto small = supplier->NewFont(nullptr, kPlaceSize);
  const float room = std::max(0.0f, area.width - 2 * kMargin);
  const float placeWidth = std::min(small->MeasureWidth(mPlace) + 1, room * kLargestPlaceShare);
  inDrawbot->DrawStringInRect(
      mPlace, small, palette::FaintInk(), {kMargin + room - placeWidth, 0, placeWidth, area.height},
      lumui::drawbot::TextAlignment::kRight, lumui::drawbot::TextTruncation::kMiddle);
  inDrawbot->DrawStringInRect(mTitle, bold, palette::Ink(),
                              {kMargin, 0, room - placeWidth - kMargin, area.height});
}

}  // namespace outliner
