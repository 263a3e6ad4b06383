// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/Strings.h"
#include "lumworkspace/Export.h"
#include "lumworkspace/workspace/TabPlace.h"

namespace lumworkspace::workspace {

class TabPanel;
class Workspace;
class WorkspaceFrameBase;

// Makes the panels of one tab type, each time the workspace needs one.
class LUMWORKSPACE_API TabCreator {
 public:
  explicit TabCreator(const lumcore::UTF8String& inTabType);
  virtual ~TabCreator();
  TabCreator(const TabCreator&) = delete;
  TabCreator& operator=(const TabCreator&) = delete;

  // A panel of this type, made with the frame. Null leaves the tab closed. What it throws reaches
  // whoever wanted the tab, and the tabs stay as they were.
  virtual boost::intrusive_ptr<TabPanel> CreateTabPanel(Workspace* inWorkspace,
                                                        WorkspaceFrameBase* inFrame) = 0;
  // Where a tab stands that has never stood anywhere. By default on the right, in one group with
  // all others of which nobody has said more.
  virtual TabPlace GetDefaultPlace(const Workspace& inWorkspace) const;
  // Whether the user may close it; true. One that may not has no button for it.
  virtual bool IsClosable() const;
  // How small the dock gets at least, in units of the screen; 60 each way.
  virtual lumcore::geom::PointT<int> GetLeastSize() const;

  const lumcore::UTF8String& GetTabType() const { return mTabType; }

 private:
  lumcore::UTF8String mTabType;
};

}  // namespace lumworkspace::workspace
