// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/ManagerBase.h"

#include <algorithm>

#include "lumcore/config/Localizer.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"
#include "workspace/WorkspaceFileName.h"

namespace lumworkspace::workspace {

namespace {

using lumcore::UTF16String;

// What file systems take.
constexpr std::size_t kLongestFileName = 255;

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

}  // namespace

ManagerBase::ManagerBase() = default;
ManagerBase::~ManagerBase() = default;
PlatformMenuHelperBase::~PlatformMenuHelperBase() = default;
BuiltInWorkspaceProviderBase::~BuiltInWorkspaceProviderBase() = default;

bool ManagerBase::CanRevertToBuiltIn(const UTF16String&) const {
  return false;
}

bool ManagerBase::RevertToBuiltIn(const UTF16String&) {
  return false;
}

bool ManagerBase::RenameWorkspace(const UTF16String&, const UTF16String&) {
  return false;
}

void ManagerBase::SetWorkspaceOrder(const std::vector<UTF16String>&) {}

UTF16String ManagerBase::CheckNameAlone(const UTF16String& inName) {
  const auto isSpace = [](unsigned short inUnit) { return inUnit <= ' ' || inUnit == 0xA0; };
  if (std::all_of(inName.begin(), inName.end(), isSpace)) {
    return Localized("$$$/lumworkspace/Error/EmptyName=A workspace needs a name.");
  }
  if (isSpace(inName.front()) || isSpace(inName.back())) {
    return Localized(
        "$$$/lumworkspace/Error/NameSpace=A name begins and ends with something to be seen.");
  }
  if (WorkspaceFileName(inName).size() > kLongestFileName) {
    return Localized("$$$/lumworkspace/Error/LongName=The name is too long.");
  }
  return UTF16String();
}

UTF16String ManagerBase::CheckName(const UTF16String& inName, const UTF16String& inExcept) const {
  const UTF16String cause = CheckNameAlone(inName);
  if (!cause.empty()) return cause;
  const auto folded = lumcore::utility::FoldCase(inName);
  for (const UTF16String& name : GetWorkspaceNames()) {
    if (name == inExcept || lumcore::utility::FoldCase(name) != folded) continue;
    return lumcore::utility::ReplaceInString(
        Localized("$$$/lumworkspace/Error/NameTaken=There is a workspace \"@0\" already."), {name});
  }
  return UTF16String();
}

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
