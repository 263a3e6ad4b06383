// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/OS_Menu.h"

#include <algorithm>
#include <map>
#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumui/ui/OS_Window.h"
#include "ui/Menu.h"
#include "ui/MenuPeer.h"

namespace lumui::ui {

namespace {

constexpr unsigned kKnownParts = kMenuMaskState | kMenuMaskID | kMenuMaskSubMenu |
                                 kMenuMaskCheckMarks | kMenuMaskData | kMenuMaskString |
                                 kMenuMaskType;
constexpr unsigned kLowStateBits = 0xFF;
constexpr unsigned kCountShift = 8;

std::map<HMENU, Menu>& Menus() {
  static std::map<HMENU, Menu> sMenus;
  return sMenus;
}

void TellChanged(HMENU inMenu, unsigned inPosition) {
  const Menu& menu = *FindMenu(inMenu);
  if (menu.peer) menu.peer->ItemChanged(inPosition);
}

// Only a real change goes to the window system, for which each is dear in an open menu.
bool SetTypeAndState(HMENU inMenu, unsigned inPosition, unsigned inType, unsigned inState) {
  MenuItem* const item = FindItem(inMenu, inPosition);
  if (!item) return false;
  if (item->type == inType && item->state == inState) return true;
  item->type = inType;
  item->state = inState;
  TellChanged(inMenu, inPosition);
  return true;
}

bool SetStateBits(HMENU inMenu, unsigned inPosition, unsigned inBits, bool inSet) {
  const MenuItem* const item = FindItem(inMenu, inPosition);
  if (!item) return false;
  return SetTypeAndState(inMenu, inPosition, item->type,
                         inSet ? item->state | inBits : item->state & ~inBits);
}

// The items that open a menu do so no more.
void Detach(HMENU inSubMenu) {
  ForEachMenu([&](Menu& ioMenu) {
    for (unsigned i = 0; i < ioMenu.items.size(); ++i) {
      if (ioMenu.items[i].subMenu != inSubMenu) continue;
      ioMenu.items[i].subMenu = nullptr;
      if (ioMenu.peer) ioMenu.peer->ItemChanged(i);
    }
  });
}

}  // namespace

Menu::Menu() = default;
Menu::~Menu() = default;

Menu* FindMenu(HMENU inHandle) {
  const auto found = Menus().find(inHandle);
  return found == Menus().end() ? nullptr : &found->second;
}

MenuItem* FindItem(HMENU inHandle, unsigned inIndex) {
  Menu* const menu = FindMenu(inHandle);
  return menu && inIndex < menu->items.size() ? &menu->items[inIndex] : nullptr;
}

void ForEachMenu(const std::function<void(Menu&)>& inFunction) {
  for (auto& entry : Menus())
    inFunction(entry.second);
}

unsigned FindBelow(HMENU inMenu, HMENU inWanted) {
  if (inMenu == inWanted) return 0;
  const Menu* const menu = FindMenu(inMenu);
  if (!menu) return kMenuFailed;
  for (unsigned i = 0; i < menu->items.size(); ++i) {
    const HMENU sub = menu->items[i].subMenu;
    if (!sub) continue;
    if (sub == inWanted) return i;
    const unsigned below = FindBelow(sub, inWanted);
    if (below != kMenuFailed) return below;
  }
  return kMenuFailed;
}

HMENU OS_Menu::Create(bool) {
  static std::uintptr_t sLast = 0;
  const auto handle = reinterpret_cast<HMENU>(++sLast);
  Menus()[handle].handle = handle;
  return handle;
}

bool OS_Menu::Destroy(HMENU inMenu) {
  const Menu* const menu = FindMenu(inMenu);
  if (!menu) return false;
  std::vector<HMENU> below;
  for (const MenuItem& item : menu->items) {
    if (item.subMenu) below.push_back(item.subMenu);
  }
  Detach(inMenu);
  Menus().erase(inMenu);
  // One that two items opened is gone the second time, and so fails.
  for (const HMENU sub : below)
    Destroy(sub);
  return true;
}

HMENU OS_Menu::OfParameter(WPARAM inParameter) {
  return reinterpret_cast<HMENU>(inParameter);
}

bool OS_Menu::IsMenu(HMENU inMenu) {
  return FindMenu(inMenu) != nullptr;
}

unsigned OS_Menu::GetItemCount(HMENU inMenu) {
  const Menu* const menu = FindMenu(inMenu);
  return menu ? static_cast<unsigned>(menu->items.size()) : kMenuFailed;
}

bool OS_Menu::InsertItem(HMENU inMenu, unsigned inPosition, unsigned inType, unsigned inID,
                         const lumcore::UTF16String& inText) {
  Menu* const menu = FindMenu(inMenu);
  if (!menu) return false;
  const unsigned position = std::min(inPosition, GetItemCount(inMenu));
  MenuItem item;
  item.type = inType;
  item.id = inID;
  item.text = inText;
  menu->items.insert(menu->items.begin() + position, std::move(item));
  if (menu->peer) menu->peer->ItemInserted(position);
  return true;
}

bool OS_Menu::RemoveItem(HMENU inMenu, unsigned inPosition) {
  if (!FindItem(inMenu, inPosition)) return false;
  Menu& menu = *FindMenu(inMenu);
  menu.items.erase(menu.items.begin() + inPosition);
  if (menu.peer) menu.peer->ItemRemoved(inPosition);
  return true;
}

bool OS_Menu::GetItemInfo(HMENU inMenu, unsigned inPosition, MenuItemInfo& ioInfo) {
  const MenuItem* const item = FindItem(inMenu, inPosition);
  if (!item || (ioInfo.mask & ~kKnownParts) != 0) return false;
  const auto asked = [&](unsigned inPart) { return (ioInfo.mask & inPart) != 0; };
  if (asked(kMenuMaskType)) ioInfo.type = item->type;
  if (asked(kMenuMaskState)) ioInfo.state = item->state;
  if (asked(kMenuMaskID)) ioInfo.id = item->id;
  if (asked(kMenuMaskSubMenu)) ioInfo.subMenu = item->subMenu;
  if (asked(kMenuMaskData)) ioInfo.data = item->data;
  if (asked(kMenuMaskString)) ioInfo.text.assign(item->text, 0, ioInfo.textLimit);
  return true;
}

bool OS_Menu::SetItemInfo(HMENU inMenu, unsigned inPosition, const MenuItemInfo& inInfo) {
  MenuItem* const item = FindItem(inMenu, inPosition);
  if (!item || (inInfo.mask & ~kKnownParts) != 0) return false;
  const auto asked = [&](unsigned inPart) { return (inInfo.mask & inPart) != 0; };
  if (asked(kMenuMaskSubMenu) && inInfo.subMenu) {
    if (!IsMenu(inInfo.subMenu) || FindBelow(inInfo.subMenu, inMenu) != kMenuFailed) return false;
  }
  bool shown = false;  // what the user sees is another
  const auto set = [&](auto& ioPart, const auto& inValue) {
    if (ioPart == inValue) return;
    ioPart = inValue;
    shown = true;
  };
  if (asked(kMenuMaskType)) set(item->type, inInfo.type);
  if (asked(kMenuMaskState)) set(item->state, inInfo.state);
  if (asked(kMenuMaskSubMenu)) set(item->subMenu, inInfo.subMenu);
  if (asked(kMenuMaskString)) set(item->text, inInfo.text);
  if (asked(kMenuMaskID)) item->id = inInfo.id;
  if (asked(kMenuMaskData)) item->data = inInfo.data;
  if (shown) TellChanged(inMenu, inPosition);
  return true;
}

unsigned OS_Menu::GetItemState(HMENU inMenu, unsigned inPosition) {
  const MenuItem* const item = FindItem(inMenu, inPosition);
  if (!item) return kMenuFailed;
  const unsigned both = item->state | item->type;
  if (!item->subMenu) return both;
  return ((both | kMenuStateHasSubMenu) & kLowStateBits) |
         (GetItemCount(item->subMenu) << kCountShift);
}

unsigned OS_Menu::GetItemID(HMENU inMenu, unsigned inPosition) {
  const MenuItem* const item = FindItem(inMenu, inPosition);
  return item && !item->subMenu ? item->id : kMenuFailed;
}

HMENU OS_Menu::GetSubMenu(HMENU inMenu, unsigned inPosition) {
  const MenuItem* const item = FindItem(inMenu, inPosition);
  return item ? item->subMenu : nullptr;
}

bool OS_Menu::CheckItem(HMENU inMenu, unsigned inPosition, bool inChecked) {
  return SetStateBits(inMenu, inPosition, kMenuStateChecked, inChecked);
}

bool OS_Menu::EnableItem(HMENU inMenu, unsigned inPosition, bool inEnabled) {
  return SetStateBits(inMenu, inPosition, kMenuStateDisabled, !inEnabled);
}

bool OS_Menu::CheckRadioItem(HMENU inMenu, unsigned inFirst, unsigned inLast, unsigned inChecked) {
  if (inChecked < inFirst || inChecked > inLast || !FindItem(inMenu, inLast)) return false;
  for (unsigned i = inFirst; i <= inLast; ++i) {
    const MenuItem& item = *FindItem(inMenu, i);
    const bool on = i == inChecked;
    SetTypeAndState(inMenu, i, on ? item.type | kMenuTypeRadio : item.type & ~kMenuTypeRadio,
                    on ? item.state | kMenuStateChecked : item.state & ~kMenuStateChecked);
  }
  return true;
}

bool OS_Menu::PopUp(HMENU inMenu, OS_Window& inWindow, const lumcore::geom::PointT<int>& inPoint) {
  LUM_INPUT_CONTRACT(inWindow.UI_GetHandle() != nullptr);
  Menu* const menu = FindMenu(inMenu);
  if (!menu) return false;
  MenuPeer::Of(*menu).PopUp(inWindow, inPoint);
  return true;
}

unsigned OS_Menu::TrackPopup(HMENU inMenu, OS_Window& inWindow,
                             const lumcore::geom::PointT<int>& inPoint) {
  LUM_INPUT_CONTRACT(inWindow.UI_GetHandle() != nullptr);
  Menu* const menu = FindMenu(inMenu);
  return menu ? MenuPeer::Of(*menu).Track(inWindow, inPoint) : 0;
}

}  // namespace lumui::ui
