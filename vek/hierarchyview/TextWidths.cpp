// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TextWidths.h"

namespace vek::hierarchyview {

float TextWidths::Get(lumui::drawbot::FontP const& inFont, lumcore::UTF16String const& inText) {
  if (mFont != inFont) {
    mWidths.clear();
    mFont = inFont;
  }
  const auto [known, isNew] = mWidths.try_emplace(inText, kNotMeasured);
  if (!isNew && known->second != kNotMeasured) return known->second;
  const float width = known->second = inFont->MeasureWidthOnce(inText);
  if (mWidths.size() > kMaxTexts) mWidths.clear();
  return width;
}

}  // namespace vek::hierarchyview
