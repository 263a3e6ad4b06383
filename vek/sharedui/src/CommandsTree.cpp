// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommandsTree.h"

#include <algorithm>
#include <cmath>

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
  SetFillFunction([this](RowID inRow) { FillCategory(inRow); });
  SetBestFitFunction([this](int inColumn) { return GetBestWidth(inColumn); });
}

CommandsTree::~CommandsTree() = default;

void CommandsTree::Fill(const CommandCaches& inCaches) {
  mCaches = &inCaches;
  mRows.clear();
  mCommands.clear();
  mCategories.clear();
  const StUpdate update(*this);
  RemoveAllRows();
  for (const CommandCaches::Category& category : inCaches.GetCategories()) {
    const RowID row = AddRow(kNoRow, {category.name});
    SetRowUnfilled(row);
    mCategories.push_back({row, &category});
  }
}

void CommandsTree::FillCategory(RowID inRow) {
  const auto category = std::find_if(mCategories.begin(), mCategories.end(),
                                     [&](const Category& inOne) { return inOne.row == inRow; });
  if (category == mCategories.end()) return;
  for (const CommandCache* cache : mCaches->GetSorted(*category->category)) {
    const RowID row = AddRow(inRow, {GetShownName(*cache), cache->shortcuts, cache->description});
    mRows.emplace(cache->commandID, row);
    mCommands.emplace(row, cache->commandID);
  }
}

void CommandsTree::ShowShortcuts(const CommandCache& inCache) {
  const auto found = mRows.find(inCache.commandID);
  if (found == mRows.end() || GetText(found->second, kShortcut) == inCache.shortcuts) return;
  SetText(found->second, kShortcut, inCache.shortcuts);
}

void CommandsTree::ShowAllShortcuts() {
  for (const auto& [command, row] : mRows)
    ShowShortcuts(mCaches->Get(command));
}

void CommandsTree::Filter(bool inHasFilter, const boost::function<bool(CommandCache&)>& inIsShown) {
  const StUpdate update(*this);
  if (inHasFilter && !mFiltering) mOpenBefore.clear();
  for (const Category& category : mCategories) {
    if (inHasFilter && !mFiltering) mOpenBefore[category.row] = IsRowOpen(category.row);
    FillRow(category.row);
    bool empty = true;
    for (const int command : category.category->commands) {
      const bool shown = inIsShown(mCaches->Get(command));
      SetRowHidden(mRows.at(command), !shown);
      empty = empty && !shown;
    }
    SetRowHidden(category.row, empty);
    if (inHasFilter) {
      SetRowOpen(category.row, true);
    } else if (mFiltering) {
      SetRowOpen(category.row, mOpenBefore[category.row]);
    }
  }
  mFiltering = inHasFilter;
}

int CommandsTree::GetSelectedCommand() const {
  const auto found = mCommands.find(GetSelectedRow());
  return found == mCommands.end() ? kNoCommand : found->second;
}

CommandsTree::RowID CommandsTree::FindRow(int inCommand) {
  for (const Category& category : mCategories) {
    const std::vector<int>& commands = category.category->commands;
    if (!std::binary_search(commands.begin(), commands.end(), inCommand)) continue;
    FillRow(category.row);
    return mRows.at(inCommand);
  }
  return kNoRow;
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

float CommandsTree::GetBestWidth(int inColumn) {
  float width = 0;
  for (const Category& category : mCategories) {
    FillRow(category.row);
    if (inColumn == kCommand) {
      width = std::max(width, MeasureCell(inColumn, GetText(category.row, inColumn)));
    }
    for (const RowID row : GetChildRows(category.row))
      width = std::max(width, MeasureCell(inColumn, GetText(row, inColumn), 1));
  }
  return width;
}

}  // namespace vek::sharedui
