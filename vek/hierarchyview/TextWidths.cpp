// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TextWidths.h"

namespace vek::hierarchyview {

float TextWidths::Get(lumui::drawbot::FontP const& inFont, lumcore::UTF16String const& inText) {
  if (mFont != inFont) {
    mWidths.clear();
    mFont = inFont;
  }
  const auto known = mWidths.find(inText);
  if (known != mWidths.end()) return known->second;
  const float width = inFont->MeasureWidthOnce(inText);
  if (mWidths.size() >= kMaxTexts) mWidths.clear();
  mWidths.emplace(inText, width);
  return width;
}

}  // namespace vek::hierarchyview
