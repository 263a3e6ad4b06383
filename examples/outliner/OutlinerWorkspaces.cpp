// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerWorkspaces.h"

#include <algorithm>

#include "BuiltInWorkspaces.h"

namespace outliner {

using lumcore::filesupport::Dir;
using lumworkspace::workspace::Manager;

OutlinerWorkspaces::OutlinerWorkspaces(
    lumworkspace::workspace::Workspace& inWorkspace,
    const lumworkspace::workspace::BuiltInWorkspaceProviderBase& inBuiltIn)
    : Manager(inWorkspace, Dir(Dir::PrefDir(), "Workspaces"), &inBuiltIn,
              BuiltInWorkspaces::GetWindowSize()),
      mBuiltIn(inBuiltIn) {}

bool OutlinerWorkspaces::CanReset() const {
  const auto names = mBuiltIn.GetNames();
  return std::find(names.begin(), names.end(), GetCurrentWorkspace()) != names.end();
}

void OutlinerWorkspaces::Reset() {
  if (!CanReset()) return;
  // Without a file there is nothing saved to go back to but what is built in.
  if (!RevertToBuiltIn(GetCurrentWorkspace())) RevertWorkspace(GetCurrentWorkspace());
}

}  // namespace outliner
