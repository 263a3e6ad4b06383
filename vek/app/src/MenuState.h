// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/OSTypes.h"
#include "vek/config/Export.h"

namespace vek::app {

// Brings the items of one menu, and of none below it, up to date from the command chain and the key
// mappings: enabled or not, mark and its kind, text, shortcut. Items without a command stay as they
// are, and so do those whose command nobody knows, unless inDisableUnanswered is set: then those
// from inFirstCommand on are disabled and lose their mark, but for submenus and for the commands of
// the system. What a handler throws reaches the caller; the items before it are up to date then.
//
// Without inUpdateShortcuts the items have no shortcut afterwards.
VEK_API void UpdateMenuState(HMENU inMenu, bool inUpdateShortcuts, bool inDisableUnanswered,
                             int inFirstCommand);

// A gesture that runs ends, cancelled, before a menu takes the pointer.
VEK_API void ReleaseInputCapture();

}  // namespace vek::app
