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
  // The supplier is borrowed and outlives the workspace.
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

 private:
  lumui::drawbot::SupplierInterface* mSupplier;
  std::vector<boost::intrusive_ptr<TopLevelWindow>> mWindows;
};

}  // namespace lumworkspace::workspace
