// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/dialogs/SimpleInputBox.h"

#include "lumui/dialogs/TextDialog.h"

namespace lumui::dialogs {

bool SimpleInputBox(const lumcore::UTF16String& inTitle, const lumcore::UTF16String& inPrompt,
                    lumcore::UTF16String& ioText, ui::OS_Window* inOwner) {
  TextDialogArgs args;
  args.title = inTitle;
  args.label = inPrompt;
  args.initial = ioText;
  args.owner = inOwner;
  const TextDialogResult text = RunTextDialog(args);
  if (text) ioText = *text;
  return text.has_value();
}

}  // namespace lumui::dialogs
