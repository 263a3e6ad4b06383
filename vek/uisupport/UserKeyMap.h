// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::uisupport {

// Where key maps come from when the application starts, and how the user gets to change them. All
// need the application object; docs/shortcuts.md has the lines for a host around them.

// The key map file that the application comes with, for its language: "DefaultKeyMap.xml" in
// Resources/<language>/Shortcuts beside the program, or else its resource of the type "xml"
// "DefaultKeyMap-<language>", or "DefaultKeyMap". Empty where there is none.
VEK_API lumcore::UTF8String GetDefaultKeyMap();

// Once at the start, when the registry has the commands: loads the set that the user has chosen.
// Where there is none, or it cannot be read, loads the default one, without a report, and maps
// Ctrl+Q to the command besides. Throws what reading the default one throws.
VEK_API void LoadUserKeyMap(const int& inQuitCommand);

// The shortcut dialog, in the place where it last stood. Keeps the name of the set if the user says
// OK. The command is not used.
VEK_API void DoEditKeyShortcutsDialog(const int& inQuitCommand);

}  // namespace vek::uisupport
