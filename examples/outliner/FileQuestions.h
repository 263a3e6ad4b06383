// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/uisupport/Alert.h"

namespace lumui::ui {
class OS_Window;
}

// What the user is asked about files, over the main window.
namespace outliner {

// Full paths; empty when the user has cancelled. inPath is what stands in the dialog at first: a
// path, or a name alone. The window may be null.
lumcore::UTF16String AskForFileToOpen(const lumcore::UTF16String& inPath,
                                      lumui::ui::OS_Window* inOwner);
lumcore::UTF16String AskForFileToSave(const lumcore::UTF16String& inPath,
                                      lumui::ui::OS_Window* inOwner);

// Whether the changes to a document are saved before it is closed: yes, no or cancel.
vek::uisupport::Alert::Response AskToSave(const lumcore::UTF16String& inTitle);

enum class ChangedFileAnswer { kOverwrite, kSaveAs, kCancel };
// What becomes of a save over a file that another program has changed meanwhile.
ChangedFileAnswer AskAboutChangedFile(const lumcore::UTF16String& inTitle);

}  // namespace outliner
