// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

class QDialog;

namespace lumui::dialogs {

// Shows a dialog that has somebody to answer it and waits; its result. It is rejected when the
// application quits, and may be destroyed meanwhile, which counts as rejected.
int RunModalDialog(QDialog& ioDialog);

}  // namespace lumui::dialogs
