// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommandCache.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <functional>
#include <list>
#include <tuple>

#include "lumcore/UTF16StringStream.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/utility/TextHash.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumcore::utility::ToLowerCase;
using uisupport::CommandRegistry;
using uisupport::KeyCommandManager;

namespace {

using View = lumcore::utility::TextHash::View;

void AppendShortcut(UTF16String& ioText, uisupport::KeyCommand& inMapping) {
  if (inMapping.GetIsRepeat()) return;
  if (!ioText.empty()) ioText += lumcore::utility::ToUTF16(", ");
  ioText += inMapping.GetAsString();
}

void SetShortcuts(CommandCache& ioCache, const UTF16String& inText) {
  ioCache.shortcuts = inText;
  if (ioCache.hasLower) ioCache.shortcutsLower = ToLowerCase(inText);
}

void NeedLower(CommandCache& ioCache) {
  if (ioCache.hasLower) return;
  ioCache.categoryLower = ToLowerCase(ioCache.category);
  ioCache.commandLower = ToLowerCase(ioCache.command);
  ioCache.shortcutsLower = ToLowerCase(ioCache.shortcuts);
  ioCache.descriptionLower = ToLowerCase(ioCache.description);
  ioCache.hasLower = true;
}

View CategoryIn(const UTF16String& inDisplayName) {
  const std::size_t dot = inDisplayName.find('.');
  return dot == UTF16String::npos ? View() : View(inDisplayName.data(), dot);
}

void SortByName(std::vector<CommandCaches::Category>& ioCategories) {
  using Entry = std::tuple<bool, UTF16String, CommandCaches::Category>;
  std::vector<Entry> entries;
  for (CommandCaches::Category& category : ioCategories)
    entries.emplace_back(category.name.empty(), ToLowerCase(category.name), std::move(category));
  const auto order = [](const Entry& inEntry) {
    return std::tie(std::get<0>(inEntry), std::get<1>(inEntry), std::get<2>(inEntry).name);
  };
  std::sort(entries.begin(), entries.end(),
            [&](const Entry& inA, const Entry& inB) { return order(inA) < order(inB); });
  ioCategories.clear();
  for (Entry& entry : entries)
    ioCategories.push_back(std::move(std::get<2>(entry)));
}

bool Holds(const UTF16String& inText, const UTF16String& inFilter) {
  return inText.find(inFilter) != UTF16String::npos;
}

}  // namespace

std::pair<UTF16String, UTF16String> SplitDisplayName(const UTF16String& inName) {
  const std::size_t dot = inName.find('.');
  if (dot == UTF16String::npos) return {};
  return {UTF16String(inName, 0, dot), UTF16String(inName, dot + 1)};
}

CommandCaches::CommandCaches() {
  const CommandRegistry& registry = CommandRegistry::Get();
  std::unordered_map<View, std::size_t, lumcore::utility::TextHash> places;
  for (auto it = registry.RegistryBegin(); it != registry.RegistryEnd(); ++it) {
    mRecords.emplace_hint(mRecords.end(), it->first, nullptr);
    const View name = CategoryIn(it->second.BorrowDisplayName());
    const auto [place, isNew] = places.emplace(name, mCategories.size());
    if (isNew) mCategories.push_back({UTF16String(name), {}});
    mCategories[place->second].commands.push_back(it->first);
  }
  SortByName(mCategories);
}

CommandCaches::~CommandCaches() = default;

CommandCache& CommandCaches::Get(int inCommand) const {
  const auto found = mRecords.find(inCommand);
  LUM_INPUT_CONTRACT(found != mRecords.end());
  boost::shared_ptr<CommandCache>& record = found->second;
  if (record) return *record;
  record = boost::make_shared<CommandCache>();
  record->commandID = inCommand;
  const auto shortcuts = mShortcuts.find(inCommand);
  if (shortcuts != mShortcuts.end()) record->shortcuts = shortcuts->second;
  const CommandRegistry& registry = CommandRegistry::Get();
  const auto command = registry.FindCommandByID(inCommand);
  if (command == registry.RegistryEnd()) return *record;
  std::tie(record->category, record->command) =
      SplitDisplayName(command->second.BorrowDisplayName());
  record->description = command->second.GetDescription();
  return *record;
}

std::vector<CommandCache*> CommandCaches::GetSorted(const Category& inCategory) const {
  std::vector<CommandCache*> records;
  records.reserve(inCategory.commands.size());
  for (const int command : inCategory.commands) {
    records.push_back(&Get(command));
    NeedLower(*records.back());
  }
  std::stable_sort(records.begin(), records.end(),
                   [](const CommandCache* inA, const CommandCache* inB) {
                     return inA->commandLower < inB->commandLower;
                   });
  return records;
}

void CommandCaches::Refresh(int inCommand) {
  std::list<uisupport::KeyCommand*> mappings;
  KeyCommandManager::Get().GetShortcutList(inCommand, mappings);
  UTF16String text;
  for (uisupport::KeyCommand* mapping : mappings)
    AppendShortcut(text, *mapping);
  mShortcuts[inCommand] = text;
  SetShortcuts(Get(inCommand), text);
}

// In one walk over the mappings: asking for those of each command walks over all of them each time.
void CommandCaches::RefreshAll() {
  mShortcuts.clear();
  for (uisupport::KeyCommand* mapping : KeyCommandManager::Get().GetGlobalMappings())
    AppendShortcut(mShortcuts[mapping->GetCommandID()], *mapping);
  for (auto& [command, record] : mRecords) {
    if (!record) continue;
    const auto found = mShortcuts.find(command);
    SetShortcuts(*record, found == mShortcuts.end() ? UTF16String() : found->second);
  }
}

bool HasText(CommandCache& ioCache, const UTF16String& inFilter, bool inMatchCase) {
  if (inFilter.empty()) return true;
  if (inMatchCase) {
    return Holds(ioCache.category, inFilter) || Holds(ioCache.command, inFilter) ||
           Holds(ioCache.shortcuts, inFilter) || Holds(ioCache.description, inFilter);
  }
  NeedLower(ioCache);
  return Holds(ioCache.categoryLower, inFilter) || Holds(ioCache.commandLower, inFilter) ||
         Holds(ioCache.shortcutsLower, inFilter) || Holds(ioCache.descriptionLower, inFilter);
}

UTF16String GetShownName(const CommandCache& inCache) {
  if (!inCache.command.empty()) return inCache.command;
  const CommandRegistry& registry = CommandRegistry::Get();
  const auto found = registry.FindCommandByID(inCache.commandID);
  return found == registry.RegistryEnd() ? UTF16String() : found->second.GetDisplayName();
}

UTF16String MakeShortcutList(const CommandCaches& inCaches) {
  lumcore::UTF16StringStream stream;
  for (const CommandCaches::Category& category : inCaches.GetCategories()) {
    stream << category.name << "\n";
    for (const CommandCache* cache : inCaches.GetSorted(category))
      stream << "  " << GetShownName(*cache) << "\t" << cache->shortcuts << "\n";
  }
  return stream.str();
}

}  // namespace vek::sharedui
