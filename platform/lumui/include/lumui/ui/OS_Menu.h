// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/ui/OSTypes.h"

namespace lumui::ui {

class OS_Window;

// The answer of an operation that gives a number and has failed. It is also the position behind the
// last item, whatever their count.
constexpr unsigned kMenuFailed = 0xFFFFFFFF;

// The parts of an item, for MenuItemInfo::mask.
constexpr unsigned kMenuMaskState = 0x1;
constexpr unsigned kMenuMaskID = 0x2;
constexpr unsigned kMenuMaskSubMenu = 0x4;
constexpr unsigned kMenuMaskCheckMarks =
    0x8;  // pictures of marks: there are none, so nothing moves
constexpr unsigned kMenuMaskData = 0x20;
constexpr unsigned kMenuMaskString = 0x40;
constexpr unsigned kMenuMaskType = 0x100;

constexpr unsigned kMenuTypeRadio = 0x200;  // a checked item has a dot for its mark
constexpr unsigned kMenuTypeSeparator = 0x800;

constexpr unsigned kMenuStateDisabled = 0x3;
constexpr unsigned kMenuStateChecked = 0x8;
constexpr unsigned kMenuStateHasSubMenu = 0x10;  // only in the answer of GetItemState

// What is read of an item or written to it: the parts that the mask names, and no others.
struct MenuItemInfo {
  unsigned mask = 0;
  unsigned type = 0;
  unsigned state = 0;
  unsigned id = 0;
  HMENU subMenu = nullptr;
  void* data = nullptr;
  // '&' stands before the letter that chooses the item; what follows a tab stands in a column of
  // its own at the right and is only shown.
  lumcore::UTF16String text;
  std::size_t textLimit = lumcore::UTF16String::npos;  // units; a longer text is read up to there
};

// Menus by their handles, items by their position from 0. A handle is valid from Create to Destroy
// and is never given again; an operation on another one, null included, or on a position without an
// item fails: it changes nothing and says so by false, null or kMenuFailed.
//
// A menu belongs to whoever made it, until it becomes part of another (which destroys it when it is
// destroyed) or the menu of a window (whose native part takes it along). It needs no application
// before it is shown.
//
// Before a menu opens, its window gets kMessageInitMenuPopup through the gate, with the handle as
// the first parameter and the position in the menu above as the second; what is changed then shows
// at once. A chosen item sends kMessageCommand with the low 16 bits of its id.
class LUMUI_API OS_Menu {
 public:
  OS_Menu() = delete;

  // On systems that tell bars and popups apart the flag chooses; here each menu may be either.
  static HMENU Create(bool inPopup);
  // With the menus that it opens, and those below.
  static bool Destroy(HMENU inMenu);
  static bool IsMenu(HMENU inMenu);
  // The menu that kMessageInitMenuPopup names by its first parameter.
  static HMENU OfParameter(WPARAM inParameter);

  // kMenuFailed for what is no menu: look before you loop.
  static unsigned GetItemCount(HMENU inMenu);
  // A position behind the end appends.
  static bool InsertItem(HMENU inMenu, unsigned inPosition, unsigned inType, unsigned inID,
                         const lumcore::UTF16String& inText);
  // The menu that the item opens lives on, and is whose it was.
  static bool RemoveItem(HMENU inMenu, unsigned inPosition);

  static bool GetItemInfo(HMENU inMenu, unsigned inPosition, MenuItemInfo& ioInfo);
  // Fails also for an unknown bit in the mask, for a submenu that is no menu, and for one that
  // would contain itself. A submenu that is replaced lives on.
  static bool SetItemInfo(HMENU inMenu, unsigned inPosition, const MenuItemInfo& inInfo);
  // State and type in one. Of an item with a submenu: the low 8 bits of that, and above them the
  // number of the submenu's items.
  static unsigned GetItemState(HMENU inMenu, unsigned inPosition);
  // kMenuFailed for an item that opens a submenu.
  static unsigned GetItemID(HMENU inMenu, unsigned inPosition);
  static HMENU GetSubMenu(HMENU inMenu, unsigned inPosition);
  static bool CheckItem(HMENU inMenu, unsigned inPosition, bool inChecked);
  static bool EnableItem(HMENU inMenu, unsigned inPosition, bool inEnabled);
  // Of the items from first to last that one gets a dot, and the others lose mark and dot.
  static bool CheckRadioItem(HMENU inMenu, unsigned inFirst, unsigned inLast, unsigned inChecked);

  // Opens the menu at a point of the screen, on behalf of a window with a native part (a contract),
  // and returns.
  static bool PopUp(HMENU inMenu, OS_Window& inWindow, const lumcore::geom::PointT<int>& inPoint);
  // The same, returning when the menu has closed, with the id of the chosen item, or 0; then no
  // command is sent.
  static unsigned TrackPopup(HMENU inMenu, OS_Window& inWindow,
                             const lumcore::geom::PointT<int>& inPoint);
};

}  // namespace lumui::ui
