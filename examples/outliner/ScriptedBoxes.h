// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <optional>

#include "lumcore/Strings.h"
#include "lumui/dialogs/MessageDialog.h"

namespace outliner {

// While it lives, boxes are answered in the user's place with the buttons that were named before,
// and what they say to nobody is kept: the text of a reported error, and that a box found no
// answer. Such a box is cancelled, so that nothing is lost by it.
class StScriptedBoxes {
 public:
  StScriptedBoxes();
  ~StScriptedBoxes();
  StScriptedBoxes(const StScriptedBoxes&) = delete;
  StScriptedBoxes& operator=(const StScriptedBoxes&) = delete;

  // By its text, for the next box that has no answer yet.
  void Answer(const lumcore::UTF16String& inButton) { mAnswers.push_back(inButton); }
  // The first failure since the last call; empty for none.
  lumcore::UTF16String TakeFailure();

 private:
  std::optional<int> AnswerBox(const lumui::dialogs::MessageDialogArgs& inBox);

  std::deque<lumcore::UTF16String> mAnswers;
  lumcore::UTF16String mFailure;
  lumui::dialogs::DialogAnswerer mOldAnswerer;
};

}  // namespace outliner
