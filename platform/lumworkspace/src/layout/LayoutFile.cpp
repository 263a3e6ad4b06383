// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "layout/LayoutFile.h"

#include <cmath>
#include <cstdint>
#include <set>
#include <utility>
#include <vector>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"

namespace lumworkspace::layout {

namespace {

using lumcore::UTF16String;
using lumcore::proplist::PropList;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;
using Kind = Item::Kind;

constexpr std::int32_t kVersion = 1;
// Beyond this no screen reaches, and sums of sizes stay whole numbers.
constexpr std::int32_t kLargestSize = 1 << 20;
constexpr const char* kAreaKeys[] = {"Left", "Right", "Top", "Bottom"};
constexpr const char* kMaximizedMainKey = "MainWindowMaximized";
constexpr const char* kMaximizedKey = "Maximized";
constexpr const char* kKinds[] = {"group", "row", "column"};

PropList ItemToList(const Item& inItem) {
  PropList list;
  list.Set("Kind", ToUTF8(kKinds[static_cast<int>(inItem.kind)]));
  list.Set<std::int32_t>("Size", inItem.size);
  if (inItem.kind == Kind::kGroup) {
    std::vector<UTF8String> tabs;
    std::vector<UTF8String> closed;
    for (const Tab& tab : inItem.tabs) {
      tabs.push_back(tab.type);
      if (!tab.open) closed.push_back(tab.type);
    }
    list.Set("Tabs", tabs);
    if (!closed.empty()) list.Set("Closed", closed);
    list.Set("Current", inItem.current);
  } else {
    std::vector<PropList> items;
    for (const Item& item : inItem.items)
      items.push_back(ItemToList(item));
    list.Set("Items", std::move(items));
  }
  return list;
}

lumcore::geom::RectT<float> ToFloat(const Rect& inRect) {
  return lumcore::geom::RectT<float>(static_cast<float>(inRect.x), static_cast<float>(inRect.y),
                                     static_cast<float>(inRect.width),
                                     static_cast<float>(inRect.height));
}

class Reader {
 public:
  explicit Reader(const UTF16String& inName) : mName(inName) {}

  Layout Read(const PropList& inList) {
    const std::int32_t version = inList.Get<std::int32_t>("Version", 0);
    if (version < 1) {
      Fail("$$$/lumworkspace/Error/NoLayout=\"@0\" is no workspace: it has no version.");
    }
    if (version > kVersion) {
      Fail(
          "$$$/lumworkspace/Error/LaterVersion=\"@0\" is a workspace of version @1, from a later "
          "program.",
          std::to_string(version));
    }
    Layout layout;
    layout.width = ReadSize(inList, "Width");
    layout.height = ReadSize(inList, "Height");
    if (inList.Has("MainWindow")) layout.mainWindow = ReadRect(inList, "MainWindow");
    layout.mainMaximized = inList.Get(kMaximizedMainKey, false);
    for (std::size_t i = 0; i < layout.areas.size(); ++i) {
      if (inList.Has(kAreaKeys[i])) layout.areas[i] = ReadItem(Sub(inList, kAreaKeys[i]));
    }
    if (inList.Has("Floating")) {
      for (const PropList& each : Lists(inList, "Floating")) {
        layout.floating.push_back(Floating{ReadRect(each, "Rect"), ReadItem(Sub(each, "Root")),
                                           each.Get(kMaximizedKey, false)});
      }
    }
    Normalize(layout);
    return layout;
  }

 private:
  [[noreturn]] void Fail(const char* inKey, const std::string& inDetail = {}) const {
    throw lumcore::config::Error(lumcore::utility::ReplaceInString(
        lumcore::config::Localizer::Get()->GetLocalizedString(inKey), {mName, ToUTF16(inDetail)}));
  }
  [[noreturn]] void FailValue(const char* inKey) const {
    Fail(
        "$$$/lumworkspace/Error/BadValue=The workspace \"@0\" is damaged: the value of \"@1\" is "
        "missing or cannot be.",
        inKey);
  }

  const PropList& Sub(const PropList& inList, const char* inKey) const {
    const PropList* const sub = inList.GetSubList(inKey);
    if (!sub) FailValue(inKey);
    return *sub;
  }

  const std::vector<PropList>& Lists(const PropList& inList, const char* inKey) const {
    const auto* const lists = inList.Find<std::vector<PropList>>(inKey);
    if (!lists) FailValue(inKey);
    return *lists;
  }

  int ReadSize(const PropList& inList, const char* inKey) const {
    const std::int32_t size = inList.Get<std::int32_t>(inKey, -1);
    if (size < 0 || size > kLargestSize) FailValue(inKey);
    return size;
  }

  Rect ReadRect(const PropList& inList, const char* inKey) const {
    lumcore::geom::RectT<float> rect;
    if (!lumcore::proplist::utils::ReadRect32(inList, inKey, rect)) FailValue(inKey);
    for (const float value : {rect.x, rect.y, rect.width, rect.height}) {
      if (!(std::fabs(value) <= static_cast<float>(kLargestSize))) FailValue(inKey);
    }
    if (rect.width < 1 || rect.height < 1) FailValue(inKey);
    return Rect(static_cast<int>(rect.x), static_cast<int>(rect.y), static_cast<int>(rect.width),
                static_cast<int>(rect.height));
  }

  Item ReadItem(const PropList& inList) {
    const UTF8String kind = inList.Get("Kind", UTF8String());
    Item item;
    item.size = ReadSize(inList, "Size");
    if (kind == ToUTF8(kKinds[0])) {
      ReadTabs(inList, item);
      return item;
    }
    item.kind = kind == ToUTF8(kKinds[1]) ? Kind::kRow : Kind::kColumn;
    if (item.kind == Kind::kColumn && kind != ToUTF8(kKinds[2])) FailValue("Kind");
    for (const PropList& each : Lists(inList, "Items"))
      item.items.push_back(ReadItem(each));
    if (item.items.empty()) FailValue("Items");
    return item;
  }

  void ReadTabs(const PropList& inList, Item& outGroup) {
    const auto tabs = inList.Get("Tabs", std::vector<UTF8String>());
    const auto closed = inList.Get("Closed", std::vector<UTF8String>());
    const std::set<UTF8String> closedTypes(closed.begin(), closed.end());
    if (tabs.empty()) FailValue("Tabs");
    for (const UTF8String& type : tabs) {
      if (type.empty()) FailValue("Tabs");
      if (!mTypes.insert(type).second) {
        Fail(
            "$$$/lumworkspace/Error/TwicePlaced=The workspace \"@0\" is damaged: the panel \"@1\" "
            "stands in it twice.",
            lumcore::utility::ToStdString(type));
      }
      outGroup.tabs.push_back(Tab{type, closedTypes.count(type) == 0});
    }
    outGroup.current = inList.Get("Current", tabs.front());
  }

  const UTF16String& mName;
  std::set<UTF8String> mTypes;
};

}  // namespace

bool IsOfLaterVersion(const PropList& inList) {
  return inList.Get<std::int32_t>("Version", 0) > kVersion;
}

PropList ToPropList(const Layout& inLayout) {
  PropList list;
  list.Set("Version", kVersion);
  list.Set<std::int32_t>("Width", inLayout.width);
  list.Set<std::int32_t>("Height", inLayout.height);
  using lumcore::proplist::utils::WriteRect32;
  if (!inLayout.mainWindow.IsEmpty()) {
    WriteRect32(list, "MainWindow", ToFloat(inLayout.mainWindow));
  }
  if (inLayout.mainMaximized) list.Set(kMaximizedMainKey, true);
  for (std::size_t i = 0; i < inLayout.areas.size(); ++i) {
    if (inLayout.areas[i].IsEmpty()) continue;
    list.CreateSubList(kAreaKeys[i]) = ItemToList(inLayout.areas[i]);
  }
  std::vector<PropList> floating;
  for (const Floating& each : inLayout.floating) {
    PropList window;
    WriteRect32(window, "Rect", ToFloat(each.rect));
    if (each.maximized) window.Set(kMaximizedKey, true);
    window.CreateSubList("Root") = ItemToList(each.root);
    floating.push_back(std::move(window));
  }
  if (!floating.empty()) list.Set("Floating", std::move(floating));
  return list;
}

Layout FromPropList(const PropList& inList, const UTF16String& inName) {
  return Reader(inName).Read(inList);
}

}  // namespace lumworkspace::layout
