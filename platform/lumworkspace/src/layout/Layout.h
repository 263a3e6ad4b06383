// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <functional>
#include <string>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Rect.h"
#include "lumworkspace/workspace/TabPlace.h"

namespace lumworkspace::layout {

using Rect = lumcore::geom::RectT<int>;
using lumcore::UTF8String;

// A tab of a group. One that is closed is not on screen and keeps its place.
struct Tab {
  UTF8String type;
  bool open = true;
};

// A group of tabs, or a row or column of items. Plain values: a layout is copied, compared as text,
// changed and then shown.
struct Item {
  enum class Kind { kGroup, kRow, kColumn };

  Kind kind = Kind::kGroup;
  int size = 0;  // along the row or column it stands in; of an area's root: how far it reaches in
  std::vector<Tab> tabs;    // of a group
  UTF8String current;       // of a group: the tab in front
  std::vector<Item> items;  // of a row or column

  bool IsEmpty() const { return tabs.empty() && items.empty(); }
};

struct Floating {
  Rect rect;  // on the screen, when it is not maximised
  Item root;
  bool maximized = false;
};

// Where all tabs stand: in the areas around the centre of the main window, and in windows of their
// own. A type stands in it once.
struct Layout {
  std::array<Item, workspace::kDockAreaCount> areas;  // an area without tabs is empty
  std::vector<Floating> floating;
  int width = 0;  // of the space that the sizes were taken from
  int height = 0;
  Rect mainWindow;  // when it is not maximised; empty where nothing is known
  bool mainMaximized = false;
};

// Calls for each group until the function answers true, which is the result.
bool ForEachGroup(Layout& ioLayout, const std::function<bool(Item&)>& inFunction);
bool ForEachGroup(Item& ioItem, const std::function<bool(Item&)>& inFunction);
bool ForEachTab(const Item& inItem, const std::function<bool(const Tab&)>& inFunction);
bool HasOpenTab(const Item& inItem);

Tab* FindTab(Layout& ioLayout, const UTF8String& inType);
// Null for what stands nowhere.
Item* FindGroup(Layout& ioLayout, const UTF8String& inType);

// Of a group, the tab in front among those that are open and pass the test; null if there is none.
const Tab* FrontTab(const Item& inGroup, const std::function<bool(const UTF8String&)>& inIsShown);

// Takes the type out and closes the gap.
void Remove(Layout& ioLayout, const UTF8String& inType);
// Puts the type, open, where the place says, and takes it away from where it stood.
void Insert(Layout& ioLayout, const UTF8String& inType, const workspace::TabPlace& inPlace);
// Gives the tabs of the old layout that the new one lacks their places in the new one: with the
// tabs that they stood with, else beside what they stood beside, else in their area. They are then
// closed there, except for those that inStaysOpen wants open.
void AddMissing(Layout& ioLayout, const Layout& inOld,
                const std::function<bool(const UTF8String&)>& inStaysOpen);

// No empty groups, no row or column of one, none directly within one of its own kind.
void Normalize(Layout& ioLayout);

// "left[a|b*] bottom[c / d + ~e] center float[f@10,10]": groups with '|' between the tabs and '*'
// behind the one in front, '/' between the items of a column and '+' between those of a row, '~'
// before closed tabs. Rows and columns within others stand in parentheses. With sizes, each item
// and each area has ":size" behind it and a window its size.
std::string AsText(const Layout& inLayout, bool inWithSizes, bool inHasCenter);

}  // namespace lumworkspace::layout
