// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommandsTree.h"

#include <algorithm>
#include <tuple>
#include <vector>

#include "lumcore/config/Localizer.h"
#include "vek/uisupport/CommandRegistry.h"

namespace vek::sharedui {

using lumcore::UTF16String;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// Those without a category come last.
bool StandsBefore(const CommandCache* inA, const CommandCache* inB) {
  const auto order = [](const CommandCache& inCache) {
    return std::make_tuple(inCache.category.empty(), std::cref(inCache.categoryLower),
                           std::cref(inCache.category), std::cref(inCache.commandLower),
                           inCache.commandID);
  };
  return order(*inA) < order(*inB);
}

UTF16String ShownName(const CommandCache& inCache) {
  if (!inCache.command.empty()) return inCache.command;
  const auto& registry = uisupport::CommandRegistry::Get();
  const auto found = registry.FindCommandByID(inCache.commandID);
  return found == registry.RegistryEnd() ? UTF16String() : found->second.GetDisplayName();
}

}  // namespace

CommandsTree::CommandsTree() {
  UI_SetNodeID("CommandsTree");
  SetColumns({{Localized("$$$/vek/sharedui/ShortcutDialog/Command=Command"), 210},
              {Localized("$$$/vek/sharedui/ShortcutDialog/Shortcut=Shortcut"), 170},
              {Localized("$$$/vek/sharedui/ShortcutDialog/Description=Description"), 200}});
  SetBestFitFunction([this](int inColumn) { return GetBestWidth(inColumn); });
}

CommandsTree::~CommandsTree() = default;

void CommandsTree::Fill(const CommandCaches& inCaches) {
  mCaches = &inCaches;
  std::vector<const CommandCache*> sorted;
  sorted.reserve(inCaches.size());
  for (const auto& [command, cache] : inCaches)
    sorted.push_back(cache.get());
  std::sort(sorted.begin(), sorted.end(), &StandsBefore);
  const StUpdate update(*this);
  RemoveAllRows();
  mRows.clear();
  mCommands.clear();
  mCategories.clear();
  RowID category = kNoRow;
  const CommandCache* first = nullptr;
  for (const CommandCache* cache : sorted) {
    if (!first || first->category != cache->category) {
      first = cache;
      category = AddRow(kNoRow, {cache->category});
      mCategories.push_back(category);
    }
    const RowID row = AddRow(category, {ShownName(*cache), cache->shortcuts, cache->description});
    mRows.emplace(cache->commandID, row);
    mCommands.emplace(row, cache->commandID);
  }
}

void CommandsTree::ShowShortcuts(const CommandCache& inCache) {
  const RowID row = FindRow(inCache.commandID);
  if (row == kNoRow || GetText(row, kShortcut) == inCache.shortcuts) return;
  SetText(row, kShortcut, inCache.shortcuts);
}

void CommandsTree::ShowAllShortcuts() {
  for (const auto& [command, cache] : *mCaches)
    ShowShortcuts(*cache);
}

void CommandsTree::Filter(bool inHasFilter,
                          const boost::function<bool(const CommandCache&)>& inIsShown) {
  const StUpdate update(*this);
  if (inHasFilter && !mFiltering) {
    mOpenBefore.clear();
    for (const RowID category : mCategories)
      mOpenBefore[category] = IsRowOpen(category);
  }
  for (const RowID category : mCategories) {
    bool empty = true;
    for (const RowID row : GetChildRows(category)) {
      const bool shown = inIsShown(*mCaches->at(mCommands.at(row)));
      SetRowHidden(row, !shown);
      empty = empty && !shown;
    }
    SetRowHidden(category, empty);
    if (inHasFilter) {
      SetRowOpen(category, true);
    } else if (mFiltering) {
      SetRowOpen(category, mOpenBefore[category]);
    }
  }
  mFiltering = inHasFilter;
}

int CommandsTree::GetSelectedCommand() const {
  const auto found = mCommands.find(GetSelectedRow());
  return found == mCommands.end() ? kNoCommand : found->second;
}

CommandsTree::RowID CommandsTree::FindRow(int inCommand) const {
  const auto found = mRows.find(inCommand);
  return found == mRows.end() ? kNoRow : found->second;
}

void CommandsTree::GoToCommand(int inCommand) {
  const RowID row = FindRow(inCommand);
  if (row == kNoRow) return;
  ScrollIntoView(row);
  SetSelectedRow(row, true);
}

float CommandsTree::GetBestWidth(int inColumn) const {
  float width = 0;
  for (const RowID category : mCategories) {
    if (inColumn == kCommand) {
      width = std::max(width, MeasureCell(inColumn, GetText(category, inColumn)));
    }
    for (const RowID row : GetChildRows(category))
      width = std::max(width, MeasureCell(inColumn, GetText(row, inColumn), 1));
  }
  return width;
}

}  // namespace vek::sharedui
