// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::datatransfer {

// Puts a text on the clipboard, in the place of what is there.
LUMUI_API void NewClipboardSendData(const lumcore::UTF16String& inText);
// The text that is on the clipboard; empty where there is none.
LUMUI_API lumcore::UTF16String GetClipboardText();

}  // namespace lumui::datatransfer
