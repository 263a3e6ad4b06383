// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/PlatformMenu.h"

#include "lumui/ui/OS_Menu.h"
#include "lumworkspace/workspace/CommandCheckStyle.h"

namespace vek::uisupport {

using lumcore::UTF16String;
using lumui::ui::MenuItemInfo;
using lumui::ui::OS_Menu;

namespace {

constexpr unsigned kNotFound = 0xFFFFFFFF;
constexpr unsigned kAtEnd = 0xFFFFFFFF;

// Of an item that cannot be read, the values of the one before it are compared.
template <class Matches>
unsigned FindPosition(HMENU inMenu, unsigned inMask, Matches inMatches) {
  const unsigned count = OS_Menu::GetItemCount(inMenu);
  if (count == lumui::ui::kMenuFailed) return kNotFound;
  MenuItemInfo info;
  info.mask = inMask;
  for (unsigned i = 0; i < count; ++i) {
    OS_Menu::GetItemInfo(inMenu, i, info);
    if (inMatches(info)) return i;
  }
  return kNotFound;
}

}  // namespace

HMENU CreatePlatformMenu(bool inPopup) {
  return OS_Menu::Create(inPopup);
}

void DestroyPlatformMenu(HMENU inMenu) {
  OS_Menu::Destroy(inMenu);
}

bool AppendItem(HMENU inMenu, const UTF16String& inTitle, unsigned inID, bool inRadio) {
  return uisupport::InsertItem(inMenu, kAtEnd, inTitle, inID, inRadio);
}

bool InsertItem(HMENU inMenu, unsigned inPosition, const UTF16String& inTitle, unsigned inID,
                bool inRadio) {
  if (!OS_Menu::InsertItem(inMenu, inPosition, 0, inID, inTitle)) return false;
  if (inRadio) lumworkspace::workspace::SetCommandCheckStyle(static_cast<int>(inID), true);
  return true;
}

bool AppendSeparator(HMENU inMenu, unsigned inID) {
  return uisupport::InsertSeparator(inMenu, kAtEnd, inID);
}

bool InsertSeparator(HMENU inMenu, unsigned inPosition, unsigned inID) {
  return OS_Menu::InsertItem(inMenu, inPosition, lumui::ui::kMenuTypeSeparator, inID,
                             UTF16String());
}

HMENU AppendSubMenu(HMENU inMenu, const UTF16String& inTitle, unsigned inID) {
  return uisupport::InsertSubMenu(inMenu, kAtEnd, inTitle, inID);
}

// The count from before is the position of the last item from after, and hosts count on it.
HMENU InsertSubMenu(HMENU inMenu, unsigned inPosition, const UTF16String& inTitle, unsigned inID) {
  const unsigned last = OS_Menu::GetItemCount(inMenu);
  OS_Menu::InsertItem(inMenu, inPosition, 0, inID, inTitle);
  const HMENU subMenu = OS_Menu::Create(false);
  uisupport::SetSubMenu(inMenu, last, subMenu);
  return subMenu;
}

void RemoveItem(HMENU inMenu, unsigned inPosition) {
  OS_Menu::RemoveItem(inMenu, inPosition);
}

void CheckItem(HMENU inMenu, unsigned inPosition, bool inChecked) {
  OS_Menu::CheckItem(inMenu, inPosition, inChecked);
}

void EnableItem(HMENU inMenu, unsigned inPosition, bool inEnabled) {
  OS_Menu::EnableItem(inMenu, inPosition, inEnabled);
}

// A failure has all bits, this one among them.
bool IsItemChecked(HMENU inMenu, unsigned inPosition) {
  return (OS_Menu::GetItemState(inMenu, inPosition) & lumui::ui::kMenuStateChecked) != 0;
}

bool IsItemEnabled(HMENU inMenu, unsigned inPosition) {
  OS_Menu::GetItemState(inMenu, inPosition);
  return false;
}

void GetItem(HMENU inMenu, unsigned inPosition, UTF16String& outTitle, unsigned& outID) {
  MenuItemInfo info;
  info.mask = lumui::ui::kMenuMaskString | lumui::ui::kMenuMaskID;
  if (!OS_Menu::GetItemInfo(inMenu, inPosition, info)) return;
  outTitle = info.text;
  outID = info.id;
}

unsigned GetItemCount(HMENU inMenu) {
  return OS_Menu::GetItemCount(inMenu);
}

unsigned GetItemID(HMENU inMenu, unsigned inPosition) {
  return OS_Menu::GetItemID(inMenu, inPosition);
}

unsigned GetItemPosition(HMENU inMenu, const unsigned& inID) {
  return FindPosition(inMenu, lumui::ui::kMenuMaskID,
                      [&](const MenuItemInfo& inInfo) { return inInfo.id == inID; });
}

unsigned GetItemPosition(HMENU inMenu, const UTF16String& inTitle) {
  return FindPosition(inMenu, lumui::ui::kMenuMaskString,
                      [&](const MenuItemInfo& inInfo) { return inInfo.text == inTitle; });
}

HMENU GetSubMenu(HMENU inMenu, unsigned inPosition) {
  return OS_Menu::GetSubMenu(inMenu, inPosition);
}

void SetSubMenu(HMENU inMenu, unsigned inPosition, HMENU inSubMenu) {
  MenuItemInfo info;
  info.mask = lumui::ui::kMenuMaskSubMenu;
  info.subMenu = inSubMenu;
  OS_Menu::SetItemInfo(inMenu, inPosition, info);
}

void SetItem(HMENU inMenu, unsigned inPosition, const UTF16String& inTitle, unsigned inID) {
  MenuItemInfo info;
  info.mask = lumui::ui::kMenuMaskID | lumui::ui::kMenuMaskString;
  info.id = inID;
  info.text = inTitle;
  OS_Menu::SetItemInfo(inMenu, inPosition, info);
}

void SetItemID(HMENU inMenu, unsigned inPosition, unsigned inID) {
  MenuItemInfo info;
  info.mask = lumui::ui::kMenuMaskID;
  info.id = inID;
  OS_Menu::SetItemInfo(inMenu, inPosition, info);
}

void SetItemTitle(HMENU inMenu, unsigned inPosition, const UTF16String& inTitle) {
  MenuItemInfo info;
  info.mask = lumui::ui::kMenuMaskString;
  info.text = inTitle;
  OS_Menu::SetItemInfo(inMenu, inPosition, info);
}

void* GetMenuItemUserData(HMENU inMenu, unsigned inPosition) {
  MenuItemInfo info;
  info.mask = lumui::ui::kMenuMaskData;
  OS_Menu::GetItemInfo(inMenu, inPosition, info);
  return info.data;
}

void* SetMenuItemUserData(HMENU inMenu, unsigned inPosition, void* inData) {
  MenuItemInfo info;
  info.mask = lumui::ui::kMenuMaskData;
  if (!OS_Menu::GetItemInfo(inMenu, inPosition, info)) return nullptr;
  void* const old = info.data;
  info.data = inData;
  OS_Menu::SetItemInfo(inMenu, inPosition, info);
  return old;
}

}  // namespace vek::uisupport
