// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumworkspace/Export.h"

namespace lumworkspace::workspace {

// Shows the workspaces of a manager in a menu, each as a command of its own.
class LUMWORKSPACE_API PlatformMenuHelperBase {
 public:
  virtual ~PlatformMenuHelperBase();

  // Names or the current one have changed, or the helper has just been added.
  virtual void WorkspacesChanged() = 0;
  virtual bool IsWorkspaceCommand(int inCommand) const = 0;
  // Empty for what is no workspace command.
  virtual lumcore::UTF16String WorkspaceNameForCmd(int inCommand) const = 0;
  // Applies the workspace of the command.
  virtual void HandleCommand(int inCommand) = 0;

 protected:
  PlatformMenuHelperBase() = default;
  PlatformMenuHelperBase(const PlatformMenuHelperBase&) = default;
  PlatformMenuHelperBase& operator=(const PlatformMenuHelperBase&) = default;
};

}  // namespace lumworkspace::workspace
