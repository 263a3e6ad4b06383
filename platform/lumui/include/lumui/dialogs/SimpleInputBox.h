// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumui::dialogs {

// Asks for one line of text; ioText stands in the field, selected, and is what the user has made of
// it. False, with ioText as it was, when the user has cancelled. It runs a TextDialog: what answers
// that one answers this one, and it throws where that one does.
LUMUI_API bool SimpleInputBox(const lumcore::UTF16String& inTitle,
                              const lumcore::UTF16String& inPrompt, lumcore::UTF16String& ioText,
                              ui::OS_Window* inOwner = nullptr);

}  // namespace lumui::dialogs
