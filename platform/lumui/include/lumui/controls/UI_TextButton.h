// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/controls/UI_Button.h"
#include "lumui/drawbot/Drawbot.h"

namespace lumui::controls {

// A button with a text. '&' stands before the mnemonic; two of them show one.
class LUMUI_API UI_TextButton : public UI_Button {
 public:
  UI_TextButton();
  ~UI_TextButton() override;

  void SetText(const lumcore::UTF16String& inText);
  const lumcore::UTF16String& GetText() const { return mText; }
  void SetTextAlignment(drawbot::TextAlignment inAlignment);
  drawbot::TextAlignment GetTextAlignment() const { return mAlignment; }
  // From the side that the text is aligned to, in units.
  void SetTextIndent(float inIndent);
  float GetTextIndent() const { return mIndent; }

 protected:
  explicit UI_TextButton(std::unique_ptr<ui::NodePeer> inPeer);
  void DoShowState() override;

 private:
  lumcore::UTF16String DoGetAccessibleName() const override;

  lumcore::UTF16String mText;
  drawbot::TextAlignment mAlignment = drawbot::TextAlignment::kCenter;
  float mIndent = 0;
};

}  // namespace lumui::controls
