// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/proplist/Utils.h"

#include <string>
#include <utility>

#include "filesupport/ThrowFileError.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "proplist/Reader.h"
#include "proplist/Writer.h"

namespace lumcore::proplist::utils {

namespace {

// What a sub-list stands for, where it is a value of its own.
constexpr const char* kKindKey = ".aptype";
constexpr std::int32_t kRectangle = 1;
constexpr std::int32_t kChoice = 2;

// The sub-list, where it is one of that kind.
const PropList* FindKind(const PropList& inList, Key inKey, std::int32_t inKind) {
  const PropList* const list = inList.GetSubList(inKey);
  const std::int32_t* const kind = list ? list->Find<std::int32_t>(kKindKey) : nullptr;
  return kind && *kind == inKind ? list : nullptr;
}

// The recursion goes no deeper than the file, which has its limit.
void TakeOver(const PropList& inFrom, PropList& ioTo) {
  for (const PropList::Entry& entry : inFrom) {
    const auto* const from = std::get_if<PropList>(&entry.value);
    PropList* const to = ioTo.GetSubList(entry.key);
    if (from && to) {
      TakeOver(*from, *to);
    } else {
      std::visit([&](const auto& inValue) { ioTo.Set(entry.key, inValue); }, entry.value);
    }
  }
}

}  // namespace

void LoadPropList(const filesupport::File& inFile, PropList& ioList, bool inKeepOthers) {
  LoadPropListFromBuffer(inFile.ReadAll(), utility::ToUTF16(inFile.GetPath()), ioList,
                         inKeepOthers);
}

void LoadPropListFromBuffer(const UTF8String& inBytes, const UTF16String& inName, PropList& ioList,
                            bool inKeepOthers) {
  PropList loaded = ReadXML(inBytes, inName);
  if (inKeepOthers) {
    TakeOver(loaded, ioList);
  } else {
    ioList = std::move(loaded);
  }
}

void SavePropList(const filesupport::File& inFile, const PropList& inList) {
  std::string xml;
  if (!WriteXML(inList, xml)) {
    filesupport::ThrowFileError(
        "$$$/lumcore/proplist/Error/SaveTooDeep=Cannot save \"@0\": Its lists are nested too deep",
        inFile.GetPath());
  }
  inFile.ReplaceContents(xml);
}

UTF8String SavePropListToBuffer(const PropList& inList) {
  std::string xml;
  if (!WriteXML(inList, xml)) {
    config::ThrowError(
        "$$$/lumcore/proplist/Error/TooDeep=The lists are nested too deep to be saved");
  }
  return UTF8String(xml.begin(), xml.end());
}

bool ReadRect32(const PropList& inList, Key inKey, geom::RectT<float>& outRect) {
  const PropList* const list = FindKind(inList, inKey, kRectangle);
  if (!list) return false;
  const float* const left = list->Find<float>("left");
  const float* const top = list->Find<float>("top");
  const float* const width = list->Find<float>("width");
  const float* const height = list->Find<float>("height");
  if (!left || !top || !width || !height) return false;
  outRect = geom::RectT<float>(*left, *top, *width, *height);
  return true;
}

void WriteRect32(PropList& ioList, Key inKey, const geom::RectT<float>& inRect) {
  PropList& list = ioList.CreateSubList(inKey);
  list.Set(kKindKey, kRectangle);
  list.Set("height", inRect.height);
  list.Set("left", inRect.x);
  list.Set("top", inRect.y);
  list.Set("width", inRect.width);
}

bool ReadChoice(const PropList& inList, Key inKey, Choice& outChoice) {
  const PropList* const list = FindKind(inList, inKey, kChoice);
  if (!list) return false;
  const auto* const items = list->Find<std::vector<UTF16String>>("items");
  const auto* const selected = list->Find<std::int32_t>("selected");
  if (!items || !selected) return false;
  outChoice = {*items, *selected};
  return true;
}

void WriteChoice(PropList& ioList, Key inKey, const Choice& inChoice) {
  PropList& list = ioList.CreateSubList(inKey);
  list.Set(kKindKey, kChoice);
  list.Set("items", inChoice.items);
  list.Set("selected", inChoice.selected);
}

}  // namespace lumcore::proplist::utils
