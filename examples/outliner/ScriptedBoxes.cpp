// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptedBoxes.h"

#include <algorithm>
#include <utility>

#include "Texts.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/ReportError.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

UTF16String Complain(const char* inKey, const lumui::dialogs::MessageDialogArgs& inBox,
                     const UTF16String& inAnswer) {
  UTF16String buttons;
  for (const UTF16String& button : inBox.buttons)
    buttons += (buttons.empty() ? UTF16String() : lumcore::utility::ToUTF16(", ")) + button;
  return lumcore::utility::ReplaceInString(Localized(inKey),
                                           {inBox.title, inBox.text, buttons, inAnswer});
}

}  // namespace

StScriptedBoxes::StScriptedBoxes() {
  mOldAnswerer = lumui::dialogs::SetDialogAnswerer(
      [this](const lumui::dialogs::MessageDialogArgs& inBox) { return AnswerBox(inBox); });
  mOldFileAnswerer =
      lumui::dialogs::SetFileDialogAnswerer([this](const lumui::dialogs::FileDialogArgs& inDialog) {
        return AnswerFileDialog(inDialog);
      });
}

StScriptedBoxes::~StScriptedBoxes() {
  lumui::dialogs::SetFileDialogAnswerer(std::move(mOldFileAnswerer));
  lumui::dialogs::SetDialogAnswerer(std::move(mOldAnswerer));
}

UTF16String StScriptedBoxes::TakeFailure() {
  return std::exchange(mFailure, UTF16String());
}

std::optional<int> StScriptedBoxes::AnswerBox(const lumui::dialogs::MessageDialogArgs& inBox) {
  UTF16String failure;
  if (vek::uisupport::ExecutingDeferredReportError()) {
    failure = inBox.text;
  } else if (mAnswers.empty()) {
    failure =
        Complain("$$$/outliner/Script/NoAnswer=the box \"@0\" (@1) has no answer; its buttons: @2",
                 inBox, {});
  } else {
    const UTF16String wanted = std::move(mAnswers.front());
    mAnswers.pop_front();
    const auto found = std::find(inBox.buttons.begin(), inBox.buttons.end(), wanted);
    if (found != inBox.buttons.end()) return static_cast<int>(found - inBox.buttons.begin());
    failure = Complain(
        "$$$/outliner/Script/WrongAnswer=the box \"@0\" (@1) has no button \"@3\"; its buttons: @2",
        inBox, wanted);
  }
  // A box that cannot be cancelled is not answered by guessing.
  if (inBox.cancelButton < 0) throw lumcore::config::Error(failure);
  Fail(failure);
  return inBox.cancelButton;
}

UTF16String StScriptedBoxes::AnswerFileDialog(const lumui::dialogs::FileDialogArgs& inDialog) {
  using lumcore::filesupport::File;
  if (mAnswers.empty()) {
    Fail(lumcore::utility::ReplaceInString(
        Localized("$$$/outliner/Script/NoFile=the dialog \"@0\" has no answer"), {inDialog.title}));
    return {};
  }
  const File file(mAnswers.front());
  mAnswers.pop_front();
  // The system's dialog would not let a user choose it.
  if (inDialog.kind == lumui::dialogs::FileDialogArgs::kOpen && !file.Exists()) {
    Fail(lumcore::utility::ReplaceInString(
        Localized(
            "$$$/outliner/Script/MissingFile=the dialog \"@0\" cannot choose @1: there is no such "
            "file"),
        {inDialog.title, lumcore::utility::ToUTF16(file.GetPath())}));
    return {};
  }
  return file.FullPath();
}

void StScriptedBoxes::Fail(const UTF16String& inFailure) {
  if (mFailure.empty()) mFailure = inFailure;
}

}  // namespace outliner
