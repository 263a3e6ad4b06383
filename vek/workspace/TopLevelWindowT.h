// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>

#include "lumui/datatransfer/OS_DropTarget.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "lumworkspace/workspace/TouchTopLevelWindow.h"
#include "vek/config/Export.h"

namespace lumui::ui {
class UI_DragDropHandler;
}

namespace vek::workspace {

// A window of a workspace, for the pointer or for touch, that takes drops and offers every key that
// its nodes have left to the key map.
template <class Base>
class TopLevelWindowT : public Base {
 public:
  using Rect = lumcore::geom::RectT<int>;

  // A main window. Without a native part until ConstructWindow, unless inConstructNow says so.
  TopLevelWindowT(lumworkspace::workspace::Workspace* inWorkspace,
                  lumui::ui::OSEventFunction inEventFunction, bool inConstructNow);
  // A frameless one has neither a caption nor a sizing frame. The rectangle may be null; neither
  // counts where the native part is made later.
  TopLevelWindowT(lumworkspace::workspace::Workspace* inWorkspace, bool inIsMain,
                  const Rect* inRect, lumui::ui::OSEventFunction inEventFunction, bool inFrameless,
                  bool inConstructNow);
  ~TopLevelWindowT() override;

  void ConstructWindow(const Rect* inRect) override;
  // The same for all windows of this kind.
  bool CanMegaZoom() const override;
  static bool GetSupportsMegaZoom();
  static void SetSupportsMegaZoom(bool inSupports);

  // Gets what no node under the pointer takes.
  void SetDragDropFallbackHandler(boost::shared_ptr<lumui::ui::UI_DragDropHandler>& inHandler);

  // A key that began within a text field never reaches the key map. The field's own keys that it
  // does not take do.
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;

 private:
  lumui::datatransfer::OS_DropTarget mDropTarget;
  static bool mSupportsMegaZoomB;
};

extern template class VEK_API TopLevelWindowT<lumworkspace::workspace::TopLevelWindow>;
extern template class VEK_API TopLevelWindowT<lumworkspace::workspace::TouchTopLevelWindow>;

}  // namespace vek::workspace
