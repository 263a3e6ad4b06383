// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumworkspace/workspace/Workspace.h"
#include "vek/config/Export.h"

namespace vek::workspace {

// The windows of an application of this framework: they take drops, and their keys run commands.
// When the main window goes, the application saves its workspace first.
class VEK_API Workspace : public lumworkspace::workspace::Workspace {
 public:
  explicit Workspace(lumui::drawbot::SupplierInterface* inSupplier);
  ~Workspace() override;

  bool ChildRequestRemove(boost::intrusive_ptr<lumui::ui::UI_Node> inNode) override;
  // The window's node id is "MainWindow".
  void CreateMainTopLevelWindow(lumui::ui::OSEventFunction inEventFunction) override;
  boost::intrusive_ptr<lumworkspace::workspace::TopLevelWindow> CreateTopLevelWindow(
      bool inIsMain, const lumcore::geom::RectT<int>* inRect) override;
};

}  // namespace vek::workspace
