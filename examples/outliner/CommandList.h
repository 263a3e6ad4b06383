// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include "lumcore/Strings.h"

namespace outliner {

// What menus call a command: its display name without the category in front of the dot, "Open..."
// of "File.Open...". Empty for a command that the registry does not have.
lumcore::UTF16String TitleOfCommand(int inCommand);
// Where that begins; 0 where there is no category.
std::size_t TitleBegin(const lumcore::UTF16String& inDisplayName);

// The keys of a command, the one that menus show first: "Return, Enter".
lumcore::UTF16String KeysOfCommand(int inCommand);

// All commands of the registry with their keys, in the order of their ids, in UTF-8. Keys of
// contexts are not among them, as in menus.

// A table with aligned columns, for a terminal.
std::string RenderCommandTable();
// A page in Markdown, with descriptions.
std::string RenderCommandPage();

}  // namespace outliner
