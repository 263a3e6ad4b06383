// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "layout/Layout.h"

#include <algorithm>
#include <iterator>
#include <set>
#include <utility>

namespace lumworkspace::layout {

namespace {

using workspace::TabPlace;
using Kind = Item::Kind;

constexpr int kDefaultWidth = 240;
constexpr int kDefaultHeight = 180;

Item GroupOf(const Tab& inTab, int inSize) {
  Item group;
  group.size = inSize;
  group.tabs.push_back(inTab);
  group.current = inTab.type;
  return group;
}

bool Holds(const Item& inItem, const UTF8String& inType) {
  return ForEachTab(inItem, [&](const Tab& inTab) { return inTab.type == inType; });
}

void Normalize(Item& ioItem) {
  if (ioItem.kind == Kind::kGroup) return;
  std::vector<Item> items;
  for (Item& item : ioItem.items) {
    Normalize(item);
    if (item.IsEmpty()) continue;
    if (item.kind == ioItem.kind) {
      std::move(item.items.begin(), item.items.end(), std::back_inserter(items));
    } else {
      items.push_back(std::move(item));
    }
  }
  ioItem.items = std::move(items);
  if (ioItem.items.empty()) {
    ioItem.kind = Kind::kGroup;
  } else if (ioItem.items.size() == 1) {
    Item only = std::move(ioItem.items.front());
    only.size = ioItem.size;
    ioItem = std::move(only);
  }
}

// Puts a new item at the front or the end of ioItem, which becomes a row or column if need be.
void PutAtEnd(Item& ioItem, Kind inKind, Item inNew, bool inAtFront) {
  if (ioItem.IsEmpty()) {
    const int size = ioItem.size > 0 ? ioItem.size : inNew.size;
    ioItem = std::move(inNew);
    ioItem.size = size;
    return;
  }
  if (ioItem.kind != inKind) {
    Item wrapped;
    wrapped.kind = inKind;
    wrapped.size = std::exchange(ioItem.size, inNew.size);  // equal shares
    wrapped.items.push_back(std::move(ioItem));
    ioItem = std::move(wrapped);
  }
  ioItem.items.insert(inAtFront ? ioItem.items.begin() : ioItem.items.end(), std::move(inNew));
}

// Puts a new item beside the one within ioItem that inIsAnchor names. False if it names none.
bool PutBeside(Item& ioItem, const std::function<bool(const Item&)>& inIsAnchor, Kind inKind,
               const Item& inNew, bool inBefore) {
  if (inIsAnchor(ioItem)) {
    PutAtEnd(ioItem, inKind, inNew, inBefore);
    return true;
  }
  for (std::size_t i = 0; i < ioItem.items.size(); ++i) {
    if (ioItem.kind == inKind && inIsAnchor(ioItem.items[i])) {
      const auto at = ioItem.items.begin() + static_cast<std::ptrdiff_t>(inBefore ? i : i + 1);
      ioItem.items.insert(at, inNew);
      return true;
    }
    if (PutBeside(ioItem.items[i], inIsAnchor, inKind, inNew, inBefore)) return true;
  }
  return false;
}

// An area at the side is a column, one above or below a row.
Kind KindOfArea(std::size_t inArea) {
  return inArea == workspace::kDockLeft || inArea == workspace::kDockRight ? Kind::kColumn
                                                                           : Kind::kRow;
}

std::vector<Item*> Roots(Layout& ioLayout) {
  std::vector<Item*> roots;
  for (Item& area : ioLayout.areas)
    roots.push_back(&area);
  for (Floating& floating : ioLayout.floating)
    roots.push_back(&floating.root);
  return roots;
}

// The largest part of the new layout that holds nothing but tabs of inOld, and one of them at
// least, is what has become of it.
std::function<bool(const Item&)> IsWhatBecameOf(const Item& inOld) {
  return [&inOld](const Item& inItem) {
    return !inItem.IsEmpty() &&
           !ForEachTab(inItem, [&](const Tab& inTab) { return !Holds(inOld, inTab.type); });
  };
}

// Where a tab stood: the way from the root down to its group, as indices.
bool FindPath(const Item& inItem, const UTF8String& inType, std::vector<std::size_t>& outPath) {
  if (inItem.kind == Kind::kGroup) return Holds(inItem, inType);
  for (std::size_t i = 0; i < inItem.items.size(); ++i) {
    outPath.push_back(i);
    if (FindPath(inItem.items[i], inType, outPath)) return true;
    outPath.pop_back();
  }
  return false;
}

bool JoinFormerGroup(Layout& ioLayout, const Item& inOldGroup, std::size_t inIndex,
                     const Tab& inTab) {
  const auto& tabs = inOldGroup.tabs;
  // The nearest before it, else the nearest behind it.
  for (std::size_t step = 1; step <= tabs.size(); ++step) {
    for (const bool before : {true, false}) {
      if (before ? step > inIndex : inIndex + step >= tabs.size()) continue;
      const UTF8String& mate = tabs[before ? inIndex - step : inIndex + step].type;
      Item* const group = FindGroup(ioLayout, mate);
      if (!group) continue;
      auto at = std::find_if(group->tabs.begin(), group->tabs.end(),
                             [&](const Tab& inEach) { return inEach.type == mate; });
      group->tabs.insert(before ? at + 1 : at, inTab);
      return true;
    }
  }
  return false;
}

bool StandBesideFormerNeighbour(Item& ioRoot, const Item& inOldRoot,
                                const std::vector<std::size_t>& inPath, const Item& inNew) {
  std::vector<const Item*> chain{&inOldRoot};
  for (const std::size_t index : inPath)
    chain.push_back(&chain.back()->items[index]);
  for (std::size_t level = inPath.size(); level-- > 0;) {
    const Item& parent = *chain[level];
    const std::size_t index = inPath[level];
    for (std::size_t step = 1; step <= parent.items.size(); ++step) {
      for (const bool behind : {true, false}) {
        if (behind ? step > index : index + step >= parent.items.size()) continue;
        const Item& neighbour = parent.items[behind ? index - step : index + step];
        if (PutBeside(ioRoot, IsWhatBecameOf(neighbour), parent.kind, inNew, !behind)) return true;
      }
    }
  }
  return false;
}

void AddMissingTab(Layout& ioLayout, const Layout& inOld, const Tab& inTab) {
  Layout old = inOld;  // for the operations that give access for change
  const std::vector<Item*> oldRoots = Roots(old);
  for (std::size_t i = 0; i < oldRoots.size(); ++i) {
    std::vector<std::size_t> path;
    if (!FindPath(*oldRoots[i], inTab.type, path)) continue;
    const Item& group = *FindGroup(old, inTab.type);
    const auto index = static_cast<std::size_t>(
        std::find_if(group.tabs.begin(), group.tabs.end(),
                     [&](const Tab& inEach) { return inEach.type == inTab.type; }) -
        group.tabs.begin());
    if (JoinFormerGroup(ioLayout, group, index, inTab)) return;
    const Item added = GroupOf(inTab, group.size);
    for (Item* const root : Roots(ioLayout)) {
      if (StandBesideFormerNeighbour(*root, *oldRoots[i], path, added)) return;
    }
    if (i >= ioLayout.areas.size()) {
      const Rect rect = old.floating[i - ioLayout.areas.size()].rect;
      ioLayout.floating.push_back(Floating{rect, added});
      return;
    }
    Item& area = ioLayout.areas[i];
    if (area.IsEmpty()) area.size = oldRoots[i]->size;
    PutAtEnd(area, KindOfArea(i), added, false);
    return;
  }
}

std::string Text(const Item& inItem, bool inWithSizes, bool inNested) {
  std::string text;
  if (inItem.kind == Kind::kGroup) {
    for (const Tab& tab : inItem.tabs) {
      if (!text.empty()) text += "|";
      if (!tab.open) text += "~";
      text.append(tab.type.begin(), tab.type.end());
      if (inItem.tabs.size() > 1 && tab.type == inItem.current) text += "*";
    }
  } else {
    for (const Item& item : inItem.items) {
      if (!text.empty()) text += inItem.kind == Kind::kRow ? " + " : " / ";
      text += Text(item, inWithSizes, true);
    }
    if (inNested) text = "(" + text + ")";
  }
  if (inWithSizes && inNested) text += ":" + std::to_string(inItem.size);
  return text;
}

}  // namespace

bool ForEachGroup(Item& ioItem, const std::function<bool(Item&)>& inFunction) {
  if (ioItem.kind == Kind::kGroup) return !ioItem.IsEmpty() && inFunction(ioItem);
  return std::any_of(ioItem.items.begin(), ioItem.items.end(),
                     [&](Item& ioChild) { return ForEachGroup(ioChild, inFunction); });
}

bool ForEachGroup(Layout& ioLayout, const std::function<bool(Item&)>& inFunction) {
  const std::vector<Item*> roots = Roots(ioLayout);
  return std::any_of(roots.begin(), roots.end(),
                     [&](Item* ioRoot) { return ForEachGroup(*ioRoot, inFunction); });
}

bool ForEachTab(const Item& inItem, const std::function<bool(const Tab&)>& inFunction) {
  return std::any_of(inItem.tabs.begin(), inItem.tabs.end(), inFunction) ||
         std::any_of(inItem.items.begin(), inItem.items.end(),
                     [&](const Item& inChild) { return ForEachTab(inChild, inFunction); });
}

bool HasOpenTab(const Item& inItem) {
  return ForEachTab(inItem, [](const Tab& inTab) { return inTab.open; });
}

Item* FindGroup(Layout& ioLayout, const UTF8String& inType) {
  Item* found = nullptr;
  ForEachGroup(ioLayout, [&](Item& ioGroup) {
    if (!Holds(ioGroup, inType)) return false;
    found = &ioGroup;
    return true;
  });
  return found;
}

Tab* FindTab(Layout& ioLayout, const UTF8String& inType) {
  Item* const group = FindGroup(ioLayout, inType);
  if (!group) return nullptr;
  return &*std::find_if(group->tabs.begin(), group->tabs.end(),
                        [&](const Tab& inTab) { return inTab.type == inType; });
}

const Tab* FrontTab(const Item& inGroup, const std::function<bool(const UTF8String&)>& inIsShown) {
  const Tab* front = nullptr;
  for (const Tab& tab : inGroup.tabs) {
    if (!tab.open || !inIsShown(tab.type)) continue;
    if (!front || tab.type == inGroup.current) front = &tab;
  }
  return front;
}

void Remove(Layout& ioLayout, const UTF8String& inType) {
  Item* const group = FindGroup(ioLayout, inType);
  if (!group) return;
  auto& tabs = group->tabs;
  const auto at = std::find_if(tabs.begin(), tabs.end(),
                               [&](const Tab& inTab) { return inTab.type == inType; });
  const auto next = tabs.erase(at);
  if (group->current == inType && !tabs.empty()) {
    group->current = (next == tabs.end() ? tabs.back() : *next).type;
  }
  Normalize(ioLayout);
}

void Insert(Layout& ioLayout, const UTF8String& inType, const TabPlace& inPlace) {
  if (inPlace.besideType != inType) Remove(ioLayout, inType);
  Item* const beside = FindGroup(ioLayout, inPlace.besideType);
  const Tab tab{inType, true};
  if (inPlace.where == TabPlace::kFloating) {
    ioLayout.floating.push_back(Floating{inPlace.floatingRect, GroupOf(tab, 0)});
  } else if (beside && inPlace.where == TabPlace::kTabWith && inPlace.besideType != inType) {
    beside->tabs.push_back(tab);
    beside->current = inType;
  } else if (beside && inPlace.where != TabPlace::kInArea && inPlace.besideType != inType) {
    const bool across = inPlace.where == TabPlace::kLeftOf || inPlace.where == TabPlace::kRightOf;
    const bool before = inPlace.where == TabPlace::kLeftOf || inPlace.where == TabPlace::kAbove;
    const auto isAnchor = [&](const Item& inItem) { return &inItem == beside; };
    // The two share what the one had.
    const int half = std::max(1, beside->size / 2);
    const Item added = GroupOf(tab, inPlace.size > 0 ? inPlace.size : half);
    for (Item* const root : Roots(ioLayout)) {
      if (PutBeside(*root, isAnchor, across ? Kind::kRow : Kind::kColumn, added, before)) break;
    }
  } else if (!beside || inPlace.besideType != inType) {
    const auto area = static_cast<std::size_t>(inPlace.area);
    const Kind kind = KindOfArea(area);
    const int size = kind == Kind::kColumn ? kDefaultWidth : kDefaultHeight;
    Item& root = ioLayout.areas[area];
    if (root.IsEmpty()) root.size = inPlace.size > 0 ? inPlace.size : size;
    PutAtEnd(root, kind, GroupOf(tab, size), false);
  }
  Normalize(ioLayout);
}

void AddMissing(Layout& ioLayout, const Layout& inOld,
                const std::function<bool(const UTF8String&)>& inStaysOpen) {
  std::vector<Tab> missing;
  Layout old = inOld;
  for (const Item* const root : Roots(old)) {
    ForEachTab(*root, [&](const Tab& inTab) {
      if (!FindGroup(ioLayout, inTab.type)) {
        missing.push_back(Tab{inTab.type, inTab.open && inStaysOpen(inTab.type)});
      }
      return false;
    });
  }
  for (const Tab& tab : missing)
    AddMissingTab(ioLayout, inOld, tab);
  Normalize(ioLayout);
}

void Normalize(Layout& ioLayout) {
  for (Item* const root : Roots(ioLayout))
    Normalize(*root);
  auto& floating = ioLayout.floating;
  floating.erase(std::remove_if(floating.begin(), floating.end(),
                                [](const Floating& inEach) { return inEach.root.IsEmpty(); }),
                 floating.end());
}

std::string AsText(const Layout& inLayout, bool inWithSizes, bool inHasCenter) {
  static const char* const kNames[] = {"left", "right", "top", "bottom"};
  std::string text;
  for (std::size_t i = 0; i < inLayout.areas.size(); ++i) {
    const Item& area = inLayout.areas[i];
    if (area.IsEmpty()) continue;
    text += std::string(kNames[i]) + (inWithSizes ? ":" + std::to_string(area.size) : "");
    text += "[" + Text(area, inWithSizes, false) + "] ";
  }
  if (inHasCenter) text += "center ";
  for (const Floating& floating : inLayout.floating) {
    const Rect& rect = floating.rect;
    text += "float[" + Text(floating.root, inWithSizes, false) + "@" + std::to_string(rect.x) +
            "," + std::to_string(rect.y);
    if (inWithSizes) text += " " + std::to_string(rect.width) + "x" + std::to_string(rect.height);
    text += "] ";
  }
  if (!text.empty()) text.pop_back();
  return text;
}

}  // namespace lumworkspace::layout
