// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/testing/Layouts.h"

#include "docking/Docking.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/Workspace.h"

namespace lumworkspace::testing {

std::string LayoutAsText(const workspace::Workspace& inWorkspace, bool inWithSizes) {
  const workspace::TopLevelWindow* const main = inWorkspace.GetMainTopLevelWindow();
  return layout::AsText(inWorkspace.GetDocking().Capture(), inWithSizes,
                        main && main->GetCentralNode());
}

}  // namespace lumworkspace::testing
