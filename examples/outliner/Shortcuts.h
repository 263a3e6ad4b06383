// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace outliner {

class OutlinerApp;

// The dialogs in which the user changes keys, over the main window, until they are closed. What
// they would lose is put back behind them, and the sets as they were before lie in the folder
// "Shortcuts.before" beside "Shortcuts". Each throws what saving a copy or a set throws.

// All commands with their keys, and named sets of keys. A set that cannot be read is reported and
// left as it is; the next time the dialog opens on the default set.
void EditShortcuts(OutlinerApp& ioApp);

// The keyboard. What is changed there goes to the set in force, or to "(Custom)" where that is the
// default one.
void EditKeyboardMap(OutlinerApp& ioApp);

}  // namespace outliner
