// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/UI_SubView.h"

namespace outliner {

// The line below the rows: what there is, what was done last, and which keys help now.
class StatusLine final : public lumui::ui::UI_SubView {
 public:
  static constexpr float kHeight = 28;

  void SetTexts(const lumcore::UTF16String& inCounts, const lumcore::UTF16String& inNews,
                const lumcore::UTF16String& inHints);

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;

 private:
  lumcore::UTF16String mCounts;
  lumcore::UTF16String mNews;
  lumcore::UTF16String mHints;
};

}  // namespace outliner
