// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QApplication>
#include <atomic>
#include <boost/intrusive_ptr.hpp>
#include <functional>
#include <memory>
#include <string>

#include "lumui/Export.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/UI_Node.h"
#include "ui/HeldKeys.h"

class QKeyEvent;
class QMouseEvent;
class QSessionManager;
class QWidget;
class QWindow;

namespace lumui::datatransfer {
class DragWatch;
}

namespace lumui::ui {

// The application object of Qt, with the one road on which events come. What concerns a top-level
// window of ours becomes an OS_Event here, goes through the pre step, is handed on to Qt (which
// finds the widget and so the node) and goes through the post step. Every handler of ours that Qt
// calls is run guarded: no exception passes through Qt's own frames.
//
// Handlers may open nested loops and destroy windows, so whatever is remembered of a running event
// stands in a scope guard, and windows are held by reference.
class LUMUI_API EventGate : public QApplication {
 public:
  EventGate(int& ioArgumentCount, char** ioArguments);
  ~EventGate() override;

  static EventGate* Get();  // null without an application

  bool notify(QObject* inReceiver, QEvent* inEvent) override;

  // In an event, its own where none is under way. False if the function threw; the error function
  // has it then.
  bool RunGuarded(const std::function<void()>& inFunction);
  // Pre step, dispatch, post step; false if the pre step consumed the event.
  bool Pass(OS_Event& ioEvent, const std::function<void()>& inDispatch);
  // Pass, with the window's event function as the dispatch.
  void PassToWindow(OS_Event& ioEvent);
  // The node in which the running event began; null without one.
  UI_Node* GetStartNode() const { return mStartNode; }
  const OS_Event& GetCurrentOSEvent() const { return mCurrentOSEvent; }
  bool IsInEvent() const { return mDepth > 0; }
  bool IsInPointerEvent() const { return mInPointerEvent; }
  bool IsPainting() const { return mPainting; }
  // Of the last turn of a wheel, in milliseconds of the input's clock. The copies that Qt makes for
  // its widgets have no time.
  double GetWheelTime() const { return mWheelTime; }

  // Runs a drag's own loop: until it ends the pointer and the keys are the drag's.
  int RunDrag(const std::function<int()>& inLoop);
  bool IsDragging() const { return mDragging; }
  // Of a drop: what it opens has the pointer and the keys again.
  void RunDrop(const std::function<void()>& inDrop);
  // From any thread; it ends as if the user had given up.
  void CancelDrag();

  // The key event that is being dispatched, for the node that Qt asks. Null at other times.
  const KeyboardEvent* GetCurrentKey() const { return mKey ? &mKey->event : nullptr; }
  void DropPendingCharacters();
  // Says that a node took the key, and not a native control.
  void NoteKeyTakenByNode();
  // One character event for each unit, to the node with the focus and its ancestors.
  void TypeCharacters(OS_Window& inWindow, const QString& inText);

  // The session manager wants to end the session: asks every window, and refuses if one does.
  void CommitData(QSessionManager& ioSession);
  // Nobody has refused. It ends with a quit event, or goes on all the same.
  bool IsSessionEnding() const { return mSessionEnding; }

  // A modal window that shows in a headless run is rejected and reported unless it was announced.
  void AnnounceModal(bool inBegin) { mAnnouncedModals += inBegin ? 1 : -1; }

  Application::PreEventStep mPreStep;
  Application::PostEventStep mPostStep;
  Application::ErrorFunction mErrorFunction;
  std::function<bool(const KeyboardEvent&)> mShortcutClaim;
  std::function<bool(const ForeignPress&)> mForeignPressHook;
  std::function<void(int)> mQuitFunction;

 private:
  friend class NodePeer;

  struct KeyState {
    KeyboardEvent event;
    bool charactersDropped = false;
    bool takenByNode = false;
  };

  bool Route(QObject* inReceiver, QEvent* inEvent);
  // With the repeats of held keys marked as such.
  bool RouteMarked(QWindow& inWindow, QEvent& inEvent);
  bool RouteWindow(QWindow& inWindow, QEvent& inEvent);
  bool HandleInDrag(QWindow& inNative, QEvent& inEvent);
  bool IsReleaseOfDrag(const QWindow& inNative, const QEvent& inEvent);
  bool RouteForeign(QWindow& inWindow, QEvent& inEvent);
  bool RouteWidget(QWidget& inWidget, QEvent& inEvent);
  void WatchWidget(QWidget& inWidget, QEvent& inEvent);
  bool HandlePointer(OS_Window& inWindow, QWindow& inNative, QMouseEvent& inEvent);
  bool HandleWheel(OS_Window& inWindow, QWindow& inNative, QEvent& inEvent);
  bool HandleKey(OS_Window& inWindow, QWindow& inNative, QKeyEvent& inEvent);
  bool HandleShortcutOverride(OS_Window& inWindow, QKeyEvent& inEvent);
  bool HandleClose(OS_Window& inWindow, QEvent& inEvent);
  bool HandleQuit();
  bool AskSessionEnd();
  void EndSession();
  void SessionGoesOn();
  bool HandToQt(QObject& inReceiver, QEvent& inEvent, const OS_Event& inOSEvent);
  void RejectModal(QWidget& inWidget);
  bool CallGuarded(const std::function<void()>& inFunction);
  void ReportError(const std::exception_ptr& inError);
  void TellDisplayChange();

  int mDepth = 0;
  bool mSwallowMouse = false;
  bool mInPointerEvent = false;
  bool mPainting = false;
  double mWheelTime = 0;
  std::atomic<bool> mDragging{false};
  bool mDragTakesInput = false;
  Qt::MouseButtons mHeldSinceDrag;
  bool mDropCameHere = false;  // of the drag, so no other program's answer follows
  std::unique_ptr<datatransfer::DragWatch> mDragWatch;
  ModifierKeys mTypingModifiers;
  bool mSessionEnding = false;
  int mAnnouncedModals = 0;
  UI_Node* mStartNode = nullptr;
  OS_Event mCurrentOSEvent;
  KeyState* mKey = nullptr;
  HeldKeys mHeldKeys;
};

}  // namespace lumui::ui
