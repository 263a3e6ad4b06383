// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <vector>

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "lumui/Export.h"

namespace lumui::ui {

class Executor;
class InputCapture;
class OS_Window;
class UI_Node;

enum class CursorShape {
  kArrow,
  kIBeam,
  kCross,
  kHand,
  kOpenHand,
  kClosedHand,
  kMove,
  kResizeHorizontal,
  kResizeVertical,
  kResizeFalling,  // from top left to bottom right
  kResizeRising,
  kForbidden,
  kWait,
  kHidden,
};

// What belongs to all nodes together: the running capture, the focus, the cursor, the executor.
// The application owns it.
class LUMUI_API UI_NodeManager {
 public:
  // Null while there is no application; inMustExist makes that a contract failure.
  static UI_NodeManager* Get(bool inMustExist);

  // A running capture is cancelled first. If the node is not to be seen, the capture begins and is
  // cancelled at once.
  void BeginInputCapture(const boost::intrusive_ptr<InputCapture>& inCapture);
  // Does nothing if none runs.
  void EndInputCapture(bool inCancelled);
  InputCapture* GetInputCapture() const;  // null if none runs
  // The PointerEvent buttons that are down. A release that went to a box or a menu, or that a modal
  // window has kept from the nodes, counts as well.
  unsigned GetHeldButtons() const;

  UI_Node* GetFocusNode() const;  // null if no node of ours has the keyboard
  // The cursor over our windows, until the next move of the pointer asks anew.
  void SetCursor(CursorShape inShape);
  CursorShape GetCursor() const;

  // Called with true when the application comes to the front and with false when it leaves it.
  // Whoever installed a function takes it back by clearing it.
  void InstallApplicationActivationChangedFunction(
      const boost::shared_ptr<boost::function<void(bool)>>& inFunction);
  // Called within each change of what a node tells of itself: its children, id, rectangle, whether
  // it is visible, disabled, has the keyboard or wants it, and for a window that its native part
  // was made or destroyed. The node may be in the middle of something else: the function only notes
  // that there is something to look at. It is taken back by clearing it.
  void InstallNodeChangedFunction(
      const boost::shared_ptr<boost::function<void(UI_Node&)>>& inFunction);
  // Those with a native part, in the order in which that was made.
  std::vector<OS_Window*> GetWindows() const;

  // Alt and a letter open menus and press buttons from now on.
  void EnableMnemonics();
  bool AreMnemonicsEnabled() const;

  // Usable from any thread, as long as the application lives.
  Executor* GetExecutor() const;

  class Impl;
  Impl* GetImpl() const { return mImpl.get(); }  // for the platform's own sources

 private:
  friend class Application;
  UI_NodeManager();
  ~UI_NodeManager();

  std::unique_ptr<Impl> mImpl;
};

}  // namespace lumui::ui
