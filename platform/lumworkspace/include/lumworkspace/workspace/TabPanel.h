// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/UI_SubView.h"
#include "lumworkspace/Export.h"

namespace lumui::utility {
class OS_Menu;
}

namespace lumworkspace::docking {
class Docking;
}

namespace lumworkspace::workspace {

class Workspace;
class WorkspaceFrameBase;

// What stands in a dock: a view of the host's under a tab with a title. A creator makes it in a
// frame, which owns it and gives it its size. A panel that is closed is taken out of its frame and
// let go; the workspace remembers where it stood.
class LUMWORKSPACE_API TabPanel : public lumui::ui::UI_SubView {
 public:
  // The event function, which may be null, gets the messages to a window that is made for this
  // panel when it leaves the main window. inHasFlyoutMenu puts a button for the menu beside the
  // title.
  TabPanel(Workspace* inWorkspace, WorkspaceFrameBase* inFrame, const lumcore::UTF16String& inTitle,
           const lumcore::UTF8String& inTabType, lumui::ui::OSEventFunction inEventFunction,
           bool inHasFlyoutMenu);
  ~TabPanel() override;

  const lumcore::UTF8String& GetTabType() const { return mTabType; }
  const lumcore::UTF16String& GetTitle() const { return mTitle; }
  void SetTitle(const lumcore::UTF16String& inTitle);
  Workspace* GetWorkspace() const { return mWorkspace; }
  WorkspaceFrameBase* GetFrame() const { return mFrame; }  // null for a panel that was closed
  lumui::ui::OSEventFunction GetEventFunction() const { return mEventFunction; }
  bool HasFlyoutMenu() const { return mHasFlyoutMenu; }

  // Ids from here on are the platform's own, and never reach DoFlyoutMenuCommand.
  static constexpr unsigned kFirstOwnFlyoutCommand = 0xF000;

  // Fills an empty menu, as the button does each time.
  void BuildFlyoutMenu(lumui::utility::OS_Menu& ioMenu) { PopulateFlyoutMenu(ioMenu); }
  // False for an id that nobody takes.
  bool RunFlyoutMenuCommand(unsigned inCommand);

 protected:
  // The base operation adds what every panel can: leave the main window or come back, and close.
  virtual void PopulateFlyoutMenu(lumui::utility::OS_Menu& ioMenu);
  // For what an override has added. The base operation answers false.
  virtual bool DoFlyoutMenuCommand(unsigned inCommand);

 private:
  friend class lumworkspace::docking::Docking;

  Workspace* mWorkspace;
  WorkspaceFrameBase* mFrame;
  lumcore::UTF16String mTitle;
  lumcore::UTF8String mTabType;
  lumui::ui::OSEventFunction mEventFunction;
  bool mHasFlyoutMenu;
};

}  // namespace lumworkspace::workspace
