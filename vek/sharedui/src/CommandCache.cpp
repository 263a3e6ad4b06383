// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommandCache.h"

#include <algorithm>
#include <boost/make_shared.hpp>
#include <functional>
#include <string_view>
#include <tuple>
#include <unordered_map>
#include <vector>

#include "lumcore/UTF16StringStream.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/CommandRegistry.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::sharedui {

using lumcore::UTF16String;
using lumcore::utility::ToLowerCase;
using uisupport::CommandRegistry;
using uisupport::KeyCommandManager;

namespace {

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

struct HashOfUnits {
  std::size_t operator()(const UTF16String& inText) const {
    return std::hash<std::string_view>()(std::string_view(
        reinterpret_cast<const char*>(inText.data()), inText.size() * sizeof(inText[0])));
  }
};

bool Holds(const UTF16String& inText, const UTF16String& inFilter) {
  return inText.find(inFilter) != UTF16String::npos;
}

}  // namespace

std::pair<UTF16String, UTF16String> SplitDisplayName(const UTF16String& inName) {
  const std::size_t dot = inName.find('.');
  if (dot == UTF16String::npos) return {};
  return {UTF16String(inName, 0, dot), UTF16String(inName, dot + 1)};
}

CommandCaches MakeCommandCaches() {
  const CommandRegistry& registry = CommandRegistry::Get();
  CommandCaches caches;
  for (auto it = registry.RegistryBegin(); it != registry.RegistryEnd(); ++it) {
    const auto cache = boost::make_shared<CommandCache>();
    cache->commandID = it->first;
    std::tie(cache->category, cache->command) = SplitDisplayName(it->second.GetDisplayName());
    cache->description = it->second.GetDescription();
    caches.emplace_hint(caches.end(), it->first, cache);
  }
  RefreshAllShortcuts(caches);
  return caches;
}

void RefreshShortcuts(CommandCache& ioCache) {
  std::list<uisupport::KeyCommand*> mappings;
  KeyCommandManager::Get().GetShortcutList(ioCache.commandID, mappings);
  UTF16String text;
  for (uisupport::KeyCommand* mapping : mappings)
    AppendShortcut(text, *mapping);
  SetShortcuts(ioCache, text);
}

// In one walk over the mappings: asking for those of each command walks over all of them each time.
void RefreshAllShortcuts(CommandCaches& ioCaches) {
  std::unordered_map<int, UTF16String> texts;
  for (uisupport::KeyCommand* mapping : KeyCommandManager::Get().GetGlobalMappings())
    AppendShortcut(texts[mapping->GetCommandID()], *mapping);
  for (auto& [command, cache] : ioCaches) {
    const auto found = texts.find(command);
    if (found != texts.end()) {
      SetShortcuts(*cache, found->second);
    } else if (!cache->shortcuts.empty()) {
      SetShortcuts(*cache, UTF16String());
    }
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

std::vector<CategoryOfCommands> GroupedByCategory(const CommandCaches& inCaches) {
  std::unordered_map<UTF16String, CategoryOfCommands, HashOfUnits> byName;
  for (const auto& [command, cache] : inCaches)
    byName[cache->category].push_back(cache.get());
  std::vector<CategoryOfCommands> categories;
  categories.reserve(byName.size());
  for (auto& [name, commands] : byName)
    categories.push_back(std::move(commands));
  const auto order = [](const CategoryOfCommands& inCategory) {
    const UTF16String& category = inCategory.front()->category;
    return std::make_tuple(category.empty(), ToLowerCase(category), std::cref(category));
  };
  std::sort(categories.begin(), categories.end(),
            [&](const auto& inA, const auto& inB) { return order(inA) < order(inB); });
  return categories;
}

void SortByName(CategoryOfCommands& ioCategory) {
  for (CommandCache* cache : ioCategory)
    NeedLower(*cache);
  std::stable_sort(ioCategory.begin(), ioCategory.end(),
                   [](const CommandCache* inA, const CommandCache* inB) {
                     return inA->commandLower < inB->commandLower;
                   });
}

UTF16String GetShownName(const CommandCache& inCache) {
  if (!inCache.command.empty()) return inCache.command;
  const CommandRegistry& registry = CommandRegistry::Get();
  const auto found = registry.FindCommandByID(inCache.commandID);
  return found == registry.RegistryEnd() ? UTF16String() : found->second.GetDisplayName();
}

UTF16String MakeShortcutList(const CommandCaches& inCaches) {
  lumcore::UTF16StringStream stream;
  for (CategoryOfCommands& category : GroupedByCategory(inCaches)) {
    SortByName(category);
    stream << category.front()->category << "\n";
    for (const CommandCache* cache : category)
      stream << "  " << GetShownName(*cache) << "\t" << cache->shortcuts << "\n";
  }
  return stream.str();
}

}  // namespace vek::sharedui
