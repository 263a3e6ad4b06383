// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/Messagebox.h"

#include <vector>

#include "lumcore/config/Localizer.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/OS_Window.h"

namespace lumui::dialogs::messagebox {

namespace {

struct Button {
  Answer answer;
  const char* text;
};

std::vector<Button> ButtonsOf(Buttons inButtons) {
  const Button yes{Answer::kYes, "$$$/lumui/dialogs/Button/Yes=Yes"};
  const Button no{Answer::kNo, "$$$/lumui/dialogs/Button/No=No"};
  switch (inButtons) {
    case Buttons::kYesNo:
      return {yes, no};
    case Buttons::kYesNoCancel:
      return {yes, no, {Answer::kCancel, "$$$/lumui/dialogs/Button/Cancel=Cancel"}};
    default:
      return {{Answer::kOK, "$$$/lumui/dialogs/Button/OK=OK"}};
  }
}

}  // namespace

Answer Messagebox(const lumcore::UTF16String& inText, Buttons inButtons, ui::OS_Window* inOwner) {
  const std::vector<Button> buttons = ButtonsOf(inButtons);
  MessageDialogArgs args;
  if (inOwner) args.title = inOwner->UI_GetTitle();
  args.text = inText;
  for (const Button& button : buttons)
    args.buttons.push_back(lumcore::config::Localizer::Get()->GetLocalizedString(button.text));
  args.cancelButton = static_cast<int>(buttons.size()) - 1;
  args.icon = inButtons == Buttons::kOK ? MessageIcon::kWarning : MessageIcon::kQuestion;
  args.owner = inOwner;
  return buttons.at(static_cast<std::size_t>(RunMessageDialog(args))).answer;
}

}  // namespace lumui::dialogs::messagebox
