// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommandsTree.h"

#include <algorithm>
#include <cmath>
#include <vector>

#include "lumcore/config/Localizer.h"

namespace vek::sharedui {

using lumcore::UTF16String;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// Of the width, for the first columns; the last one takes what is left.
constexpr float kShares[] = {0.34f, 0.36f};

}  // namespace

CommandsTree::CommandsTree() {
  UI_SetNodeID("CommandsTree");
  SetColumns({{Localized("$$$/vek/sharedui/ShortcutDialog/Command=Command"), 0},
              {Localized("$$$/vek/sharedui/ShortcutDialog/Shortcut=Shortcut"), 0},
              {Localized("$$$/vek/sharedui/ShortcutDialog/Description=Description"), 100}});
  SetBestFitFunction([this](int inColumn) { return GetBestWidth(inColumn); });
}

CommandsTree::~CommandsTree() = default;

void CommandsTree::Fill(const CommandCaches& inCaches) {
  mCaches = &inCaches;
  const StUpdate update(*this);
  RemoveAllRows();
  mRows.clear();
  mCommands.clear();
  mCategories.clear();
  RowID category = kNoRow;
  const CommandCache* first = nullptr;
  for (const CommandCache* cache : SortedByName(inCaches)) {
    if (!first || first->category != cache->category) {
      first = cache;
      category = AddRow(kNoRow, {cache->category});
      mCategories.push_back(category);
    }
    const RowID row =
        AddRow(category, {GetShownName(*cache), cache->shortcuts, cache->description});
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

void CommandsTree::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_MultiColumnTree::UI_SizeChanged(inRect);
  for (const int column : {kCommand, kShortcut}) {
    if (GetColumnWidth(column) != mShares[column]) continue;
    mShares[column] = std::floor(inRect.width * kShares[column]);
    SetColumnWidth(column, mShares[column]);
  }
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
