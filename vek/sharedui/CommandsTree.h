// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <map>
#include <unordered_map>
#include <vector>

#include "lumui/controls/UI_MultiColumnTree.h"
#include "vek/config/Export.h"
#include "vek/sharedui/CommandCache.h"

namespace vek::sharedui {

// The commands under their categories, both in the order of their names, with shortcuts and
// descriptions. A command whose display name has no category stands with its whole name at the end.
class VEK_API CommandsTree : public lumui::controls::UI_MultiColumnTree {
 public:
  static constexpr int kNoCommand = -1;
  enum ColumnIndex : int { kCommand = 0, kShortcut = 1, kDescription = 2 };

  CommandsTree();
  ~CommandsTree() override;

  // The records are borrowed for the tree's life. The rows of a category are made when it is opened
  // or searched.
  void Fill(const CommandCaches& inCaches);
  void ShowShortcuts(const CommandCache& inCache);
  void ShowAllShortcuts();
  // Hides what the function answers false for, and the categories that are empty then. A filter
  // opens the rows that are left; without one they are open as they were before it.
  void Filter(bool inHasFilter, const boost::function<bool(CommandCache&)>& inIsShown);

  int GetSelectedCommand() const;  // kNoCommand, for a category as well
  RowID FindRow(int inCommand);    // kNoRow for none
  // Opens its category, scrolls it into view and selects it.
  void GoToCommand(int inCommand);

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  struct Category {
    RowID row;
    const CommandCaches::Category* category;
  };

  void FillCategory(RowID inRow);
  float GetBestWidth(int inColumn);

  const CommandCaches* mCaches = nullptr;
  std::unordered_map<int, RowID> mRows;
  std::unordered_map<RowID, int> mCommands;
  std::vector<Category> mCategories;
  std::map<RowID, bool> mOpenBefore;  // the filter
  bool mFiltering = false;
  float mShares[2] = {0, 0};  // of the first columns, as long as nobody else gives them a width
};

}  // namespace vek::sharedui
