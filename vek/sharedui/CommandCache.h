// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>
#include <map>
#include <utility>
#include <vector>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::sharedui {

// What the shortcut dialog shows of one command, and searches. The category is what stands before
// the first dot of the command's display name and the command what stands behind it; a name without
// a dot gives neither. The shortcuts are the plain ones, separated by ", ". The texts in lower case
// are made for the first search that needs them.
struct CommandCache {
  int commandID = 0;
  lumcore::UTF16String category;
  lumcore::UTF16String categoryLower;
  lumcore::UTF16String command;
  lumcore::UTF16String commandLower;
  lumcore::UTF16String shortcuts;
  lumcore::UTF16String shortcutsLower;
  lumcore::UTF16String description;
  lumcore::UTF16String descriptionLower;
  bool hasLower = false;
};

using CommandCaches = std::map<int, boost::shared_ptr<CommandCache>>;

// The category and the command of a display name.
VEK_API std::pair<lumcore::UTF16String, lumcore::UTF16String> SplitDisplayName(
    const lumcore::UTF16String& inName);

// A record for each command of the registry, with the shortcuts that it has now.
VEK_API CommandCaches MakeCommandCaches();
VEK_API void RefreshShortcuts(CommandCache& ioCache);
VEK_API void RefreshAllShortcuts(CommandCaches& ioCaches);

// Whether one of the four texts holds the filter: as it stands, or in lower case, which the filter
// then is as well. An empty filter is in all of them.
VEK_API bool HasText(CommandCache& ioCache, const lumcore::UTF16String& inFilter, bool inMatchCase);

using CategoryOfCommands = std::vector<CommandCache*>;
// In the order of the categories' names, that without one at the end; the commands by their ids.
VEK_API std::vector<CategoryOfCommands> GroupedByCategory(const CommandCaches& inCaches);
VEK_API void SortByName(CategoryOfCommands& ioCategory);
// The command, or the whole display name where that has no dot.
VEK_API lumcore::UTF16String GetShownName(const CommandCache& inCache);
// All commands by their categories, one a line, with their shortcuts behind a tab.
VEK_API lumcore::UTF16String MakeShortcutList(const CommandCaches& inCaches);

}  // namespace vek::sharedui
