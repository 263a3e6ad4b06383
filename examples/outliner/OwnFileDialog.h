// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/dialogs/FileDialog.h"

namespace outliner {

// Whether files are asked for in the framework's dialog, in place of the system's. A setting of the
// application; false where there is none.
bool UsesOwnFileDialog();
void SetUsesOwnFileDialog(bool inUses);

// The framework's dialog, with the arguments and the answer of the system's. A name without an
// extension gets the one for saving. It stays open until it has a file that can be opened, or that
// the user agrees to replace.
lumcore::UTF16String RunOwnFileDialog(const lumui::dialogs::FileDialogArgs& inArgs);

}  // namespace outliner
