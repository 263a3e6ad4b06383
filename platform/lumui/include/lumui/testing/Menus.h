// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::ui {
class OS_Window;
}

// Menus as a user handles them, for tests and for runs by script: with a click on the bar and with
// the arrow keys, through the event gate.
namespace lumui::testing {

// Titles as the user reads them: without the mark of the mnemonic, and without what stands behind
// the tab.
using MenuPath = std::vector<lumcore::UTF16String>;

// Opens the menu in the window's bar that the first title names, and from there the submenus of the
// others. With a popup open, the path begins there. Throws lumcore::config::Error that names the
// title, and the items that are there, where there is no such item, or none that can be chosen.
LUMUI_API void OpenMenu(ui::OS_Window& inWindow, const MenuPath& inPath);
// The same, then chooses the item that the last title names.
LUMUI_API void ChooseMenuItem(ui::OS_Window& inWindow, const MenuPath& inPath);
// Closes what is open, with nothing chosen.
LUMUI_API void CloseMenus(ui::OS_Window& inWindow);

// What the window system shows of a menu, the items separated by " | ": "---" for a separator, "~"
// before a disabled item, "*" before one with a check mark and "(*)" before one with a dot, " >"
// behind one with a submenu. Null is the innermost popup that is open: empty if none is.
LUMUI_API lumcore::UTF16String MenuAsText(HMENU inMenu);

}  // namespace lumui::testing
