// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/TouchTopLevelWindow.h"

namespace lumworkspace::workspace {

TouchTopLevelWindow::TouchTopLevelWindow(Workspace* inWorkspace, bool inIsMain,
                                         lumui::ui::OSEventFunction inEventFunction)
    : TopLevelWindow(inWorkspace, inIsMain, inEventFunction) {}

TouchTopLevelWindow::~TouchTopLevelWindow() = default;

bool TouchTopLevelWindow::IsForTouch() const {
  return true;
}

}  // namespace lumworkspace::workspace
