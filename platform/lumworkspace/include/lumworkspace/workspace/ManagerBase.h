// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumworkspace/Export.h"

namespace lumworkspace::workspace {

class PlatformMenuHelperBase;

// The named workspaces of an application: which panels stand where. One may be the current one: the
// one that was applied last, and that the user's moves belong to. Names are compared unit by unit.
class LUMWORKSPACE_API ManagerBase {
 public:
  ManagerBase();
  virtual ~ManagerBase();
  ManagerBase(const ManagerBase&) = delete;
  ManagerBase& operator=(const ManagerBase&) = delete;

  // The application's loop has ended: what is not on disk yet is written.
  virtual void WillQuit() = 0;
  // Gives the main window the size that it has where no workspace says another.
  virtual void ApplyDefaultMainWindowSize() = 0;

  // In the order of the menu.
  virtual std::vector<lumcore::UTF16String> GetWorkspaceNames() const = 0;
  virtual bool HasCurrentWorkspace() const = 0;
  virtual lumcore::UTF16String GetCurrentWorkspace() const = 0;  // empty where there is none
  // Applies the workspace. A name that is not known does nothing.
  virtual void SetCurrentWorkspace(const lumcore::UTF16String& inName) = 0;
  // Keeps what is on screen under the name, in place of what it had.
  virtual void SaveWorkspace(const lumcore::UTF16String& inName) = 0;
  // Back to what the workspace was when it was saved last or, where that is wanted, built in.
  virtual void RevertWorkspace(const lumcore::UTF16String& inName) = 0;
  // A built-in workspace is hidden, and comes back when a workspace of its name is saved. The
  // current one that is deleted leaves the panels where they are and no workspace current.
  virtual void DeleteWorkspace(const lumcore::UTF16String& inName) = 0;

  // What only some managers can do; a manager that cannot does nothing, and says so.

  // Whether there is a built-in one to go back to that is not what the workspace is now.
  virtual bool CanRevertToBuiltIn(const lumcore::UTF16String& inName) const;  // false
  virtual bool RevertToBuiltIn(const lumcore::UTF16String& inName);           // false
  // False for names that may not be: see CheckName.
  virtual bool RenameWorkspace(const lumcore::UTF16String& inName,
                               const lumcore::UTF16String& inNewName);  // false
  // The named ones stand in this order, in front of the others.
  virtual void SetWorkspaceOrder(const std::vector<lumcore::UTF16String>& inNames);

  // The cause why no workspace may have this name, for the user; empty where one may.
  static lumcore::UTF16String CheckNameAlone(const lumcore::UTF16String& inName);
  // The same, counting that others have theirs: names that differ in case alone are too much alike.
  // inExcept, which may be empty, is about to lose its own.
  lumcore::UTF16String CheckName(const lumcore::UTF16String& inName,
                                 const lumcore::UTF16String& inExcept) const;

  bool HasNamedWorkspace(const lumcore::UTF16String& inName) const;
  std::size_t GetNumberWorkspaces() const;

  // Helpers are told of every change of names and of the current one. They are borrowed.
  void AddMenuHelper(PlatformMenuHelperBase* inHelper);
  void RemoveMenuHelper(PlatformMenuHelperBase* inHelper);

  // Expires when the manager goes, for those that it may go before.
  std::weak_ptr<const void> GetPresence() const { return mPresence; }

 protected:
  void NotifyWorkspacesChanged();

 private:
  std::vector<PlatformMenuHelperBase*> mMenuHelpers;
  std::shared_ptr<const void> mPresence = std::make_shared<char>();
};

}  // namespace lumworkspace::workspace
