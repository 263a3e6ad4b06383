// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/GenericPanelRegistry.h"

#include "lumworkspace/workspace/Workspace.h"
#include "vek/workspace/GenericPanelCreatorBase.h"

namespace vek::workspace {

namespace {

template <class Map>
void Forget(Map& ioMap, const typename Map::key_type& inKey,
            const GenericPanelCreatorBase* inCreator) {
  const auto found = ioMap.find(inKey);
  if (found != ioMap.end() && found->second == inCreator) ioMap.erase(found);
}

}  // namespace

GenericPanelRegistry& GenericPanelRegistry::GetInstance() {
  static GenericPanelRegistry sRegistry;
  return sRegistry;
}

void GenericPanelRegistry::RegisterPanelCreator(const GenericPanelCreatorBase* inCreator) {
  if (!inCreator) return;
  mByType[inCreator->GetTabType()] = inCreator;
  mByCommand[inCreator->GetCommandID()] = inCreator;
}

void GenericPanelRegistry::UnregisterPanelCreator(const GenericPanelCreatorBase* inCreator) {
  if (!inCreator) return;
  Forget(mByType, inCreator->GetTabType(), inCreator);
  Forget(mByCommand, inCreator->GetCommandID(), inCreator);
}

// A layout that has been waiting for a panel has it built within the call, and what the host does
// there may change the registry: so the next type is looked up anew.
void GenericPanelRegistry::RegisterTabCreators(lumworkspace::workspace::Workspace& ioWorkspace) {
  for (auto entry = mByType.begin(); entry != mByType.end();) {
    const lumcore::UTF8String type = entry->first;
    ioWorkspace.RegisterTabCreator(entry->second->NewTabCreator());
    entry = mByType.upper_bound(type);
  }
}

bool GenericPanelRegistry::GetTabTypeForCommand(int inCommand,
                                                lumcore::UTF8String& outTabType) const {
  const auto found = mByCommand.find(inCommand);
  if (found == mByCommand.end()) return false;
  outTabType = found->second->GetTabType();
  return true;
}

}  // namespace vek::workspace
