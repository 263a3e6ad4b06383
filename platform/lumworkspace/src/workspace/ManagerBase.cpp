// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/ManagerBase.h"

#include <algorithm>

#include "lumcore/debug/Contract.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"

namespace lumworkspace::workspace {

ManagerBase::ManagerBase() = default;
ManagerBase::~ManagerBase() = default;
PlatformMenuHelperBase::~PlatformMenuHelperBase() = default;
BuiltInWorkspaceProviderBase::~BuiltInWorkspaceProviderBase() = default;

bool ManagerBase::HasNamedWorkspace(const lumcore::UTF16String& inName) const {
  const auto names = GetWorkspaceNames();
  return std::find(names.begin(), names.end(), inName) != names.end();
}

std::size_t ManagerBase::GetNumberWorkspaces() const {
  return GetWorkspaceNames().size();
}

void ManagerBase::AddMenuHelper(PlatformMenuHelperBase* inHelper) {
  LUM_INPUT_CONTRACT(inHelper != nullptr);
  mMenuHelpers.push_back(inHelper);
  inHelper->WorkspacesChanged();
}

void ManagerBase::RemoveMenuHelper(PlatformMenuHelperBase* inHelper) {
  mMenuHelpers.erase(std::remove(mMenuHelpers.begin(), mMenuHelpers.end(), inHelper),
                     mMenuHelpers.end());
}

// Each that is still there when its turn comes: a helper may be taken away by what another does.
void ManagerBase::NotifyWorkspacesChanged() {
  const auto helpers = mMenuHelpers;
  for (PlatformMenuHelperBase* const helper : helpers) {
    if (std::find(mMenuHelpers.begin(), mMenuHelpers.end(), helper) == mMenuHelpers.end()) continue;
    helper->WorkspacesChanged();
  }
}

}  // namespace lumworkspace::workspace
