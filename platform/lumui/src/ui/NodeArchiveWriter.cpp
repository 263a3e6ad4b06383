// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <string>
#include <utility>
#include <vector>

#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "lumui/ui/UI_NodeBuilder.h"
#include "ui/NodePeer.h"

namespace lumui::ui {

namespace {

using lumcore::UTF16String;
using lumcore::proplist::PropList;
using lumcore::utility::ToUTF16;
using Sections = std::vector<PropList>;

constexpr const char* kNameKey = "sectionName";

std::string Numbered(const char* inWord, std::size_t inNumber) {
  return inWord + std::to_string(inNumber);
}

// Archives spell some keys with a capital or without; both are the same property.
bool HasInAnyCase(const PropList& inSection, const lumcore::UTF8String& inKey) {
  const auto folded = [](const lumcore::UTF8String& inText) {
    return lumcore::utility::FoldCase(lumcore::utility::ToUTF16(inText));
  };
  for (const PropList::Entry& entry : inSection) {
    if (folded(entry.key) == folded(inKey)) return true;
  }
  return false;
}

template <class Text>
bool ReadsAs(const PropList& inArchived, const lumcore::UTF8String& inKey, const Text& inNow) {
  const NodeSource nowhere;
  const std::string key(inKey.begin(), inKey.end());
  Text text;
  return UI_NodeProperties(inArchived, nowhere).Read(key.c_str(), text) && text == inNow;
}

// Texts come back with their keys, as long as they are what the archive made of them.
void RestoreText(const PropList& inArchived, const PropList::Entry& inEntry, PropList& ioSection) {
  using Texts = std::vector<UTF16String>;
  const auto* const text = std::get_if<UTF16String>(&inEntry.value);
  const auto* const now = ioSection.Find<UTF16String>(inEntry.key);
  if (text && now && ReadsAs(inArchived, inEntry.key, *now)) ioSection.Set(inEntry.key, *text);
  const auto* const texts = std::get_if<Texts>(&inEntry.value);
  const auto* const nows = ioSection.Find<Texts>(inEntry.key);
  if (texts && nows && ReadsAs(inArchived, inEntry.key, *nows)) ioSection.Set(inEntry.key, *texts);
  const auto* const list = std::get_if<PropList>(&inEntry.value);
  PropList* const choice = ioSection.GetSubList(inEntry.key);
  if (!list || !choice) return;
  for (const PropList::Entry& part : *list)
    RestoreText(*list, part, *choice);
}

void RestoreSection(const PropList& inArchived, PropList& ioSection) {
  for (const PropList::Entry& entry : inArchived) {
    if (HasInAnyCase(ioSection, entry.key)) {
      RestoreText(inArchived, entry, ioSection);
    } else {
      std::visit([&](const auto& inValue) { ioSection.Set(entry.key, inValue); }, entry.value);
    }
  }
}

const PropList* FindSection(const Sections& inSections, const UTF16String& inName) {
  for (const PropList& section : inSections) {
    if (section.Get(kNameKey, UTF16String()) == inName) return &section;
  }
  return nullptr;
}

class NodeWriter {
 public:
  NodeWriter(const UI_Node& inNode, PropList& outList) : mNode(inNode), mList(outList) {
    if (const PropList* const archived = inNode.GetPeer()->GetArchived()) {
      mArchivedName = archived->Get("adapter", UTF16String());
      mArchived = archived->Get("sections", Sections());
    }
  }

  void Write() {
    const auto& registry = UI_NodeAdapterRegistry::Get();
    const UI_NodeAdapterBase* adapter = &registry.FindFor(mNode);
    // A class that only the host makes keeps its name and what it has in the archive.
    const bool foreign =
        !mArchivedName.empty() && !registry.Find(lumcore::utility::ToStdString(mArchivedName));
    mList.Set("adapter", foreign ? mArchivedName : ToUTF16(adapter->GetNodeClass()));
    PropList& sections = mList.CreateSubList("sections");
    sections.Set("count", std::uint32_t(0));
    for (const PropList& section : mArchived) {
      const auto name = section.Get(kNameKey, UTF16String());
      if (registry.Find(lumcore::utility::ToStdString(name))) continue;
      sections.CreateSubList(Numbered("section-", mCount++).c_str()) = section;
    }
    for (; adapter; adapter = registry.Find(adapter->GetBaseName()))
      WriteSection(*adapter, sections.CreateSubList(Numbered("section-", mCount++).c_str()));
    sections.Set("count", mCount);
  }

 private:
  void WriteSection(const UI_NodeAdapterBase& inAdapter, PropList& outSection) {
    const UTF16String name = ToUTF16(inAdapter.GetNodeClass());
    outSection.Set(kNameKey, name);
    inAdapter.GetProperties(mNode, outSection);
    if (const PropList* const archived = FindSection(mArchived, name)) {
      RestoreSection(*archived, outSection);
    }
    if (!inAdapter.GetBaseName().empty()) return;
    const bool makesItsChildren = UI_NodeAdapterRegistry::Get().FindFor(mNode).MakesItsChildren();
    const std::size_t childCount = makesItsChildren ? 0 : mNode.UI_GetChildCount();
    PropList& children = outSection.CreateSubList("children");
    children.Set("count", static_cast<std::uint32_t>(childCount));
    for (std::size_t i = 0; i < childCount; ++i) {
      PropList& child = children.CreateSubList(Numbered("child-", i).c_str());
      NodeWriter(*mNode.UI_GetChild(i), child).Write();
    }
  }

  const UI_Node& mNode;
  PropList& mList;
  UTF16String mArchivedName;
  Sections mArchived;
  std::uint32_t mCount = 0;
};

}  // namespace

lumcore::UTF8String UI_NodeBuilder::Write(const UI_Node& inRoot) {
  PropList archive;
  archive.Set("UINodeArchive", kArchiveVersion);
  NodeWriter(inRoot, archive.CreateSubList("root")).Write();
  return lumcore::proplist::utils::SavePropListToBuffer(archive);
}

}  // namespace lumui::ui
