// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumui/Export.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::utility {

// A menu to be filled, by whoever is asked what shall stand in it. It borrows the menu of the
// handle; see lumui/ui/OS_Menu.h for all that can be done with it.
class LUMUI_API OS_Menu {
 public:
  explicit OS_Menu(HMENU inMenu) : mMenu(inMenu) {}

  HMENU GetHandle() const { return mMenu; }
  bool IsEmpty() const;
  void AppendItem(const lumcore::UTF16String& inText, unsigned inID, bool inEnabled = true,
                  bool inChecked = false);
  // The other menu belongs to this one from now on, and stays whose it was where that fails.
  bool AppendSubMenu(const lumcore::UTF16String& inText, unsigned inID, const OS_Menu& inSubMenu,
                     bool inEnabled = true);
  // None at the front, and none behind another.
  void AppendSeparator();

 private:
  HMENU mMenu;
};

// An empty menu, which goes with the last reference, and with it the menus that it opens.
LUMUI_API boost::shared_ptr<OS_Menu> CreateOSMenu();

}  // namespace lumui::utility
