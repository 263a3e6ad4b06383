// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumui/ui/OSTypes.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"

namespace lumworkspace::workspace {

class ManagerBase;

// Lists the workspaces at the front of a menu, one a command, with a dot at the current one, and a
// separator before what else stands in the menu. Add it to its manager, which tells it when to
// bring the list up to date. The list leaves the menu with the helper.
class LUMWORKSPACE_API PlatformMenuHelper : public PlatformMenuHelperBase {
 public:
  // The manager is borrowed. Workspaces beyond the last command are not listed.
  PlatformMenuHelper(ManagerBase& inManager, HMENU inMenu, int inFirstCommand, int inLastCommand);
  ~PlatformMenuHelper() override;

  void WorkspacesChanged() override;
  // Of the whole range, also where it has more commands than there are workspaces.
  bool IsWorkspaceCommand(int inCommand) const override;
  lumcore::UTF16String WorkspaceNameForCmd(int inCommand) const override;
  // Throws what applying the workspace throws.
  void HandleCommand(int inCommand) override;

 private:
  ManagerBase& mManager;
  HMENU mMenu;
  int mFirstCommand;
  int mLastCommand;
  unsigned mItems = 0;  // at the front of the menu, the separator included
  std::vector<lumcore::UTF16String> mNames;
};

}  // namespace lumworkspace::workspace
