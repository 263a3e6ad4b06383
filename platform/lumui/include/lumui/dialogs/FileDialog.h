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

// One choice of the kinds of files that are shown. Extensions are without their dot.
struct FileFilter {
  lumcore::UTF16String description;
  std::vector<lumcore::UTF16String> extensions;
};

// Asks for a file to open, which is there, or for one to save into, which may be new: the user has
// then agreed to replace what is there.
struct FileDialogArgs {
  enum Kind { kOpen, kSave };

  Kind kind = kOpen;
  lumcore::UTF16String title;          // empty for the system's own
  lumcore::UTF16String initialPath;    // a folder, or a file that stands in the name field
  std::vector<FileFilter> filters;     // all files where there are none
  lumcore::UTF16String saveExtension;  // given to a typed name that has none; without the dot
  ui::OS_Window* owner = nullptr;      // the window it belongs to; null for none
};

// Answers in the place of the user: a full path, an empty text to cancel, or nothing to leave it to
// the user.
using FileDialogAnswerer =
    std::function<std::optional<lumcore::UTF16String>(const FileDialogArgs&)>;

// Puts an answerer in place and returns the old one; empty for none. An answered dialog still
// opens, and is accepted or cancelled.
LUMUI_API FileDialogAnswerer SetFileDialogAnswerer(FileDialogAnswerer inAnswerer);

// Shows the dialog and waits; returns the full path, empty when the user has cancelled. In a
// headless run a dialog that nobody answers throws lumcore::config::Error with its title.
LUMUI_API lumcore::UTF16String RunFileDialog(const FileDialogArgs& inArgs);

}  // namespace lumui::dialogs
