// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/TopLevelWindow.h"

#include "lumworkspace/workspace/Workspace.h"
#include "workspace/ScreenPlacement.h"

namespace lumworkspace::workspace {

TopLevelWindow::TopLevelWindow(Workspace* inWorkspace, bool inIsMain,
                               lumui::ui::OSEventFunction inEventFunction)
    : OS_Window(inEventFunction, false), mWorkspace(inWorkspace), mIsMain(inIsMain) {}

TopLevelWindow::~TopLevelWindow() = default;

bool TopLevelWindow::IsForTouch() const {
  return false;
}

bool TopLevelWindow::CanMegaZoom() const {
  return false;
}

void TopLevelWindow::ConstructWindow(const lumcore::geom::RectT<int>* inRect) {
  if (mIsMain) UI_TakeFrame(mWorkspace->mClientFrame);
  if (!inRect) {
    UI_ConstructWindow(nullptr);
    return;
  }
  const lumcore::geom::RectT<int> placed = PlaceOnPresentScreen(*inRect);
  UI_ConstructWindow(&placed);
}

// A window that is no child yet has nobody to ask.
void TopLevelWindow::UI_DoClose() {
  if (!mWorkspace->ChildRequestRemove(this)) OS_Window::UI_DoClose();
}

}  // namespace lumworkspace::workspace
