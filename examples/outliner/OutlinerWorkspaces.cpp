// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlinerWorkspaces.h"

#include <algorithm>

#include "BuiltInWorkspaces.h"
#include "SettingsFile.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/FileError.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/uisupport/ReportError.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::filesupport::Dir;
using lumcore::filesupport::File;
using lumworkspace::workspace::Manager;

OutlinerWorkspaces::OutlinerWorkspaces(
    lumworkspace::workspace::Workspace& inWorkspace,
    const lumworkspace::workspace::BuiltInWorkspaceProviderBase& inBuiltIn)
    : Manager(inWorkspace, Dir(Dir::PrefDir(), "Workspaces"), &inBuiltIn,
              BuiltInWorkspaces::GetWindowSize()),
      mBuiltIn(inBuiltIn) {}

// Applied once more without its file, the workspace is the built-in one, or is not there any more.
void OutlinerWorkspaces::SetAsideIfDamaged(const UTF16String& inName,
                                           const std::function<void()>& inApply) {
  const File file = GetFile(inName);
  try {
    return inApply();
  } catch (const lumcore::filesupport::FileError&) {
    throw;
  } catch (const lumcore::config::Error& error) {
    if (!file.Exists()) throw;
    const File kept = SetAside(file);
    vek::uisupport::ReportError(
        lumcore::utility::ReplaceInString(
            lumcore::config::Localizer::Get()->GetLocalizedString(
                "$$$/outliner/Workspaces/Defective=@0. The workspace begins anew; the file is now "
                "@1."),
            {error.GetText(), lumcore::utility::ToUTF16(kept.GetPath())}),
        0, true);
  }
  inApply();
  NotifyWorkspacesChanged();
}

void OutlinerWorkspaces::SetCurrentWorkspace(const UTF16String& inName) {
  SetAsideIfDamaged(inName, [&] { Manager::SetCurrentWorkspace(inName); });
  // One of the user's own is gone with its file.
  if (!HasCurrentWorkspace()) Manager::SetCurrentWorkspace(BuiltInWorkspaces::GetDefaultName());
}

void OutlinerWorkspaces::RevertWorkspace(const UTF16String& inName) {
  SetAsideIfDamaged(inName, [&] { Manager::RevertWorkspace(inName); });
}

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
