// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/ui/OS_Menu.h"

namespace lumui::ui {

class MenuPeer;

struct MenuItem {
  unsigned type = 0;
  unsigned state = 0;
  unsigned id = 0;
  HMENU subMenu = nullptr;  // null or a menu: one that is destroyed leaves its items first
  void* data = nullptr;
  lumcore::UTF16String text;

  bool IsChecked() const { return (state & kMenuStateChecked) != 0; }
  bool IsEnabled() const { return (state & kMenuStateDisabled) == 0; }
  bool IsRadio() const { return (type & kMenuTypeRadio) != 0; }
  bool IsSeparator() const { return (type & kMenuTypeSeparator) != 0; }
};

// What a handle stands for. The peer is what the window system shows of it, once it shows it.
struct Menu {
  Menu();
  ~Menu();

  HMENU handle = nullptr;
  std::vector<MenuItem> items;
  std::unique_ptr<MenuPeer> peer;
};

Menu* FindMenu(HMENU inHandle);                        // null for what is no menu
MenuItem* FindItem(HMENU inHandle, unsigned inIndex);  // null without menu or item
void ForEachMenu(const std::function<void(Menu&)>& inFunction);
// Where a menu stands in the one above it, within the tree below inMenu, or
// kMenuFailed for one that is not there. A menu contains itself, at position 0.
unsigned FindBelow(HMENU inMenu, HMENU inWanted);

}  // namespace lumui::ui
