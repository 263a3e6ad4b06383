// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Rect.h"
#include "lumui/ui/OS_Window.h"
#include "lumworkspace/Export.h"

namespace lumworkspace::workspace {

class Workspace;

// A window of a workspace. The workspace owns it once it is a child there; a close that its event
// function permits asks the workspace to let it go.
class LUMWORKSPACE_API TopLevelWindow : public lumui::ui::OS_Window {
 public:
  // No native window is made before ConstructWindow. The workspace outlives the window.
  TopLevelWindow(Workspace* inWorkspace, bool inIsMain, lumui::ui::OSEventFunction inEventFunction);
  ~TopLevelWindow() override;

  bool IsMain() const { return mIsMain; }
  virtual bool IsForTouch() const;  // false
  // Whether its views may be magnified beyond their usual limit. False.
  virtual bool CanMegaZoom() const;
  Workspace* GetWorkspace() const { return mWorkspace; }

  // In screen units, without the frame. A rectangle that lies on no present screen, or hardly, is
  // moved onto the nearest one and cut to its size. Null leaves place and size to the system. The
  // main window takes the frame of the client application, if one is attached.
  virtual void ConstructWindow(const lumcore::geom::RectT<int>* inRect);

  void UI_DoClose() override;

 private:
  Workspace* mWorkspace;
  bool mIsMain;
};

}  // namespace lumworkspace::workspace
