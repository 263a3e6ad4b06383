// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumui::dialogs {

// Asks for one of several texts in a list.
struct ChoiceDialogArgs {
  lumcore::UTF16String title;
  lumcore::UTF16String label;  // above the list
  std::vector<lumcore::UTF16String> items;
  int initial = 0;
  lumcore::UTF16String okButton;  // empty for "OK"
  ui::OS_Window* owner = nullptr;
};

// The number of the chosen item; -1 for a cancel. Nothing leaves it to the user.
using ChoiceDialogAnswerer = std::function<std::optional<int>(const ChoiceDialogArgs&)>;

// Puts an answerer in place of the user and returns the old one; empty for none. An answered dialog
// still opens. An answer that is none of the items throws.
LUMUI_API ChoiceDialogAnswerer SetChoiceDialogAnswerer(ChoiceDialogAnswerer inAnswerer);

// Shows the dialog and waits; -1 for a cancel. In a headless run a dialog that nobody answers
// throws lumcore::config::Error with its title.
LUMUI_API int RunChoiceDialog(const ChoiceDialogArgs& inArgs);

}  // namespace lumui::dialogs
