// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/UI_SubView.h"

namespace outliner {

// The strip over the rows: the outline's title on the left, where it is kept on the right.
class TitleStrip final : public lumui::ui::UI_SubView {
 public:
  static constexpr float kHeight = 50;

  void SetTexts(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inPlace);

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 private:
  lumcore::UTF16String mTitle;
  lumcore::UTF16String mPlace;
};

}  // namespace outliner
