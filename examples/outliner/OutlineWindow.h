// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/workspace/Workspace.h"

namespace outliner {

// The main window: it shows one node in all of its space, and asks the key map about each key that
// no node has taken.
class OutlineWindow final : public lumworkspace::workspace::TopLevelWindow {
 public:
  OutlineWindow(lumworkspace::workspace::Workspace* inWorkspace,
                lumui::ui::OSEventFunction inEventFunction);

  void SetContent(const boost::intrusive_ptr<lumui::ui::UI_Node>& inContent);

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  boost::intrusive_ptr<lumui::ui::UI_Node> mContent;
};

// The workspace whose main window is an OutlineWindow.
class OutlineWorkspace final : public vek::workspace::Workspace {
 public:
  OutlineWorkspace();

  void CreateMainTopLevelWindow(lumui::ui::OSEventFunction inEventFunction) override;
};

}  // namespace outliner
