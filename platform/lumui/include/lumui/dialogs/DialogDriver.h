// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumui/Export.h"

namespace lumui::ui {
class UI_Dialog;
}

namespace lumui::dialogs {

// Works a dialog in the place of the user. It is called when the dialog is open and its loop runs,
// finds the controls by their ids, and ends the dialog by a button, a key, or EndDialog. What it
// throws closes the dialog and reaches whoever ran it.
using DialogDriver = std::function<void(ui::UI_Dialog&)>;

// Puts a driver in place for all dialogs and returns the old one; empty for none. Where there is a
// display, a dialog that the driver leaves open is the user's; in a headless run that fails.
LUMUI_API DialogDriver SetDialogDriver(DialogDriver inDriver);

}  // namespace lumui::dialogs
