// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/Export.h"

namespace lumui::ui {
class OS_Window;
}

namespace lumui::utility::FileUtils {

// Asks for one file with the least that is needed; see dialogs::RunFileDialog, which it runs. The
// types are extensions separated by ';' ("opml;xml"), and empty for files of every kind. inOpen
// asks for a file that is there, otherwise for one to save into. Empty when the user has cancelled.
LUMUI_API lumcore::UTF16String DoSimpleFileDialog(const lumcore::UTF8String& inTypes, bool inOpen,
                                                  ui::OS_Window* inParent);

}  // namespace lumui::utility::FileUtils
