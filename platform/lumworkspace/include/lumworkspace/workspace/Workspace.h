// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Rect.h"
#include "lumui/ui/OS_Event.h"
#include "lumworkspace/Export.h"

namespace lumcore::proplist {
class PropList;
}

namespace lumui::drawbot {
class SupplierInterface;
}

namespace lumui::ui {
class UI_Node;
}

namespace lumworkspace::docking {
class Docking;
}

namespace lumworkspace::workspace {

class TabCreator;
class TabPanel;
class TopLevelWindow;
struct TabPlace;

// The windows of an application, of which one is the main window. It owns them and destroys their
// native parts when it goes; the panels go before. A panel that asks its workspace then gets the
// layout as it was, and opens nothing any more.
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
  // Panels, by their tab types, of which each is there once at most.

  // Takes the creator, in place of one for the same type. A tab that the layout shows, and that
  // nobody could make so far, appears.
  void RegisterTabCreator(TabCreator* inCreator);
  TabCreator* FindTabCreator(const lumcore::UTF8String& inTabType) const;  // null for none
  // Of the creators, in ascending order.
  std::vector<lumcore::UTF8String> GetTabTypes() const;

  // Brings the tab to the front, and makes its panel if need be: where the place says; without one
  // where it stood last, or where its creator wants it. Null where there is no creator or no main
  // window, or the creator makes none. What the creator throws passes, and nothing has changed.
  TabPanel* OpenTab(const lumcore::UTF8String& inTabType, const TabPlace* inPlace = nullptr);
  TabPanel* FindTab(const lumcore::UTF8String& inTabType) const;  // null where it is not open
  // Of an open tab; false for another.
  bool CloseTab(const lumcore::UTF8String& inTabType);
  bool ActivateTab(const lumcore::UTF8String& inTabType);
  // Into a window of its own, or back to where it stood before.
  bool FloatTab(const lumcore::UTF8String& inTabType, bool inFloating);
  // The function may open and close tabs: those there at the start that still are get it.
  void ForEachTabPanel(const std::function<void(TabPanel&)>& inFunction) const;

  // Where all tabs stand, also those that are closed and those that nobody can make at present, and
  // the place of the windows; see docs/file-formats.md. What the user has not touched comes out as
  // it was put in, also where a smaller window or another screen has changed what is seen.
  lumcore::proplist::PropList GetLayout() const;
  // There is a main window (a contract). inName is the path, or what else names the origin in an
  // error. Throws lumcore::config::Error for what is no layout, and what a creator throws; then all
  // panels stay where they are.
  void SetLayout(const lumcore::proplist::PropList& inLayout, const lumcore::UTF16String& inName);

  docking::Docking& GetDocking() const { return *mDocking; }  // for the platform's own sources

  lumui::drawbot::SupplierInterface* GetDrawSupplier() const { return mSupplier; }
  // The default one where the workspace was made with null.
  lumui::drawbot::SupplierInterface* UI_GetDrawSupplier() const;

 private:
  friend class OS_Workspace;
  friend class TopLevelWindow;

  lumui::drawbot::SupplierInterface* mSupplier;
  std::vector<boost::intrusive_ptr<TopLevelWindow>> mWindows;
  std::unique_ptr<docking::Docking> mDocking;
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
