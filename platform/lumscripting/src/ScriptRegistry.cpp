// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptRegistry.h"

#include <utility>

#include "lumcore/debug/Contract.h"

namespace lumscripting {

ScriptRegistry::ScriptRegistry() = default;

// Never destroyed: libraries register while they are loaded and may look here as they are unloaded.
ScriptRegistry& ScriptRegistry::Get() {
  static ScriptRegistry* const sRegistry = new ScriptRegistry;
  return *sRegistry;
}

void ScriptRegistry::RegisterObject(const lumcore::UTF16String& inName,
                                    const lumcore::UTF8String& inDescription,
                                    ObjectFactory inMake) {
  LUM_INPUT_CONTRACT(inMake != nullptr);
  Unregister(inName);
  mObjects.emplace(inName, Object{inDescription, std::move(inMake)});
}

void ScriptRegistry::RegisterEvent(const ScriptDefinition& inDefinition, EventFactory inMake) {
  LUM_INPUT_CONTRACT(inMake != nullptr && inDefinition.functions.empty());
  Unregister(inDefinition.name);
  mEvents.emplace(inDefinition.name,
                  std::make_shared<const Event>(Event{inDefinition, std::move(inMake)}));
}

void ScriptRegistry::Unregister(const lumcore::UTF16String& inName) {
  mObjects.erase(inName);
  mEvents.erase(inName);
}

}  // namespace lumscripting
