// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/PlatformMenuHelper.h"

#include <algorithm>

#include "lumcore/debug/Contract.h"
#include "lumui/ui/OS_Menu.h"
#include "lumworkspace/workspace/CommandCheckStyle.h"
#include "lumworkspace/workspace/ManagerBase.h"
#include "workspace/MenuText.h"

namespace lumworkspace::workspace {

using lumcore::UTF16String;
using lumui::ui::OS_Menu;

PlatformMenuHelper::PlatformMenuHelper(ManagerBase& inManager, HMENU inMenu, int inFirstCommand,
                                       int inLastCommand)
    : mManager(inManager),
      mMenu(inMenu),
      mFirstCommand(inFirstCommand),
      mLastCommand(inLastCommand) {
  LUM_INPUT_CONTRACT(inFirstCommand > 0 && inLastCommand >= inFirstCommand);
}

// Takes out no more than it finds of its own: the menu may have gone before, and its handle may be
// another's.
PlatformMenuHelper::~PlatformMenuHelper() {
  for (unsigned item = 0; item < mItems; ++item) {
    lumui::ui::MenuItemInfo info;
    info.mask = lumui::ui::kMenuMaskID;
    const unsigned id = item < mNames.size() ? static_cast<unsigned>(mFirstCommand) + item : 0;
    if (!OS_Menu::GetItemInfo(mMenu, 0, info) || info.id != id) break;
    OS_Menu::RemoveItem(mMenu, 0);
  }
  for (int command = mFirstCommand; command <= mLastCommand; ++command)
    SetCommandCheckStyle(command, false);
}

// The commands are marked here as well: one that takes the place of another is made before the
// other goes, which takes the marks along.
void PlatformMenuHelper::WorkspacesChanged() {
  for (int command = mFirstCommand; command <= mLastCommand; ++command)
    SetCommandCheckStyle(command, true);
  for (; mItems > 0; --mItems)
    OS_Menu::RemoveItem(mMenu, 0);
  mNames = mManager.GetWorkspaceNames();
  const auto commands = static_cast<std::size_t>(mLastCommand - mFirstCommand) + 1;
  mNames.resize(std::min(mNames.size(), commands));
  const UTF16String current = mManager.GetCurrentWorkspace();
  const bool others = OS_Menu::GetItemCount(mMenu) > 0;
  for (const UTF16String& name : mNames) {
    const unsigned id = static_cast<unsigned>(mFirstCommand) + mItems;
    if (!OS_Menu::InsertItem(mMenu, mItems, lumui::ui::kMenuTypeRadio, id, MenuText(name))) return;
    OS_Menu::CheckItem(mMenu, mItems, mManager.HasCurrentWorkspace() && name == current);
    ++mItems;
  }
  if (!others || mNames.empty()) return;
  OS_Menu::InsertItem(mMenu, mItems, lumui::ui::kMenuTypeSeparator, 0, UTF16String());
  ++mItems;
}

bool PlatformMenuHelper::IsWorkspaceCommand(int inCommand) const {
  return inCommand >= mFirstCommand && inCommand <= mLastCommand;
}

UTF16String PlatformMenuHelper::WorkspaceNameForCmd(int inCommand) const {
  if (!IsWorkspaceCommand(inCommand)) return UTF16String();
  const auto index = static_cast<std::size_t>(inCommand - mFirstCommand);
  return index < mNames.size() ? mNames[index] : UTF16String();
}

void PlatformMenuHelper::HandleCommand(int inCommand) {
  const UTF16String name = WorkspaceNameForCmd(inCommand);
  if (!name.empty()) mManager.SetCurrentWorkspace(name);
}

}  // namespace lumworkspace::workspace
