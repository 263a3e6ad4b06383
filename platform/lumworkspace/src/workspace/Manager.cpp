// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/Manager.h"

#include <algorithm>
#include <exception>
#include <string>
#include <utility>

#include "layout/LayoutFile.h"
#include "lumcore/config/ErrorManager.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/filesupport/FileError.h"
#include "lumcore/proplist/Utils.h"
#include "lumcore/utility/StringUtils.h"
#include "lumworkspace/workspace/BuiltInWorkspaceProviderBase.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/Workspace.h"
#include "workspace/WorkspaceFileName.h"

namespace lumworkspace::workspace {

using lumcore::UTF16String;
using lumcore::filesupport::File;
using lumcore::proplist::PropList;

namespace {

constexpr const char* kIndexFile = "Workspaces.xml";
constexpr const char* kOrderKey = "Order";
constexpr const char* kHiddenKey = "Hidden";

using Names = std::vector<UTF16String>;

bool Contains(const Names& inNames, const UTF16String& inName) {
  return std::find(inNames.begin(), inNames.end(), inName) != inNames.end();
}

void Erase(Names& ioNames, const UTF16String& inName) {
  ioNames.erase(std::remove(ioNames.begin(), ioNames.end(), inName), ioNames.end());
}

}  // namespace

Manager::Manager(Workspace& inWorkspace, const lumcore::filesupport::Dir& inFolder,
                 const BuiltInWorkspaceProviderBase* inProvider,
                 const lumcore::geom::PointT<int>& inDefaultSize)
    : mWorkspace(inWorkspace),
      mFolder(inFolder),
      mProvider(inProvider),
      mDefaultSize(inDefaultSize) {
  ReadIndex();
}

Manager::~Manager() = default;

File Manager::FileOf(const Name& inName) const {
  return File(mFolder, WorkspaceFileName(inName));
}

UTF16String Manager::PathOf(const Name& inName) const {
  const File file = FileOf(inName);
  return file.Exists() ? file.FullPath() : inName;
}

bool Manager::IsBuiltIn(const Name& inName) const {
  return mProvider && Contains(mProvider->GetNames(), inName);
}

bool Manager::IsHidden(const Name& inName) const {
  return Contains(mHidden, inName);
}

// The order is for the eye: without its file, or with one that cannot be read, there still are all
// workspaces. The next change writes it anew.
void Manager::ReadIndex() {
  const File file(mFolder, kIndexFile);
  if (!file.Exists()) return;
  PropList index;
  try {
    lumcore::proplist::utils::LoadPropList(file, index, false);
  } catch (const lumcore::config::Error&) {
    return;
  }
  mOrder = index.Get(kOrderKey, Names());
  mHidden = index.Get(kHiddenKey, Names());
}

void Manager::WriteIndex() {
  PropList index;
  index.Set(kOrderKey, mOrder);
  index.Set(kHiddenKey, mHidden);
  mFolder.Create();
  lumcore::proplist::utils::SavePropList(File(mFolder, kIndexFile), index);
}

std::vector<UTF16String> Manager::GetWorkspaceNames() const {
  Names there;
  const auto add = [&](const Name& inName) {
    if (!inName.empty() && !Contains(there, inName)) there.push_back(inName);
  };
  if (mProvider) {
    for (const Name& name : mProvider->GetNames()) {
      if (!IsHidden(name)) add(name);
    }
  }
  if (mFolder.Exists()) {
    Names own;
    for (const File& file : mFolder.GetFiles())
      own.push_back(WorkspaceNameOfFile(file.GetName()));
    std::sort(own.begin(), own.end(), [](const Name& inA, const Name& inB) {
      return lumcore::utility::FoldCase(inA) < lumcore::utility::FoldCase(inB);
    });
    for (const Name& name : own)
      add(name);
  }
  Names ordered;
  for (const Name& name : mOrder) {
    if (Contains(there, name) && !Contains(ordered, name)) ordered.push_back(name);
  }
  for (const Name& name : there) {
    if (!Contains(ordered, name)) ordered.push_back(name);
  }
  return ordered;
}

PropList Manager::LoadBuiltIn(const Name& inName) const {
  PropList layout;
  lumcore::proplist::utils::LoadPropListFromBuffer(mProvider->GetLayout(inName), inName, layout,
                                                   false);
  return layout;
}

PropList Manager::Load(const Name& inName) const {
  const File file = FileOf(inName);
  if (file.IsAbsent() && IsBuiltIn(inName)) return LoadBuiltIn(inName);
  PropList layout;
  lumcore::proplist::utils::LoadPropList(file, layout, false);
  return layout;
}

bool Manager::LoadSound(const Name& inName, PropList& outLayout) {
  try {
    outLayout = Load(inName);
    if (!layout::IsOfLaterVersion(outLayout)) layout::FromPropList(outLayout, PathOf(inName));
    return true;
  } catch (const lumcore::filesupport::FileError&) {
    throw;  // it may be whole
  } catch (const lumcore::config::Error& error) {
    if (!FileOf(inName).Exists()) throw;
    SetAside(inName, error.GetText());
  }
  if (!IsBuiltIn(inName)) return false;
  outLayout = LoadBuiltIn(inName);
  return true;
}

// The file keeps its bytes under a name that is none of a workspace.
void Manager::SetAside(const Name& inName, const UTF16String& inCause) {
  const File file = FileOf(inName);
  File kept(file.GetPath() + ".defective");
  for (int number = 2; !kept.IsAbsent(); ++number)
    kept = File(file.GetPath() + ".defective-" + std::to_string(number));
  const lumcore::UTF8String bytes = file.ReadAll();
  const std::string copy(bytes.begin(), bytes.end());
  kept.ReplaceContents(copy);
  file.Remove();
  lumcore::config::ErrorManager::Get(false)->ReportError(
      std::make_exception_ptr(lumcore::config::Error(
          lumcore::utility::ReplaceInString(lumcore::config::Localizer::Get()->GetLocalizedString(
                                                "$$$/lumworkspace/Error/SetAside=The workspace "
                                                "\"@0\" could not be read and was kept as "
                                                "\"@1\". @2"),
                                            {inName, kept.GetName(), inCause}))));
}

void Manager::Write(const Name& inName, const PropList& inLayout) {
  mFolder.Create();
  lumcore::proplist::utils::SavePropList(FileOf(inName), inLayout);
}

// Of the current workspace, what the user has done to it since. What was kept before and has been
// undone by hand must not come back.
void Manager::KeepCurrent() {
  if (mCurrent.empty() || !mWorkspace.GetMainTopLevelWindow()) return;
  PropList now = mWorkspace.GetLayout();
  if (now == mApplied) {
    mUnsaved.erase(mCurrent);
  } else {
    mUnsaved[mCurrent] = std::move(now);
  }
}

void Manager::Apply(const PropList& inLayout, const Name& inName) {
  mWorkspace.SetLayout(inLayout, PathOf(inName));
  mCurrent = inName;
  mApplied = mWorkspace.GetLayout();
}

void Manager::SetCurrentWorkspace(const Name& inName) {
  if (!HasNamedWorkspace(inName)) return;
  KeepCurrent();
  const auto unsaved = mUnsaved.find(inName);
  if (unsaved == mUnsaved.end()) {
    PropList layout;
    if (LoadSound(inName, layout)) {
      Apply(layout, inName);
    } else if (mCurrent.empty()) {
      ApplyFirstBuiltIn();
    }
  } else {
    Apply(unsaved->second, inName);
    // Its changes are still to be written.
    mApplied = PropList();
  }
  NotifyWorkspacesChanged();
}

// At the start of the application, where nothing is on the screen yet. What the user made of it
// comes, where that can be read.
void Manager::ApplyFirstBuiltIn() {
  for (const Name& name : GetWorkspaceNames()) {
    PropList layout;
    try {
      if (!IsBuiltIn(name) || !LoadSound(name, layout)) continue;
    } catch (const lumcore::filesupport::FileError&) {
      continue;  // whoever asks for that workspace hears of it
    }
    return Apply(layout, name);
  }
}

void Manager::SaveWorkspace(const Name& inName) {
  LUM_INPUT_CONTRACT(HasNamedWorkspace(inName) || CheckName(inName, Name()).empty());
  PropList layout = mWorkspace.GetLayout();
  Write(inName, layout);
  if (IsHidden(inName)) {
    Erase(mHidden, inName);
    WriteIndex();
  }
  mUnsaved.erase(inName);
  mCurrent = inName;
  mApplied = std::move(layout);
  NotifyWorkspacesChanged();
}

void Manager::RevertWorkspace(const Name& inName) {
  if (!HasNamedWorkspace(inName)) return;
  PropList layout;
  if (inName == mCurrent && LoadSound(inName, layout)) Apply(layout, inName);
  mUnsaved.erase(inName);
  NotifyWorkspacesChanged();
}

bool Manager::CanRevertToBuiltIn(const Name& inName) const {
  return IsBuiltIn(inName) && !IsHidden(inName) && FileOf(inName).Exists();
}

bool Manager::RevertToBuiltIn(const Name& inName) {
  if (!CanRevertToBuiltIn(inName)) return false;
  // The file goes last: what is built in may be refused.
  if (inName == mCurrent) {
    mWorkspace.SetLayout(LoadBuiltIn(inName), inName);
    mApplied = mWorkspace.GetLayout();
  }
  FileOf(inName).Remove();
  mUnsaved.erase(inName);
  NotifyWorkspacesChanged();
  return true;
}

void Manager::DeleteWorkspace(const Name& inName) {
  if (!HasNamedWorkspace(inName)) return;
  if (IsBuiltIn(inName)) {
    mHidden.push_back(inName);
    WriteIndex();
  }
  FileOf(inName).Remove();
  mUnsaved.erase(inName);
  if (inName == mCurrent) mCurrent.clear();
  NotifyWorkspacesChanged();
}

bool Manager::RenameWorkspace(const Name& inName, const Name& inNewName) {
  if (!HasNamedWorkspace(inName) || !CheckName(inNewName, inName).empty()) return false;
  if (inName == inNewName) return true;
  Names names = GetWorkspaceNames();
  // The bytes as they are, so that also a file that cannot be read keeps what it holds.
  const File old = FileOf(inName);
  if (old.Exists()) {
    const lumcore::UTF8String bytes = old.ReadAll();
    const std::string copy(bytes.begin(), bytes.end());
    FileOf(inNewName).ReplaceContents(copy);
  } else {
    Write(inNewName, LoadBuiltIn(inName));
  }
  std::replace(names.begin(), names.end(), inName, inNewName);
  mOrder = std::move(names);
  if (IsBuiltIn(inName)) mHidden.push_back(inName);
  Erase(mHidden, inNewName);
  WriteIndex();
  old.Remove();
  const auto unsaved = mUnsaved.extract(inName);
  if (!unsaved.empty()) mUnsaved[inNewName] = unsaved.mapped();
  if (mCurrent == inName) mCurrent = inNewName;
  NotifyWorkspacesChanged();
  return true;
}

void Manager::SetWorkspaceOrder(const std::vector<Name>& inNames) {
  mOrder = inNames;
  WriteIndex();
  NotifyWorkspacesChanged();
}

void Manager::WillQuit() {
  KeepCurrent();
  while (!mUnsaved.empty()) {
    const auto unsaved = mUnsaved.begin();
    Write(unsaved->first, unsaved->second);
    mUnsaved.erase(unsaved);
  }
}

void Manager::ApplyDefaultMainWindowSize() {
  TopLevelWindow* const main = mWorkspace.GetMainTopLevelWindow();
  if (main && mDefaultSize.x > 0 && mDefaultSize.y > 0) {
    main->UI_SetSize(mDefaultSize.x, mDefaultSize.y);
  }
}

}  // namespace lumworkspace::workspace
