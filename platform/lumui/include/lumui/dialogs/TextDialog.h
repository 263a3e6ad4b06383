// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumui::dialogs {

// Asks for one line of text.
struct TextDialogArgs {
  lumcore::UTF16String title;
  lumcore::UTF16String label;     // above the field
  lumcore::UTF16String initial;   // in the field, selected
  lumcore::UTF16String okButton;  // empty for "OK"
  // The cause why a text will not do, empty for one that does; asked at every change. The cause
  // stands below the field, and the button is disabled. May be empty.
  std::function<lumcore::UTF16String(const lumcore::UTF16String&)> check;
  ui::OS_Window* owner = nullptr;
};

// What the user has agreed to. The outer optional is the answer itself, the inner one empty for a
// cancel.
using TextDialogResult = std::optional<lumcore::UTF16String>;
using TextDialogAnswerer = std::function<std::optional<TextDialogResult>(const TextDialogArgs&)>;

// Puts an answerer in place of the user and returns the old one; empty for none. An answered dialog
// still opens, and is filled in. An answer that the check refuses throws its cause.
LUMUI_API TextDialogAnswerer SetTextDialogAnswerer(TextDialogAnswerer inAnswerer);

// Shows the dialog and waits; empty for a cancel. In a headless run a dialog that nobody answers
// throws lumcore::config::Error with its title.
LUMUI_API TextDialogResult RunTextDialog(const TextDialogArgs& inArgs);

}  // namespace lumui::dialogs
