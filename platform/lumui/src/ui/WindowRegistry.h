// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumui/Export.h"
#include "lumui/ui/OS_Window.h"

class QWindow;

namespace lumui::ui {

// Our top-level windows that have a native part, in the order in which they got it.
LUMUI_API OS_Window* FindWindowOf(const QWindow& inNative);
// The function may make and destroy windows: those there at the start that still are get it.
LUMUI_API void ForEachWindow(const std::function<void(OS_Window&)>& inFunction);
// The native window of ours; null without one.
LUMUI_API QWindow* NativeOf(const OS_Window& inWindow);

}  // namespace lumui::ui
