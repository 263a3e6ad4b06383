// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/workspace/TabCreator.h"
#include "vek/config/Export.h"

namespace vek::workspace {

// Offers the view debugger to a workspace. A host that wants it registers one, once its workspace
// is ready, and opens the tab by a command of its own.
class VEK_API ViewDebuggerTabCreator : public lumworkspace::workspace::TabCreator {
 public:
  static constexpr char kTabType[] = "vek.ViewDebugger";

  ViewDebuggerTabCreator();
  ~ViewDebuggerTabCreator() override;

  boost::intrusive_ptr<lumworkspace::workspace::TabPanel> CreateTabPanel(
      lumworkspace::workspace::Workspace* inWorkspace,
      lumworkspace::workspace::WorkspaceFrameBase* inFrame) override;
  // On the right, as wide as its buttons and the first columns of its list.
  lumworkspace::workspace::TabPlace GetDefaultPlace(
      const lumworkspace::workspace::Workspace& inWorkspace) const override;
  lumcore::geom::PointT<int> GetLeastSize() const override;
};

}  // namespace vek::workspace
