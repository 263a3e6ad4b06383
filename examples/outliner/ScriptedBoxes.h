// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <deque>
#include <optional>

#include "lumcore/Strings.h"
#include "lumui/dialogs/FileDialog.h"
#include "lumui/dialogs/MessageDialog.h"

namespace outliner {

// While it lives, boxes are answered in the user's place with the buttons that were named before,
// and file dialogs with paths; and what they say to nobody is kept: the text of a reported error,
// and that a box found no answer. Such a box is cancelled, so that nothing is lost by it.
class StScriptedBoxes {
 public:
  StScriptedBoxes();
  ~StScriptedBoxes();
  StScriptedBoxes(const StScriptedBoxes&) = delete;
  StScriptedBoxes& operator=(const StScriptedBoxes&) = delete;

  // The text of a button, or a path, for the next box or dialog that has no answer yet.
  void Answer(const lumcore::UTF16String& inAnswer) { mAnswers.push_back(inAnswer); }
  // The first failure since the last call; empty for none.
  lumcore::UTF16String TakeFailure();

 private:
  std::optional<int> AnswerBox(const lumui::dialogs::MessageDialogArgs& inBox);
  lumcore::UTF16String AnswerFileDialog(const lumui::dialogs::FileDialogArgs& inDialog);
  void Fail(const lumcore::UTF16String& inFailure);

  std::deque<lumcore::UTF16String> mAnswers;
  lumcore::UTF16String mFailure;
  lumui::dialogs::DialogAnswerer mOldAnswerer;
  lumui::dialogs::FileDialogAnswerer mOldFileAnswerer;
};

}  // namespace outliner
