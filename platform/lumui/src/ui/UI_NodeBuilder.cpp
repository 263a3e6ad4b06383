// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/UI_NodeBuilder.h"

#include <string>
#include <vector>

#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/proplist/PropList.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/UI_NodeAdapter.h"
#include "ui/NodePeer.h"

namespace lumui::ui {

namespace {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::proplist::PropList;
using lumcore::utility::ReplaceInString;
using lumcore::utility::ToUTF16;

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

std::string Numbered(const char* inWord, std::size_t inNumber) {
  return inWord + std::to_string(inNumber);
}

[[noreturn]] void ThrowMissing(const NodeSource& inSource, const std::string& inKey) {
  inSource.ThrowError(ReplaceInString(
      Localized("$$$/lumui/nodes/Error/Missing=\"@0\" is missing, or of another type"),
      {ToUTF16(inKey)}));
}

const PropList& NeedList(const PropList& inList, const std::string& inKey,
                         const NodeSource& inSource) {
  const PropList* const list = inList.GetSubList(inKey.c_str());
  if (!list) ThrowMissing(inSource, inKey);
  return *list;
}

// The numbered lists of a list that has their count.
std::vector<const PropList*> Counted(const PropList& inList, const char* inWord,
                                     const NodeSource& inSource) {
  const auto* const count = inList.Find<std::uint32_t>("count");
  if (!count) ThrowMissing(inSource, "count");
  std::vector<const PropList*> lists;
  for (std::uint32_t i = 0; i < *count; ++i)
    lists.push_back(&NeedList(inList, Numbered(inWord, i), inSource));
  return lists;
}

// What is below the node is never copied: it may be the whole archive.
PropList WithoutChildren(const PropList& inSection) {
  static const UTF8String kChildren = lumcore::utility::ToUTF8("children");
  PropList section;
  for (const PropList::Entry& entry : inSection) {
    if (entry.key == kChildren) continue;
    std::visit([&](const auto& inValue) { section.Set(entry.key, inValue); }, entry.value);
  }
  return section;
}

// Known before any node is made, so that the errors of its making can name it.
UTF16String IDIn(const PropList& inNode) {
  const PropList* const sections = inNode.GetSubList("sections");
  if (!sections) return UTF16String();
  for (const PropList::Entry& entry : *sections) {
    const auto* const section = std::get_if<PropList>(&entry.value);
    if (section && section->Find<UTF16String>("id")) return *section->Find<UTF16String>("id");
  }
  return UTF16String();
}

void CollectIDs(UI_Node& inNode, UI_NodeBuilder::NodeMap& ioNodes) {
  if (!inNode.UI_GetNodeID().empty()) ioNodes.emplace(inNode.UI_GetNodeID(), &inNode);
  for (std::size_t i = 0; i < inNode.UI_GetChildCount(); ++i)
    CollectIDs(*inNode.UI_GetChild(i), ioNodes);
}

}  // namespace

UI_NodeBuilder::UI_NodeBuilder(const UTF8String& inArchive, const UTF16String& inName)
    : mArchive(inArchive), mName(inName) {}

UI_NodeBuilder::UI_NodeBuilder(const boost::shared_ptr<const PropList>& inArchive,
                               const UTF16String& inName)
    : mName(inName), mRead(inArchive) {}

boost::intrusive_ptr<UI_Node> UI_NodeBuilder::Build(const drawbot::SupplierInterface* inSupplier,
                                                    NodeMap& outNodes,
                                                    const CustomNodeFunction& inCustomNode) const {
  outNodes.clear();
  if (mRead) return BuildRoot(*mRead, inSupplier, outNodes, inCustomNode);
  if (mArchive.empty()) return nullptr;
  PropList archive;
  lumcore::proplist::utils::LoadPropListFromBuffer(mArchive, mName, archive, false);
  return BuildRoot(archive, inSupplier, outNodes, inCustomNode);
}

boost::intrusive_ptr<UI_Node> UI_NodeBuilder::BuildRoot(
    const PropList& inArchive, const drawbot::SupplierInterface* inSupplier, NodeMap& outNodes,
    const CustomNodeFunction& inCustomNode) const {
  const auto* const version = inArchive.Find<std::uint32_t>("UINodeArchive");
  const PropList* const rootList = inArchive.GetSubList("root");
  if (!version || *version != kArchiveVersion || !rootList) {
    throw lumcore::config::Error(ReplaceInString(
        Localized("$$$/lumui/nodes/Error/NoArchive=@0: this is no archive of nodes of version 1"),
        {mName}));
  }
  const auto root = BuildNode(*rootList, ToUTF16("root"), inSupplier, inCustomNode);
  CollectIDs(*root, outNodes);
  return root;
}

boost::intrusive_ptr<UI_Node> UI_NodeBuilder::BuildNode(
    const PropList& inList, const UTF16String& inPlace,
    const drawbot::SupplierInterface* inSupplier, const CustomNodeFunction& inCustomNode) const {
  NodeSource source{mName, inPlace, mResources, inSupplier};
  const UTF16String id = IDIn(inList);
  if (!id.empty()) source.place += ToUTF16(" \"") + id + ToUTF16("\"");
  const auto* const name = inList.Find<UTF16String>("adapter");
  if (!name) ThrowMissing(source, "adapter");
  const auto& registry = UI_NodeAdapterRegistry::Get();
  const auto* const adapter = registry.Find(lumcore::utility::ToStdString(*name));
  boost::intrusive_ptr<UI_Node> node;
  if (adapter) node = adapter->CreateNode(source);
  if (!node && inCustomNode) node = inCustomNode(*name);
  if (!node) {
    source.ThrowError(ReplaceInString(
        Localized("$$$/lumui/nodes/Error/Adapter=nobody makes nodes of the class \"@0\""),
        {*name}));
  }
  const auto sections = Counted(NeedList(inList, "sections", source), "section-", source);
  // The most derived class stands first and is set last.
  for (auto section = sections.rbegin(); section != sections.rend(); ++section) {
    const auto* const sectionName = (*section)->Find<UTF16String>("sectionName");
    if (!sectionName) ThrowMissing(source, "sectionName");
    const auto* const part = registry.Find(lumcore::utility::ToStdString(*sectionName));
    if (part && part->Fits(*node)) part->SetProperties(*node, UI_NodeProperties(**section, source));
  }
  auto archived = std::make_unique<PropList>();
  archived->Set("adapter", *name);
  std::vector<PropList> withoutChildren;
  withoutChildren.reserve(sections.size());
  for (const PropList* section : sections)
    withoutChildren.push_back(WithoutChildren(*section));
  archived->Set("sections", std::move(withoutChildren));
  node->GetPeer()->SetArchived(std::move(archived));
  for (const PropList* section : sections)
    BuildChildren(*node, *section, source, inPlace, inCustomNode);
  return node;
}

void UI_NodeBuilder::BuildChildren(UI_Node& ioNode, const PropList& inSection,
                                   const NodeSource& inSource, const UTF16String& inPlace,
                                   const CustomNodeFunction& inCustomNode) const {
  if (!inSection.Has("children")) return;
  const auto children = Counted(NeedList(inSection, "children", inSource), "child-", inSource);
  for (std::size_t i = 0; i < children.size(); ++i) {
    const UTF16String place = inPlace + ToUTF16(Numbered("/child-", i));
    ioNode.UI_AddChild(BuildNode(*children[i], place, inSource.supplier, inCustomNode));
  }
}

}  // namespace lumui::ui
