// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/WorkspaceUtils.h"

#include "lumworkspace/workspace/ManagerBase.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"
#include "lumworkspace/workspace/Workspace.h"
#include "lumworkspace/workspaceutils/WorkspaceUtils.h"
#include "vek/uisupport/PlatformMenu.h"

namespace vek::workspaceutils {

namespace platform = lumworkspace::workspaceutils;

namespace {

constexpr unsigned kNoMenu = 0xFFFFFFFF;

}  // namespace

WorkspacesCmdAttachment::WorkspacesCmdAttachment(
    lumworkspace::workspace::Workspace& inWorkspace,
    lumworkspace::workspace::ManagerBase& inManager,
    lumworkspace::workspace::PlatformMenuHelperBase& inMenuHelper, int inNewCommand,
    int inRevertCommand, int inDeleteCommand, int inSaveCommand, int inEditCommand)
    : mManager(inManager),
      mWorkspace(inWorkspace),
      mMenuHelper(inMenuHelper),
      mNewCommand(inNewCommand),
      mRevertCommand(inRevertCommand),
      mDeleteCommand(inDeleteCommand),
      mSaveCommand(inSaveCommand),
      mEditCommand(inEditCommand) {}

WorkspacesCmdAttachment::~WorkspacesCmdAttachment() = default;

bool WorkspacesCmdAttachment::DoHandleCommand(int inCommand) {
  if (inCommand == 0) return false;
  bool (*action)(platform::Supplier*, platform::Window*, platform::Manager&) =
      inCommand == mNewCommand      ? &platform::RequestCreateNewWorkspace
      : inCommand == mRevertCommand ? &platform::ConfirmRevertCurrWorkspace
      : inCommand == mDeleteCommand ? &platform::ChooseDeleteWorkspace
      : inCommand == mSaveCommand   ? &platform::SaveCurrentWorkspace
      : inCommand == mEditCommand   ? &platform::ShowEditWorkspacesDialog
                                    : nullptr;
  if (action) {
    action(mWorkspace.UI_GetDrawSupplier(), mWorkspace.GetMainTopLevelWindow(), mManager);
    return true;
  }
  if (!mMenuHelper.IsWorkspaceCommand(inCommand)) return false;
  mMenuHelper.HandleCommand(inCommand);
  return true;
}

bool WorkspacesCmdAttachment::DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                                               lumcore::UTF16String&) {
  const bool current = mManager.HasCurrentWorkspace();
  // Counted only where it matters: the names may have to be read from a folder.
  const bool deletable =
      inCommand == mDeleteCommand && current && mManager.GetNumberWorkspaces() > 1;
  const struct {
    int command;
    bool enabled;
  } answers[] = {{mNewCommand, true},
                 {mRevertCommand, current},
                 {mDeleteCommand, deletable},
                 {mSaveCommand, current},
                 {mEditCommand, true}};
  for (const auto& answer : answers) {
    if (answer.command != inCommand) continue;
    ioEnabled = answer.enabled;
    return true;
  }
  if (!mMenuHelper.IsWorkspaceCommand(inCommand)) return false;
  ioEnabled = true;
  if (current) {
    ioChecked = mMenuHelper.WorkspaceNameForCmd(inCommand) == mManager.GetCurrentWorkspace();
  }
  return true;
}

HMENU GetWorkspaceSubMenu(int inCommand, HMENU inMenu) {
  const unsigned count = uisupport::GetItemCount(inMenu);
  if (count == kNoMenu) return nullptr;
  for (unsigned i = count; i-- > 0;) {
    const HMENU inner = uisupport::GetSubMenu(uisupport::GetSubMenu(inMenu, i), 0);
    const unsigned items = inner ? uisupport::GetItemCount(inner) : 0;
    if (items == 0 || items == kNoMenu) continue;
    if (uisupport::GetItemID(inner, items - 1) == static_cast<unsigned>(inCommand)) return inner;
  }
  return nullptr;
}

}  // namespace vek::workspaceutils
