// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/Manager.h"

namespace outliner {

// The user's workspaces, in a folder of the settings.
class OutlinerWorkspaces final : public lumworkspace::workspace::Manager {
 public:
  // The provider is borrowed.
  OutlinerWorkspaces(lumworkspace::workspace::Workspace& inWorkspace,
                     const lumworkspace::workspace::BuiltInWorkspaceProviderBase& inBuiltIn);

  // The current workspace becomes what it was built as, whatever the user has done to it since.
  bool CanReset() const;
  void Reset();

 private:
  const lumworkspace::workspace::BuiltInWorkspaceProviderBase& mBuiltIn;
};

}  // namespace outliner
