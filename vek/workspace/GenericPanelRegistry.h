// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace lumworkspace::workspace {
class Workspace;
}

namespace vek::workspace {

class GenericPanelCreatorBase;

// The panels that a host offers, by their tab types and by the commands that open them. It is made
// by the first creator, also before main, and borrows the creators: each comes by itself when it
// is built and leaves when it goes.
class VEK_API GenericPanelRegistry {
 public:
  // Made on first use and destroyed at the end of the process.
  static GenericPanelRegistry& GetInstance();
  GenericPanelRegistry(const GenericPanelRegistry&) = delete;
  GenericPanelRegistry& operator=(const GenericPanelRegistry&) = delete;

  // Null does nothing. A creator takes the type and the command from the one that had them.
  void RegisterPanelCreator(const GenericPanelCreatorBase* inCreator);
  // Takes the creator from the places that it still has.
  void UnregisterPanelCreator(const GenericPanelCreatorBase* inCreator);

  // Gives the workspace a new tab creator for each type, in ascending order of the types. The
  // application does so once its workspace is made, so that layouts find their panels.
  void RegisterTabCreators(lumworkspace::workspace::Workspace& ioWorkspace);
  // False for a command of no panel, and then the type stays as it is.
  bool GetTabTypeForCommand(int inCommand, lumcore::UTF8String& outTabType) const;

 private:
  GenericPanelRegistry() = default;
  ~GenericPanelRegistry() = default;

  std::map<lumcore::UTF8String, const GenericPanelCreatorBase*> mByType;
  std::map<int, const GenericPanelCreatorBase*> mByCommand;
};

}  // namespace vek::workspace
