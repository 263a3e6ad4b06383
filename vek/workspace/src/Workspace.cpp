// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/workspace/Workspace.h"

#include "lumcore/debug/Contract.h"
#include "vek/app/App.h"
#include "vek/workspace/TopLevelWindowT.h"

namespace vek::workspace {

using lumworkspace::workspace::TopLevelWindow;
using Window = TopLevelWindowT<TopLevelWindow>;

Workspace::Workspace(lumui::drawbot::SupplierInterface* inSupplier)
    : lumworkspace::workspace::Workspace(inSupplier) {}

Workspace::~Workspace() = default;

bool Workspace::ChildRequestRemove(boost::intrusive_ptr<lumui::ui::UI_Node> inNode) {
  const auto* const window = dynamic_cast<const Window*>(inNode.get());
  app::App* const application = app::App::GetApp();
  if (window && window->IsMain() && application) application->SaveDefaultWorkSpace();
  return lumworkspace::workspace::Workspace::ChildRequestRemove(inNode);
}

void Workspace::CreateMainTopLevelWindow(lumui::ui::OSEventFunction inEventFunction) {
  LUM_INPUT_CONTRACT(GetMainTopLevelWindow() == nullptr);
  const boost::intrusive_ptr<Window> window(new Window(this, inEventFunction, true));
  window->UI_SetNodeID("MainWindow");
  AddChild(window);
}

boost::intrusive_ptr<TopLevelWindow> Workspace::CreateTopLevelWindow(
    bool inIsMain, const lumcore::geom::RectT<int>* inRect) {
  return new Window(this, inIsMain, inRect, nullptr, false, true);
}

}  // namespace vek::workspace
