// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumworkspace/workspace/TopLevelWindow.h"

#include "docking/DockArea.h"
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

void TopLevelWindow::MoveTo(const lumcore::geom::RectT<int>& inRect) {
  const lumcore::geom::RectT<int> placed = PlaceOnPresentScreen(inRect);
  UI_SetLocalRectF(lumcore::geom::RectT<float>(
      static_cast<float>(placed.x), static_cast<float>(placed.y), static_cast<float>(placed.width),
      static_cast<float>(placed.height)));
}

docking::DockArea& TopLevelWindow::GetDockArea() const {
  if (!mDockArea) {
    mDockArea = new docking::DockArea(mIsMain, IsForTouch());
    const auto& rect = UI_GetLocalRectF();
    mDockArea->UI_SetLocalRectF(lumcore::geom::RectT<float>(0, 0, rect.width, rect.height));
    const_cast<TopLevelWindow*>(this)->UI_InsertChild(mDockArea, 0);
  }
  return *mDockArea;
}

void TopLevelWindow::SetCentralNode(const boost::intrusive_ptr<lumui::ui::UI_Node>& inNode) {
  GetDockArea().SetCentralNode(inNode);
}

lumui::ui::UI_Node* TopLevelWindow::GetCentralNode() const {
  return mDockArea ? mDockArea->GetCentralNode() : nullptr;
}

void TopLevelWindow::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  OS_Window::UI_SizeChanged(inRect);
  if (mDockArea) mDockArea->UI_SetLocalRectF(inRect);
}

// A window that is no child yet has nobody to ask.
void TopLevelWindow::UI_DoClose() {
  if (!mWorkspace->ChildRequestRemove(this)) OS_Window::UI_DoClose();
}

}  // namespace lumworkspace::workspace
