// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <utility>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/ui/UI_SubView.h"

namespace outliner {

// A strip with a tab for each open document: a press chooses it, and on its cross, or with the
// middle button, closes it.
class DocumentTabs final : public lumui::ui::UI_SubView {
 public:
  static constexpr float kHeight = 32;

  using Function = std::function<void(std::size_t inTab)>;

  DocumentTabs(Function inChoose, Function inClose)
      : mChoose(std::move(inChoose)), mClose(std::move(inClose)) {}

  void SetTabs(const std::vector<lumcore::UTF16String>& inTitles, std::size_t inCurrent);

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(lumui::ui::UI_Node* inNode, const lumui::ui::MouseEvent& inEvent) override;

 private:
  float GetTabWidth() const;
  void DrawTab(lumui::drawbot::Drawbot& ioDrawbot, std::size_t inTab) const;

  Function mChoose;
  Function mClose;
  std::vector<lumcore::UTF16String> mTitles;
  std::size_t mCurrent = 0;
};

}  // namespace outliner
