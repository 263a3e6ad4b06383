// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/OSTypes.h"
#include "vek/config/Export.h"
#include "vek/uisupport/CommandAttachment.h"

namespace lumworkspace::workspace {
class ManagerBase;
class PlatformMenuHelperBase;
class Workspace;
}  // namespace lumworkspace::workspace

namespace vek::workspaceutils {

// Answers for the commands of a workspace menu: five by the host's ids, and those of the menu
// helper, one for each workspace. It borrows all three that it works with.
class VEK_API WorkspacesCmdAttachment : public uisupport::CommandAttachment {
 public:
  WorkspacesCmdAttachment(lumworkspace::workspace::Workspace& inWorkspace,
                          lumworkspace::workspace::ManagerBase& inManager,
                          lumworkspace::workspace::PlatformMenuHelperBase& inMenuHelper,
                          int inNewCommand, int inRevertCommand, int inDeleteCommand,
                          int inSaveCommand, int inEditCommand);
  ~WorkspacesCmdAttachment() override;

 protected:
  // An id of 0 is nobody's, also where it is one of the five.
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;

 private:
  lumworkspace::workspace::ManagerBase& mManager;
  lumworkspace::workspace::Workspace& mWorkspace;
  lumworkspace::workspace::PlatformMenuHelperBase& mMenuHelper;
  int mNewCommand;
  int mRevertCommand;
  int mDeleteCommand;
  int mSaveCommand;
  int mEditCommand;
};

// Among the first submenus of the menu's submenus, the last whose last item is the command. Null
// where there is none.
VEK_API HMENU GetWorkspaceSubMenu(int inCommand, HMENU inMenu);

}  // namespace vek::workspaceutils
