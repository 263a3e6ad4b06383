// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineWindow.h"

#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace outliner {

using lumworkspace::workspace::TopLevelWindow;

OutlineWindow::OutlineWindow(lumworkspace::workspace::Workspace* inWorkspace,
                             lumui::ui::OSEventFunction inEventFunction)
    : TopLevelWindow(inWorkspace, true, inEventFunction) {}

void OutlineWindow::SetContent(const boost::intrusive_ptr<lumui::ui::UI_Node>& inContent) {
  mContent = inContent;
  UI_AddChild(inContent);
  const auto& rect = UI_GetLocalRectF();
  mContent->UI_SetLocalRectF({0, 0, rect.width, rect.height});
}

void OutlineWindow::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  TopLevelWindow::UI_SizeChanged(inRect);
  if (mContent) mContent->UI_SetLocalRectF(inRect);
}

bool OutlineWindow::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                                       const lumui::ui::KeyboardEvent& inEvent) {
  if (TopLevelWindow::UI_DoKeyboardEvent(inNode, inEvent)) return true;
  const lumcore::utility::StKeepAlive keepAlive(*this);
  try {
    // Keyboards of other scripts have our letters only as a second reading of their keys.
    const bool taken = lumui::ui::OfferReadings(inEvent, [](const auto& inReading) {
      return vek::uisupport::KeyCommandManager::Get().RouteKeyEvent(inReading);
    });
    if (!taken) return false;
  } catch (...) {  // a key whose command fails has meant the command all the same
    lumui::ui::FlushPostActionKeyEvents(inEvent);
    throw;
  }
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  return true;
}

OutlineWorkspace::OutlineWorkspace() : Workspace(nullptr) {}

void OutlineWorkspace::CreateMainTopLevelWindow(lumui::ui::OSEventFunction inEventFunction) {
  const boost::intrusive_ptr<OutlineWindow> window(new OutlineWindow(this, inEventFunction));
  window->ConstructWindow(nullptr);
  AddChild(window);
}

}  // namespace outliner
