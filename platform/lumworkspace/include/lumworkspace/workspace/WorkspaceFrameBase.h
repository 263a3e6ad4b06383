// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Point.h"
#include "lumui/ui/UI_SubView.h"
#include "lumworkspace/Export.h"

namespace lumworkspace::docking {
class DockArea;
class Docking;
}  // namespace lumworkspace::docking

namespace lumworkspace::workspace {

class TabPanel;
class Workspace;

// The dock around a panel: title bar, buttons, and its place in a group of tabs. Groups are the
// user's to make and to take apart, so a frame answers for the group that it stands in now. The
// workspace makes frames and lets them go.
class LUMWORKSPACE_API WorkspaceFrameBase : public lumui::ui::UI_SubView {
 public:
  ~WorkspaceFrameBase() override;

  const lumcore::UTF8String& GetTabType() const { return mTabType; }
  TabPanel* GetTabPanel() const;  // null before it is made and after it was closed
  // Of the group, in the order of the tabs, this one included.
  std::vector<lumcore::UTF8String> GetTabTypesOfGroup() const;
  bool IsInFront() const;   // of its group
  bool IsFloating() const;  // in a window other than the main window

  // The title bar and the tab show the panel's title from then on.
  void TitleChanged();

 private:
  friend class lumworkspace::docking::DockArea;
  friend class lumworkspace::docking::Docking;
  class Peer;

  WorkspaceFrameBase(docking::Docking& inDocking, const lumcore::UTF8String& inTabType,
                     bool inClosable, const lumcore::geom::PointT<int>& inLeastSize);
  Peer& GetFramePeer() const;

  docking::Docking* mDocking;  // null once the workspace has let it go
  lumcore::UTF8String mTabType;
};

}  // namespace lumworkspace::workspace
