// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/container/flat_map.hpp>
#include <boost/shared_ptr.hpp>
#include <unordered_map>
#include <utility>
#include <vector>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::sharedui {

// What the shortcut dialog shows of one command, and searches. The category is what stands before
// the first dot of the command's display name and the command what stands behind it; a name without
// a dot gives neither. The shortcuts are the plain ones, separated by ", ". The texts in lower case
// are made for the first search or order that needs them.
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

// The records of the commands that the registry had when this was made. A dialog shows a few of
// thousands, so a record is made when it is asked for, with what the registry says then; one of a
// command that has gone from there since has no texts.
class VEK_API CommandCaches {
 public:
  struct Category {
    lumcore::UTF16String name;
    std::vector<int> commands;  // by their ids
  };

  // Without shortcuts; Refresh takes those of the KeyCommandManager.
  CommandCaches();
  ~CommandCaches();
  CommandCaches(const CommandCaches&) = delete;
  CommandCaches& operator=(const CommandCaches&) = delete;

  // In the order of their names; that without one stands at the end.
  const std::vector<Category>& GetCategories() const { return mCategories; }
  bool Has(int inCommand) const { return mRecords.find(inCommand) != mRecords.end(); }
  // Lives as long as this. The command is one of those here (a contract).
  CommandCache& Get(int inCommand) const;
  // In the order of the commands' names.
  std::vector<CommandCache*> GetSorted(const Category& inCategory) const;

  void Refresh(int inCommand);
  void RefreshAll();

 private:
  mutable boost::container::flat_map<int, boost::shared_ptr<CommandCache>> mRecords;
  std::vector<Category> mCategories;
  std::unordered_map<int, lumcore::UTF16String> mShortcuts;  // of the commands that have some
};

// The category and the command of a display name.
VEK_API std::pair<lumcore::UTF16String, lumcore::UTF16String> SplitDisplayName(
    const lumcore::UTF16String& inName);

// Whether one of the four texts holds the filter: as it stands, or in lower case, which the filter
// then is as well. An empty filter is in all of them.
VEK_API bool HasText(CommandCache& ioCache, const lumcore::UTF16String& inFilter, bool inMatchCase);

// The command, or the whole display name where that has no dot.
VEK_API lumcore::UTF16String GetShownName(const CommandCache& inCache);
// All commands by their categories, one a line, with their shortcuts behind a tab.
VEK_API lumcore::UTF16String MakeShortcutList(const CommandCaches& inCaches);

}  // namespace vek::sharedui
