// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QDialogButtonBox>
#include <QPointer>
#include <QPushButton>
#include <QTimer>
#include <functional>

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumui::dialogs {

// A dialog of ours with a button to agree and one to cancel. It goes with its owner, which may be
// destroyed while it is open: so it lies on the heap and is watched.
class LUMUI_API AnsweredDialog {
 public:
  AnsweredDialog(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inOKButton,
                 ui::OS_Window* inOwner);
  ~AnsweredDialog();
  AnsweredDialog(const AnsweredDialog&) = delete;
  AnsweredDialog& operator=(const AnsweredDialog&) = delete;

  QDialog* Get() const { return mDialog; }
  // Above the buttons.
  void Add(QWidget* inWidget);
  void EnableOK(bool inEnable) { mOK->setEnabled(inEnable); }
  // True if the user agreed and the dialog is still there. The answer, if there is one, fills the
  // dialog in and tells whether to agree, as soon as it is open.
  bool Run(const std::function<bool()>& inAnswer);

 private:
  QPointer<QDialog> mDialog;
  QPushButton* mOK;
};

// In a headless run a dialog without an answer would wait for ever: throws with the title.
LUMUI_API void RequireAnswer(bool inAnswered, const lumcore::UTF16String& inTitle);

}  // namespace lumui::dialogs
