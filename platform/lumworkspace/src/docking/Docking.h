// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <map>
#include <memory>
#include <vector>

#include "docking/DragWatch.h"
#include "layout/Layout.h"
#include "lumworkspace/workspace/TabCreator.h"

namespace lumworkspace::workspace {
class TabPanel;
class TopLevelWindow;
class Workspace;
class WorkspaceFrameBase;
}  // namespace lumworkspace::workspace

namespace lumworkspace::docking {

class DockArea;

// Where all panels of a workspace stand. The layout, which has open and closed tabs and also those
// that nobody can make at present, is what counts; the windows show it. What the user does with
// docks is read back from the windows when somebody asks; until the user does anything the layout
// stays as it was told, whatever a small window has made of it.
//
// A tab that leaves the main window gets a window of the workspace's, not a bare dock of Qt's: so
// its events pass the gate as all others do, and it may hold rows, columns and groups as well.
class Docking {
 public:
  using Frame = workspace::WorkspaceFrameBase;
  using UTF8String = lumcore::UTF8String;

  explicit Docking(workspace::Workspace& inWorkspace);
  ~Docking();
  Docking(const Docking&) = delete;
  Docking& operator=(const Docking&) = delete;

  void Register(std::unique_ptr<workspace::TabCreator> inCreator);
  workspace::TabCreator* FindCreator(const UTF8String& inType) const;
  std::vector<UTF8String> GetTypes() const;

  // Null where nobody makes such a panel, or there is no main window.
  workspace::TabPanel* Open(const UTF8String& inType, const workspace::TabPlace* inPlace);
  workspace::TabPanel* Find(const UTF8String& inType) const;
  bool Close(const UTF8String& inType);
  bool Activate(const UTF8String& inType);
  bool SetFloating(const UTF8String& inType, bool inFloating, const layout::Rect* inRect);
  void ForEachPanel(const std::function<void(workspace::TabPanel&)>& inFunction) const;

  // As it is now.
  layout::Layout Capture() const;
  // Makes what is open and not there, lets go what is not open, and moves the rest. If a creator
  // throws, everything stays as it was.
  void Show(const layout::Layout& inLayout);
  // Show, of a layout that has nothing to do with the one before.
  void Replace(const layout::Layout& inLayout);

  // Of the frames.
  void ToggleFloating(const UTF8String& inType);
  void MovedByUser(const Frame& inFrame);
  void LeftByUser(Frame& inFrame);
  void TitlesChanged();
  // Of the workspace, before the window is destroyed.
  void WindowGoes(workspace::TopLevelWindow& inWindow);
  // Of the workspace that ends: panels and creators go. Whoever asks meanwhile gets an answer: the
  // layout is what it was, and nothing opens any more.
  void LetGoAll();

 private:
  using FrameP = boost::intrusive_ptr<Frame>;
  using WindowP = boost::intrusive_ptr<workspace::TopLevelWindow>;
  using Frames = std::map<UTF8String, FrameP>;

  // The window of a floating part of the layout.
  struct FloatingWindow {
    WindowP window;
    layout::Rect placed;  // where it was put, which may be elsewhere than the layout says
  };

  workspace::TopLevelWindow* GetMain() const;
  Frame* FindFrame(const UTF8String& inType) const;
  bool IsMissing(const UTF8String& inType) const;
  FrameP MakeFrame(const UTF8String& inType);
  Frames MakeMissingFrames(const layout::Layout& inLayout);
  void LetGo(const UTF8String& inType);
  bool IsShown(const layout::Item& inItem) const;
  WindowP MakeFloatingWindow(const layout::Floating& inFloating);
  void ShowFloating(layout::Layout& ioLayout);
  void DropDragged(const UTF8String& inType);
  bool FindDropPlace(const Frame& inFrame, workspace::TabPlace& outPlace) const;

  workspace::Workspace& mWorkspace;
  std::map<UTF8String, std::unique_ptr<workspace::TabCreator>> mCreators;
  Frames mFrames;
  layout::Layout mLayout;
  std::vector<FloatingWindow> mFloating;  // as in the layout; no window where nothing is shown
  layout::Rect mMainPlaced;               // where the main window was put
  std::map<UTF8String, layout::Layout> mCameFrom;  // of floating tabs: the layout that they left
  bool mShowing = false;
  bool mEnding = false;
  DragWatch mDragWatch;
};

}  // namespace lumworkspace::docking
