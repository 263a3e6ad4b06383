// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::ui {
class OS_Window;
}

namespace outliner {

// The menu bar of the main window and the menu on rows. Items have the names that the command
// registry shows; their state and keys come from the command chain and the key map each time that a
// menu opens. So the registry is loaded before.
class OutlinerMenus {
 public:
  OutlinerMenus();
  ~OutlinerMenus();
  OutlinerMenus(const OutlinerMenus&) = delete;
  OutlinerMenus& operator=(const OutlinerMenus&) = delete;

  // Fills an empty bar, which stays its window's.
  void Build(HMENU inBar);
  // The one whose front the workspaces are listed at.
  HMENU GetWorkspaceMenu() const { return mWorkspaces; }
  // Lists the recent files, by their paths, or the open documents, by their titles, where it is
  // their menu that is about to open.
  void ListRecentFiles(HMENU inMenu, const std::vector<lumcore::UTF16String>& inPaths) const;
  void ListDocuments(HMENU inMenu, const std::vector<lumcore::UTF16String>& inTitles) const;
  // Gives every item of a menu a letter of its own for the keyboard, as far as they reach.
  static void SetMnemonics(HMENU inMenu);

  // At a place on the screen.
  void OpenRowMenu(lumui::ui::OS_Window& inWindow, const lumcore::geom::PointT<int>& inPlace) const;

 private:
  static void AddBrightness(HMENU inMenu);
  static void AddMap(HMENU inMenu);

  HMENU mRowMenu;  // owned
  HMENU mWorkspaces = nullptr;
  HMENU mRecentFiles = nullptr;
  HMENU mDocuments = nullptr;
};

}  // namespace outliner
