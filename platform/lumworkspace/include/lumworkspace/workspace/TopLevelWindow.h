// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "lumcore/geom/Rect.h"
#include "lumui/ui/OS_Window.h"
#include "lumworkspace/Export.h"

namespace lumworkspace::docking {
class DockArea;
class Docking;
}  // namespace lumworkspace::docking

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

  // Puts it there, on a present screen as above.
  void MoveTo(const lumcore::geom::RectT<int>& inRect);

  // What the docks stand around: the view of the document. Null for none; the docks then fill the
  // window. It gets its size from the window.
  void SetCentralNode(const boost::intrusive_ptr<lumui::ui::UI_Node>& inNode);
  lumui::ui::UI_Node* GetCentralNode() const;

  void UI_DoClose() override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  friend class lumworkspace::docking::Docking;

  // Made when it is first wanted: a window without docks and centre is the host's to fill.
  docking::DockArea& GetDockArea() const;
  docking::DockArea* FindDockArea() const { return mDockArea.get(); }

  Workspace* mWorkspace;
  bool mIsMain;
  mutable boost::intrusive_ptr<docking::DockArea> mDockArea;
};

}  // namespace lumworkspace::workspace
