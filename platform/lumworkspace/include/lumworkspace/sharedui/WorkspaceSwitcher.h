// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumworkspace/Export.h"
#include "lumworkspace/sharedui/WorkspaceSwitcherManager.h"
#include "lumworkspace/workspace/PlatformMenuHelperBase.h"

namespace lumworkspace::workspace {
class ManagerBase;
class TopLevelWindow;
}  // namespace lumworkspace::workspace

namespace lumworkspace::sharedui {

// A tab for each workspace at the right end of a window's menu bar, while there is room for them
// beside the menus. A click applies the workspace, a drag gives it another place, and a press of
// the right button opens a menu in which the user chooses the workspaces that have a tab; one
// always has. Places and choice are kept by the WorkspaceSwitcherManager and are the same in all
// windows; the manager's own order stays as it is. A workspace that is new stands behind the one
// that it follows there.
class LUMWORKSPACE_API WorkspaceSwitcher final : private workspace::PlatformMenuHelperBase,
                                                 private WorkspaceSwitcherListener {
 public:
  // The window has a native part; the switcher keeps it, and shows nothing once the native part is
  // gone. The manager is borrowed. It may go first: the tabs then do nothing.
  WorkspaceSwitcher(workspace::TopLevelWindow& ioWindow, workspace::ManagerBase& ioManager);
  ~WorkspaceSwitcher() override;
  WorkspaceSwitcher(const WorkspaceSwitcher&) = delete;
  WorkspaceSwitcher& operator=(const WorkspaceSwitcher&) = delete;

  // From left to right.
  std::vector<lumcore::UTF16String> GetShownWorkspaces() const;

 private:
  class Bar;
  struct Entry {
    lumcore::UTF16String name;
    bool isShown;
  };

  void WorkspacesChanged() override;
  bool IsWorkspaceCommand(int inCommand) const override;
  lumcore::UTF16String WorkspaceNameForCmd(int inCommand) const override;
  void HandleCommand(int inCommand) override;
  void WorkspacesConfigurationChanged() override;

  static std::vector<Entry> Read(const lumcore::UTF8String& inData);
  // All workspaces, as the user has arranged them.
  std::vector<Entry> Arrange() const;
  static void Keep(const std::vector<Entry>& inEntries);
  void Show();
  // What the user does.
  void Apply(const lumcore::UTF16String& inName);
  void KeepPlaces(const std::vector<lumcore::UTF16String>& inShown);
  void ChooseShown(const lumcore::geom::PointT<int>& inScreenPoint);

  workspace::ManagerBase& mManager;
  std::weak_ptr<const void> mManagerPresence;
  boost::intrusive_ptr<workspace::TopLevelWindow> mWindow;
  std::unique_ptr<Bar> mBar;
};

}  // namespace lumworkspace::sharedui
