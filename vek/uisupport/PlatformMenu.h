// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/OSTypes.h"
#include "vek/config/Export.h"

// A platform's menus, by handle, with items by their position from 0. What is no menu, or no item
// of it, changes nothing, and the answer is false, null or 0xFFFFFFFF unless it says otherwise. How
// menus live and what they send tells lumui/ui/OS_Menu.h.
namespace vek::uisupport {

VEK_API HMENU CreatePlatformMenu(bool inPopup);
// With its submenus.
VEK_API void DestroyPlatformMenu(HMENU inMenu);

// A radio item makes its command a radio command in all menus. A position behind the end appends.
VEK_API bool AppendItem(HMENU inMenu, const lumcore::UTF16String& inTitle, unsigned inID,
                        bool inRadio);
VEK_API bool InsertItem(HMENU inMenu, unsigned inPosition, const lumcore::UTF16String& inTitle,
                        unsigned inID, bool inRadio);
VEK_API bool AppendSeparator(HMENU inMenu, unsigned inID);
VEK_API bool InsertSeparator(HMENU inMenu, unsigned inPosition, unsigned inID);
// The new submenu, also where it could not be attached: then it is the caller's.
VEK_API HMENU AppendSubMenu(HMENU inMenu, const lumcore::UTF16String& inTitle, unsigned inID);
// Inserts an item at the position, and attaches the new submenu to the item that stands last then.
// So that is another item unless the new one has become the last.
VEK_API HMENU InsertSubMenu(HMENU inMenu, unsigned inPosition, const lumcore::UTF16String& inTitle,
                            unsigned inID);
// A submenu of the item lives on.
VEK_API void RemoveItem(HMENU inMenu, unsigned inPosition);

VEK_API void CheckItem(HMENU inMenu, unsigned inPosition, bool inChecked);
VEK_API void EnableItem(HMENU inMenu, unsigned inPosition, bool inEnabled);
// True where there is no item.
VEK_API bool IsItemChecked(HMENU inMenu, unsigned inPosition);
// False, always: no test for anything.
VEK_API bool IsItemEnabled(HMENU inMenu, unsigned inPosition);

// Both stay as they were where there is no item.
VEK_API void GetItem(HMENU inMenu, unsigned inPosition, lumcore::UTF16String& outTitle,
                     unsigned& outID);
// 0xFFFFFFFF for what is no menu: look before you loop.
VEK_API unsigned GetItemCount(HMENU inMenu);
// 0xFFFFFFFF also for an item with a submenu, whose id GetItem tells.
VEK_API unsigned GetItemID(HMENU inMenu, unsigned inPosition);
// The first with exactly this id or title.
VEK_API unsigned GetItemPosition(HMENU inMenu, const unsigned& inID);
VEK_API unsigned GetItemPosition(HMENU inMenu, const lumcore::UTF16String& inTitle);

VEK_API HMENU GetSubMenu(HMENU inMenu, unsigned inPosition);
// Null takes the submenu away. The one before lives on.
VEK_API void SetSubMenu(HMENU inMenu, unsigned inPosition, HMENU inSubMenu);

VEK_API void SetItem(HMENU inMenu, unsigned inPosition, const lumcore::UTF16String& inTitle,
                     unsigned inID);
VEK_API void SetItemID(HMENU inMenu, unsigned inPosition, unsigned inID);
VEK_API void SetItemTitle(HMENU inMenu, unsigned inPosition, const lumcore::UTF16String& inTitle);

VEK_API void* GetMenuItemUserData(HMENU inMenu, unsigned inPosition);
// The old value.
VEK_API void* SetMenuItemUserData(HMENU inMenu, unsigned inPosition, void* inData);

}  // namespace vek::uisupport
