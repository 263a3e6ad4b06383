// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptedBoxes.h"

#include <algorithm>
#include <utility>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
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
  return lumcore::utility::ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(inKey),
      {inBox.title, inBox.text, buttons, inAnswer});
}

}  // namespace

StScriptedBoxes::StScriptedBoxes() {
  mOldAnswerer = lumui::dialogs::SetDialogAnswerer(
      [this](const lumui::dialogs::MessageDialogArgs& inBox) { return AnswerBox(inBox); });
}

StScriptedBoxes::~StScriptedBoxes() {
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
  if (mFailure.empty()) mFailure = failure;
  return inBox.cancelButton;
}

}  // namespace outliner
