// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/Manager.h"

namespace outliner {

// The user's workspaces, in a folder of the settings. A file that is damaged gets another name and
// is reported, and the built-in workspace of its name takes its place; one that cannot be read at
// all is left alone, and is an error.
class OutlinerWorkspaces final : public lumworkspace::workspace::Manager {
 public:
  // The provider is borrowed.
  OutlinerWorkspaces(lumworkspace::workspace::Workspace& inWorkspace,
                     const lumworkspace::workspace::BuiltInWorkspaceProviderBase& inBuiltIn);

  void SetCurrentWorkspace(const lumcore::UTF16String& inName) override;
  void RevertWorkspace(const lumcore::UTF16String& inName) override;

  // The current workspace becomes what it was built as, whatever the user has done to it since.
  bool CanReset() const;
  void Reset();

 private:
  void SetAsideIfDamaged(const lumcore::UTF16String& inName, const std::function<void()>& inApply);

  const lumworkspace::workspace::BuiltInWorkspaceProviderBase& mBuiltIn;
};

}  // namespace outliner
