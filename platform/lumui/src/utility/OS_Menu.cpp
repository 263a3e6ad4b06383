// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/OS_Menu.h"

#include "lumui/ui/OS_Menu.h"

namespace lumui::utility {

using Menus = ui::OS_Menu;

bool OS_Menu::IsEmpty() const {
  return Menus::GetItemCount(mMenu) == 0;
}

void OS_Menu::AppendItem(const lumcore::UTF16String& inText, unsigned inID, bool inEnabled,
                         bool inChecked) {
  if (!Menus::InsertItem(mMenu, ui::kMenuFailed, 0, inID, inText)) return;
  const unsigned last = Menus::GetItemCount(mMenu) - 1;
  Menus::EnableItem(mMenu, last, inEnabled);
  Menus::CheckItem(mMenu, last, inChecked);
}

bool OS_Menu::AppendSubMenu(const lumcore::UTF16String& inText, unsigned inID,
                            const OS_Menu& inSubMenu, bool inEnabled) {
  if (!Menus::InsertItem(mMenu, ui::kMenuFailed, 0, inID, inText)) return false;
  const unsigned last = Menus::GetItemCount(mMenu) - 1;
  ui::MenuItemInfo info;
  info.mask = ui::kMenuMaskSubMenu;
  info.subMenu = inSubMenu.mMenu;
  if (!Menus::SetItemInfo(mMenu, last, info)) {
    Menus::RemoveItem(mMenu, last);
    return false;
  }
  Menus::EnableItem(mMenu, last, inEnabled);
  return true;
}

void OS_Menu::AppendSeparator() {
  const unsigned count = Menus::GetItemCount(mMenu);
  if (count == 0 || count == ui::kMenuFailed) return;
  if ((Menus::GetItemState(mMenu, count - 1) & ui::kMenuTypeSeparator) != 0) return;
  Menus::InsertItem(mMenu, ui::kMenuFailed, ui::kMenuTypeSeparator, 0, lumcore::UTF16String());
}

boost::shared_ptr<OS_Menu> CreateOSMenu() {
  return boost::shared_ptr<OS_Menu>(new OS_Menu(Menus::Create(true)), [](OS_Menu* inMenu) {
    Menus::Destroy(inMenu->GetHandle());
    delete inMenu;
  });
}

}  // namespace lumui::utility
