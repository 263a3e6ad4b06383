// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <vector>

#include "lumcore/filesupport/Dir.h"
#include "lumcore/filesupport/File.h"
#include "lumcore/geom/Point.h"
#include "lumcore/proplist/PropList.h"
#include "lumworkspace/workspace/ManagerBase.h"

namespace lumworkspace::workspace {

class BuiltInWorkspaceProviderBase;
class Workspace;

// The workspaces of a folder: each is a file of its own that bears its name and is read when the
// workspace is applied; "Workspaces.xml" beside them keeps their order and which built-in ones are
// hidden. The folder is made when the first workspace is saved.
//
// What the user changes belongs to the current workspace. When another is applied, it stays in
// memory, comes back with the workspace, and is written when the application ends.
//
// A file that is damaged, or none of ours, is set aside when its workspace is applied: it keeps its
// bytes under another name ("....workspace.defective"), and the error manager's reporter gets an
// error that names both and the cause. The built-in workspace of the same name takes its place.
// Where there is none, all stays as it was, or at the start of an application, the first built-in
// one is applied. A file of a later program and one that the system does not let us read are errors
// that are thrown; they stay where they are, and so do the panels.
class LUMWORKSPACE_API Manager : public ManagerBase {
 public:
  // The workspace and the provider, which may be null, are borrowed. A default size of 0 leaves the
  // main window as it is.
  Manager(Workspace& inWorkspace, const lumcore::filesupport::Dir& inFolder,
          const BuiltInWorkspaceProviderBase* inProvider,
          const lumcore::geom::PointT<int>& inDefaultSize);
  ~Manager() override;

  void WillQuit() override;
  void ApplyDefaultMainWindowSize() override;
  // In the user's order; then the built-in ones, in the provider's order, and the others by name.
  std::vector<lumcore::UTF16String> GetWorkspaceNames() const override;
  bool HasCurrentWorkspace() const override { return !mCurrent.empty(); }
  lumcore::UTF16String GetCurrentWorkspace() const override { return mCurrent; }
  void SetCurrentWorkspace(const lumcore::UTF16String& inName) override;
  // Makes it the current one. The name has to be one that CheckName permits, or that is there (a
  // contract).
  void SaveWorkspace(const lumcore::UTF16String& inName) override;
  // Drops what has changed since it was saved; one that was never saved becomes the built-in one.
  void RevertWorkspace(const lumcore::UTF16String& inName) override;
  void DeleteWorkspace(const lumcore::UTF16String& inName) override;
  bool CanRevertToBuiltIn(const lumcore::UTF16String& inName) const override;
  bool RevertToBuiltIn(const lumcore::UTF16String& inName) override;
  // A built-in one becomes one of the user's, and is hidden under its own name.
  bool RenameWorkspace(const lumcore::UTF16String& inName,
                       const lumcore::UTF16String& inNewName) override;
  void SetWorkspaceOrder(const std::vector<lumcore::UTF16String>& inNames) override;

 private:
  using Name = lumcore::UTF16String;
  using PropList = lumcore::proplist::PropList;

  lumcore::filesupport::File FileOf(const Name& inName) const;
  bool IsBuiltIn(const Name& inName) const;
  bool IsHidden(const Name& inName) const;
  // What is stored, else the built-in one; throws with the path and the cause.
  PropList Load(const Name& inName) const;
  PropList LoadBuiltIn(const Name& inName) const;
  // Load, of what a layout can be made of. False if the file was set aside and nothing is built in.
  bool LoadSound(const Name& inName, PropList& outLayout);
  void SetAside(const Name& inName, const lumcore::UTF16String& inCause);
  void ApplyFirstBuiltIn();
  lumcore::UTF16String PathOf(
      const Name& inName) const;  // for errors; the name where there is no file
  void Apply(const PropList& inLayout, const Name& inName);
  void KeepCurrent();
  void Write(const Name& inName, const PropList& inLayout);
  void ReadIndex();
  void WriteIndex();

  Workspace& mWorkspace;
  lumcore::filesupport::Dir mFolder;
  const BuiltInWorkspaceProviderBase* mProvider;
  lumcore::geom::PointT<int> mDefaultSize;
  Name mCurrent;
  PropList mApplied;                  // what the current one was when it was applied or saved
  std::map<Name, PropList> mUnsaved;  // what the user has changed and left for another
  std::vector<Name> mOrder;
  std::vector<Name> mHidden;
};

}  // namespace lumworkspace::workspace
