// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/workspace/TopLevelWindow.h"

namespace lumworkspace::workspace {

// A window that is handled by touch: its tabs and what lies between its docks are as big as a
// finger needs them.
class LUMWORKSPACE_API TouchTopLevelWindow : public TopLevelWindow {
 public:
  TouchTopLevelWindow(Workspace* inWorkspace, bool inIsMain,
                      lumui::ui::OSEventFunction inEventFunction);
  ~TouchTopLevelWindow() override;

  bool IsForTouch() const override;
};

}  // namespace lumworkspace::workspace
