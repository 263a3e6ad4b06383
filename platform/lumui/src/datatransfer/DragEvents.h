// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

class QEvent;
class QWidget;

namespace lumui::datatransfer {

// What drags bring to the widget of a window, or to one that the window system takes for a window
// of its own, as a panel that floats: the target that is attached to the window around it gets it.
// False if the event is of no drag.
LUMUI_API bool HandleDragEvent(QWidget& inWidget, QEvent& ioEvent);

}  // namespace lumui::datatransfer
