// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>

namespace lumui::ui {

// Gives the toolkit's own controls (menus, fields, buttons, bars, dialogs) the colours of the
// theme: a style and palettes for the whole application. To be called when the theme or its colours
// have changed. Where there is no theme, or one without the colours of the present controls, the
// application looks as it did before the first one.
void ApplyThemedLook();

// The palette without the theme: what the system, or the host at its start, wants.
QPalette UnthemedPalette();

}  // namespace lumui::ui
