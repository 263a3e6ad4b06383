// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <functional>
#include <memory>

#include "lumcore/geom/Point.h"
#include "lumui/Export.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/OS_Event.h"

namespace lumui::ui {

class KeyboardEvent;

// A press of the left or right button in a window of this process that is none of ours, and no
// popup, tool tip or picture of a drag.
struct ForeignPress {
  HWND window = nullptr;  // the same for each press in a window; UI_GetWindow finds none for it
  unsigned message = 0;   // kMessageLeftDown or kMessageRightDown
  lumcore::geom::PointT<int> screenPosition;
  ModifierKeys modifiers;
};

// The process's connection with the window system, its event loop and the one gate that every event
// of our top-level windows passes: pre step, dispatch, post step. There is one at a time, made
// before any window and destroyed after the last. Everything but Quit belongs to the thread that
// made it.
class LUMUI_API Application {
 public:
  // False consumes the event: it is not dispatched and the post step is not called. What does not
  // come through the queue is dispatched all the same: kMessageDestroy, kMessageQueryEndSession,
  // kMessageEndSession, kMessageDisplayChange and kMessageInitMenuPopup.
  using PreEventStep = std::function<bool(const OS_Event&)>;
  using PostEventStep = std::function<void(const OS_Event&)>;
  using ErrorFunction = std::function<void(const std::exception_ptr&)>;

  // The arguments live as long as the application; those that the window system takes are removed.
  // Without a display it runs headless: all works, and nobody sees it.
  Application(int& ioArgumentCount, char** ioArguments);
  ~Application();
  Application(const Application&) = delete;
  Application& operator=(const Application&) = delete;

  static Application* Get();  // null while there is none

  bool IsHeadless() const;

  // Either may be empty. A pre step that throws lets the event through.
  void SetEventSteps(PreEventStep inPre, PostEventStep inPost);
  // Called once each time the queue has run empty, before the loop waits.
  void SetIdleFunction(std::function<void()> inIdle);
  // Gets every exception that a handler lets out, in place of the error manager's reporter. Empty
  // brings the error manager back.
  void SetErrorFunction(ErrorFunction inFunction);
  // True keeps a key press from opening a menu by its mnemonic: the press then comes as an event.
  // Asked with each reading of the key until it answers true.
  void SetShortcutClaim(std::function<bool(const KeyboardEvent&)> inClaim);
  // Asked before the window gets the press; true keeps it from the window.
  void SetForeignPressHook(std::function<bool(const ForeignPress&)> inHook);

  // Runs until Quit and returns its code. What the executor holds then runs first, but not what
  // that posts in turn. A Quit from before the call ends it at once in this way. Not re-entrant (a
  // contract).
  int Run();
  void Quit(int inCode = 0);  // from any thread
  bool IsQuitting() const;
  void CancelQuit();
  // Handles what is in the queue now, and what that brings, until the queue is empty; no idle.
  void PumpPendingEvents();

  // Runs a function; what it throws goes to the error function. False if it threw.
  bool RunGuarded(const std::function<void()>& inFunction);
  // Passes an event through pre step, its window's event function and post step.
  void SendEvent(OS_Event& ioEvent);

  class Impl;
  Impl* GetImpl() const { return mImpl.get(); }  // for the platform's own sources

 private:
  std::unique_ptr<Impl> mImpl;
};

}  // namespace lumui::ui
