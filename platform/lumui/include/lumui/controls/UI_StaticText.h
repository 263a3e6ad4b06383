// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/controls/UI_ControlView.h"
#include "lumui/drawbot/Drawbot.h"

namespace lumui::controls {

// A text that the user reads. '&' stands before a mnemonic, which gives the keyboard to the next
// control behind the text; two of them show one. The control right behind it in the same parent has
// the text for its name.
class LUMUI_API UI_StaticText : public UI_ControlView {
 public:
  UI_StaticText();
  ~UI_StaticText() override;

  void SetText(const lumcore::UTF16String& inText);
  const lumcore::UTF16String& GetText() const { return mText; }
  void SetAlignment(drawbot::TextAlignment inAlignment);
  drawbot::TextAlignment GetAlignment() const { return mAlignment; }
  // Breaks the text into lines, from the top; else it is one line, in the middle of the height.
  // Lines that do not fit are left out.
  void SetMultiLine(bool inMultiLine);
  bool IsMultiLine() const { return mMultiLine; }
  // What becomes of a line that is too wide, and of the last one that fits: shortened at its end,
  // at start.
  void SetTruncation(drawbot::TextTruncation inTruncation);
  drawbot::TextTruncation GetTruncation() const { return mTruncation; }
  // In units; 0, as at start, for the size of the system's controls.
  void SetFontSize(float inSize);
  float GetFontSize() const { return mFontSize; }

 protected:
  void DoShowState() override;

 private:
  lumcore::UTF16String DoGetAccessibleName() const override;

  lumcore::UTF16String mText;
  drawbot::TextAlignment mAlignment = drawbot::TextAlignment::kLeft;
  drawbot::TextTruncation mTruncation = drawbot::TextTruncation::kEnd;
  bool mMultiLine = false;
  float mFontSize = 0;
};

}  // namespace lumui::controls
