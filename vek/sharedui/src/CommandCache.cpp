// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/CommandCache.h"

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
  ioCache.shortcutsLower = ToLowerCase(inText);
}

bool Holds(const UTF16String& inText, const UTF16String& inFilter) {
  return inText.find(inFilter) != UTF16String::npos;
}

}  // namespace

std::pair<UTF16String, UTF16String> SplitDisplayName(const UTF16String& inName) {
  const std::size_t dot = inName.find('.');
  if (dot == UTF16String::npos) return {};
  return {inName.substr(0, dot), inName.substr(dot + 1)};
}

CommandCaches MakeCommandCaches() {
  const CommandRegistry& registry = CommandRegistry::Get();
  CommandCaches caches;
  for (auto it = registry.RegistryBegin(); it != registry.RegistryEnd(); ++it) {
    const boost::shared_ptr<CommandCache> cache(new CommandCache);
    cache->commandID = it->first;
    std::tie(cache->category, cache->command) = SplitDisplayName(it->second.GetDisplayName());
    UTF16String name;
    registry.CommandLookup(it->first, name, cache->description);
    cache->categoryLower = ToLowerCase(cache->category);
    cache->commandLower = ToLowerCase(cache->command);
    cache->descriptionLower = ToLowerCase(cache->description);
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

bool HasText(const CommandCache& inCache, const UTF16String& inFilter, bool inMatchCase) {
  if (inFilter.empty()) return true;
  if (inMatchCase) {
    return Holds(inCache.category, inFilter) || Holds(inCache.command, inFilter) ||
           Holds(inCache.shortcuts, inFilter) || Holds(inCache.description, inFilter);
  }
  return Holds(inCache.categoryLower, inFilter) || Holds(inCache.commandLower, inFilter) ||
         Holds(inCache.shortcutsLower, inFilter) || Holds(inCache.descriptionLower, inFilter);
}

UTF16String MakeShortcutList(const CommandCaches& inCaches) {
  std::map<UTF16String, std::vector<const CommandCache*>> categories;
  for (const auto& [command, cache] : inCaches)
    categories[cache->category].push_back(cache.get());
  lumcore::UTF16StringStream stream;
  for (const auto& [category, commands] : categories) {
    stream << category << "\n";
    for (const CommandCache* cache : commands)
      stream << "  " << cache->command << "\t" << cache->shortcuts << "\n";
  }
  return stream.str();
}

}  // namespace vek::sharedui
