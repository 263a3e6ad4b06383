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

enum class MessageIcon { kNone, kInformation, kWarning, kError, kQuestion };

// A box with a text and buttons. Buttons are counted from 0, in the order given; without any there
// is one with "OK". cancelButton is what Escape and closing the box mean; -1 for none: a box with
// one button then takes that one, and one with several cannot be left but by a button, or by a quit
// of the application. That means quitButton then, or defaultButton where that is -1 as well; the
// log keeps what was not answered.
struct MessageDialogArgs {
  lumcore::UTF16String title;
  lumcore::UTF16String text;
  std::vector<lumcore::UTF16String> buttons;
  int defaultButton = 0;
  int cancelButton = -1;
  MessageIcon icon = MessageIcon::kNone;
  ui::OS_Window* owner = nullptr;  // the window it belongs to; null for none
  int quitButton = -1;
};

// Answers in the place of the user: the button's number, or nothing to leave it to the user.
using DialogAnswerer = std::function<std::optional<int>(const MessageDialogArgs&)>;

// Puts an answerer in place and returns the old one; empty for none. An answered box still opens,
// and its button is pressed.
LUMUI_API DialogAnswerer SetDialogAnswerer(DialogAnswerer inAnswerer);

// Shows the box and waits; returns the button's number. In a headless run a box that nobody answers
// throws lumcore::config::Error with its title, text and buttons, and prints them to the standard
// error output. An answer that no button has throws as well.
LUMUI_API int RunMessageDialog(const MessageDialogArgs& inArgs);

}  // namespace lumui::dialogs
