// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <vector>

#include "lumcore/geom/Rect.h"
#include "lumui/ui/OS_Event.h"
#include "lumworkspace/Export.h"

namespace lumui::drawbot {
class SupplierInterface;
}

namespace lumui::ui {
class UI_Node;
}

namespace lumworkspace::workspace {

class TopLevelWindow;

// The windows of an application, of which one is the main window. It owns them and destroys their
// native parts when it goes.
class LUMWORKSPACE_API Workspace {
 public:
  // The supplier is borrowed and outlives the workspace. Null stands for the default one.
  explicit Workspace(lumui::drawbot::SupplierInterface* inSupplier);
  virtual ~Workspace();
  Workspace(const Workspace&) = delete;
  Workspace& operator=(const Workspace&) = delete;

  // Lets a window go and destroys its native part. False for a node that is no window of this
  // workspace.
  virtual bool ChildRequestRemove(boost::intrusive_ptr<lumui::ui::UI_Node> inChild);
  // Makes the main window, hidden, where there is none yet (a contract).
  virtual void CreateMainTopLevelWindow(lumui::ui::OSEventFunction inEventFunction);
  // Makes a further window, hidden, which is no child yet. The rectangle may be null.
  virtual boost::intrusive_ptr<TopLevelWindow> CreateTopLevelWindow(
      bool inIsMain, const lumcore::geom::RectT<int>* inRect);

  void AddChild(const boost::intrusive_ptr<TopLevelWindow>& inWindow);
  TopLevelWindow* GetMainTopLevelWindow() const;  // null while there is none
  const std::vector<boost::intrusive_ptr<TopLevelWindow>>& GetTopLevelWindows() const {
    return mWindows;
  }
  lumui::drawbot::SupplierInterface* GetDrawSupplier() const { return mSupplier; }
  // The default one where the workspace was made with null.
  lumui::drawbot::SupplierInterface* UI_GetDrawSupplier() const;

 private:
  friend class OS_Workspace;
  friend class TopLevelWindow;

  lumui::drawbot::SupplierInterface* mSupplier;
  std::vector<boost::intrusive_ptr<TopLevelWindow>> mWindows;
  HWND mClientFrame = nullptr;  // while the main window for it is made
};

// What binds a workspace to the application that runs it.
class LUMWORKSPACE_API OS_Workspace {
 public:
  OS_Workspace() = delete;

  // Makes the main window of the workspace in the application's frame (see lumui::ui::OS_Frame),
  // hidden, by CreateMainTopLevelWindow. The window is a frame (a contract). No flags are in use.
  static void AttachToClientApp(Workspace& ioWorkspace, HINSTANCE inApplication,
                                HINSTANCE inResources, HWND inWindow,
                                lumui::ui::OSEventFunction inEventFunction, int inFlags);
};

}  // namespace lumworkspace::workspace
