// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/OS_Menu.h"

namespace test_support {

// "~Open=1 | ---=0 | *Wrap=2 | (*)Left=3 | Recent=4>": disabled, checked, checked with a dot, with
// a submenu, and the id behind the text.
inline std::string MenuText(HMENU inMenu) {
  using lumui::ui::OS_Menu;
  std::string text;
  for (unsigned i = 0; i < OS_Menu::GetItemCount(inMenu); ++i) {
    lumui::ui::MenuItemInfo item;
    item.mask = lumui::ui::kMenuMaskType | lumui::ui::kMenuMaskState | lumui::ui::kMenuMaskID |
                lumui::ui::kMenuMaskSubMenu | lumui::ui::kMenuMaskString;
    OS_Menu::GetItemInfo(inMenu, i, item);
    text += i == 0 ? "" : " | ";
    if ((item.state & lumui::ui::kMenuStateDisabled) != 0) text += "~";
    if ((item.state & lumui::ui::kMenuStateChecked) != 0)
      text += (item.type & lumui::ui::kMenuTypeRadio) != 0 ? "(*)" : "*";
    text += (item.type & lumui::ui::kMenuTypeSeparator) != 0
                ? "---"
                : lumcore::utility::ToStdString(item.text);
    text += "=" + std::to_string(item.id) + (item.subMenu ? ">" : "");
  }
  return text;
}

}  // namespace test_support
