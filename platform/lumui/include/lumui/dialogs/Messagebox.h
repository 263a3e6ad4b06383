// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumui::dialogs::messagebox {

enum class Buttons { kOK, kYesNo, kYesNoCancel };
enum class Answer { kOK, kYes, kNo, kCancel };

// A question or a message over a window, which may be null; its title is the window's own. Escape
// and closing are the last button. It runs a MessageDialog: what answers that one answers this one,
// and it throws where that one does.
LUMUI_API Answer Messagebox(const lumcore::UTF16String& inText, Buttons inButtons,
                            ui::OS_Window* inOwner);

}  // namespace lumui::dialogs::messagebox
