// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/EventGate.h"

#include <QDrag>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScreen>
#include <QThread>
#include <QTimer>
#include <QWheelEvent>
#include <QWidget>
#include <QWindow>
#include <exception>
#include <utility>

#include "datatransfer/DragWatch.h"
#include "datatransfer/HeadlessDrag.h"
#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumui/utility/InteractionRegistry.h"
#include "ui/AccessibleNode.h"
#include "ui/FrameRegistry.h"
#include "ui/NodeManagerImpl.h"
#include "ui/NodePeer.h"
#include "ui/QtEvents.h"
#include "ui/WindowRegistry.h"

namespace lumui::ui {

namespace {

EventGate* sGate = nullptr;

bool IsPointerEvent(QEvent::Type inType) {
  return inType == QEvent::MouseButtonPress || inType == QEvent::MouseButtonRelease ||
         inType == QEvent::MouseButtonDblClick || inType == QEvent::MouseMove;
}

bool IsPress(QEvent::Type inType) {
  return inType == QEvent::MouseButtonPress || inType == QEvent::MouseButtonDblClick;
}

bool IsUsersDoing(QEvent::Type inType) {
  return IsPress(inType) || inType == QEvent::KeyPress || inType == QEvent::Close;
}

// What comes and goes over other windows.
bool IsPassing(const QWindow& inNative) {
  const Qt::WindowType type = inNative.type();
  return type == Qt::Popup || type == Qt::ToolTip || type == Qt::SplashScreen ||
         inNative.flags().testFlag(Qt::WindowTransparentForInput);
}

// A window that is none of ours gets a handle when the hook is first told of it, and keeps it.
HWND HandleOfForeign(QWindow& ioNative) {
  constexpr const char* kHandle = "lumuiHandle";
  if (!ioNative.property(kHandle).isValid()) {
    ioNative.setProperty(kHandle,
                         QVariant::fromValue(reinterpret_cast<quintptr>(NewWindowHandle())));
  }
  return reinterpret_cast<HWND>(ioNative.property(kHandle).value<quintptr>());
}

bool IsRoutedToNodes(QEvent::Type inType) {
  return IsPointerEvent(inType) || inType == QEvent::Wheel || inType == QEvent::KeyPress ||
         inType == QEvent::KeyRelease;
}

// The keyboard and the pointer are an open menu's, and over the bar the pointer is the bar's. They
// come by way of the window all the same.
bool BelongsToMenus(const OS_Window& inWindow, const QEvent& inEvent) {
  const QEvent::Type type = inEvent.type();
  if (!IsRoutedToNodes(type) && type != QEvent::ShortcutOverride) return false;
  if (QApplication::activePopupWidget()) return true;
  if (!IsPointerEvent(type) || NodeManagerImpl().capture.IsRunning()) return false;
  return static_cast<const QMouseEvent&>(inEvent).position().y() <
         inWindow.GetPeer()->GetChromeHeight();
}

}  // namespace

EventGate::EventGate(int& ioArgumentCount, char** ioArguments)
    : QApplication(ioArgumentCount, ioArguments) {
  sGate = this;
  setQuitOnLastWindowClosed(false);
  InstallAccessibleNodes();
  mDragWatch = std::make_unique<datatransfer::DragWatch>([] {
    if (auto* const manager = NodeManagerImplIfAny()) manager->drops.Leave();
  });
  connect(this, &QGuiApplication::commitDataRequest, this, &EventGate::CommitData);
  const auto displayChanged = [this] { TellDisplayChange(); };
  const auto watchScreen = [this, displayChanged](QScreen* inScreen) {
    connect(inScreen, &QScreen::geometryChanged, this, displayChanged);
    displayChanged();
  };
  for (QScreen* screen : screens()) {
    connect(screen, &QScreen::geometryChanged, this, displayChanged);
  }
  connect(this, &QGuiApplication::screenAdded, this, watchScreen);
  connect(this, &QGuiApplication::screenRemoved, this, displayChanged);
}

EventGate::~EventGate() {
  sGate = nullptr;
}

EventGate* EventGate::Get() {
  return sGate;
}

// The catch is the last net: handlers of ours are guarded where they are called.
bool EventGate::notify(QObject* inReceiver, QEvent* inEvent) {
  if (QThread::currentThread() != thread()) return QApplication::notify(inReceiver, inEvent);
  const lumcore::utility::StScopedValue<int> depth(mDepth, mDepth + 1);
  try {
    return Route(inReceiver, inEvent);
  } catch (...) {
    ReportError(std::current_exception());
    return true;
  }
}

bool EventGate::Route(QObject* inReceiver, QEvent* inEvent) {
  if (inReceiver->isWidgetType()) return RouteWidget(*static_cast<QWidget*>(inReceiver), *inEvent);
  if (inReceiver->isWindowType()) return RouteMarked(*static_cast<QWindow*>(inReceiver), *inEvent);
  if (inReceiver == this && inEvent->type() == QEvent::Quit) return HandleQuit();
  return QApplication::notify(inReceiver, inEvent);
}

bool EventGate::RouteMarked(QWindow& inNative, QEvent& inEvent) {
  if (!mHeldKeys.IsUnmarkedRepeat(inEvent)) {
    mHeldKeys.Note(inEvent);
    return RouteWindow(inNative, inEvent);
  }
  MarkedRepeat repeat(static_cast<const QKeyEvent&>(inEvent));
  const bool handled = RouteWindow(inNative, repeat);
  inEvent.setAccepted(repeat.isAccepted());
  return handled;
}

bool EventGate::RouteWindow(QWindow& inNative, QEvent& inEvent) {
  if (inEvent.type() == QEvent::WindowBlocked && FindWindowOf(inNative)) {
    NodeManagerImpl().capture.End(true);
  }
  if (mDragTakesInput && IsRoutedToNodes(inEvent.type())) return HandleInDrag(inNative, inEvent);
  if (inEvent.type() == QEvent::Drop) mDropCameHere = true;
  if (IsReleaseOfDrag(inNative, inEvent)) {
    // Qt's idea of the held buttons wants it, but the gesture has ended as the drag began.
    const lumcore::utility::StScopedValue<bool> swallow(mSwallowMouse, true);
    return QApplication::notify(&inNative, &inEvent);
  }
  OS_Window* const window = inEvent.spontaneous() ? FindWindowOf(inNative) : nullptr;
  if (!window) return RouteForeign(inNative, inEvent);
  if (BelongsToMenus(*window, inEvent)) return QApplication::notify(&inNative, &inEvent);
  const lumcore::utility::StKeepAlive keepAlive(*window);
  if (mSessionEnding && IsUsersDoing(inEvent.type())) SessionGoesOn();
  switch (inEvent.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      return HandlePointer(*window, inNative, static_cast<QMouseEvent&>(inEvent));
    case QEvent::Wheel:
    case QEvent::Leave:
      return HandleWheel(*window, inNative, inEvent);
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return HandleKey(*window, inNative, static_cast<QKeyEvent&>(inEvent));
    case QEvent::ShortcutOverride:
      if (HandleShortcutOverride(*window, static_cast<QKeyEvent&>(inEvent))) return true;
      return QApplication::notify(&inNative, &inEvent);
    case QEvent::Close:
      return HandleClose(*window, inEvent);
    default:
      return QApplication::notify(&inNative, &inEvent);
  }
}

bool EventGate::RouteForeign(QWindow& inNative, QEvent& inEvent) {
  const auto hook = mForeignPressHook;
  if (hook && inEvent.spontaneous() && inEvent.type() == QEvent::MouseButtonPress &&
      !IsPassing(inNative) && !FindWindowOf(inNative)) {
    const auto& mouse = static_cast<const QMouseEvent&>(inEvent);
    const Qt::MouseButton button = mouse.button();
    if (button == Qt::LeftButton || button == Qt::RightButton) {
      const QPoint position = mouse.globalPosition().toPoint();
      const ForeignPress press{HandleOfForeign(inNative),
                               button == Qt::LeftButton ? kMessageLeftDown : kMessageRightDown,
                               lumcore::geom::PointT<int>(position.x(), position.y()),
                               ModifiersFromQt(mouse.modifiers())};
      bool swallowed = false;
      RunGuarded([&] { swallowed = hook(press); });
      if (swallowed) return true;
    }
  }
  return QApplication::notify(&inNative, &inEvent);
}

bool EventGate::RouteWidget(QWidget& inWidget, QEvent& inEvent) {
  const QEvent::Type type = inEvent.type();
  if (mSwallowMouse && IsPointerEvent(type)) {
    inEvent.accept();
    return true;
  }
  WatchWidget(inWidget, inEvent);
  if (!IsRoutedToNodes(type)) return QApplication::notify(&inWidget, &inEvent);
  const boost::intrusive_ptr<UI_Node> start = NodePeer::NodeOf(&inWidget);
  const lumcore::utility::StScopedValue<UI_Node*> startNode(mStartNode, start.get());
  return QApplication::notify(&inWidget, &inEvent);
}

void EventGate::WatchWidget(QWidget& inWidget, QEvent& inEvent) {
  if (!inWidget.isWindow()) return;
  auto* const manager = NodeManagerImplIfAny();
  if (!manager) return;
  if (inEvent.type() == QEvent::WindowDeactivate) {
    if (UI_Node* const node = NodePeer::NodeOf(&inWidget)) manager->capture.CancelFor(*node);
  } else if (inEvent.type() == QEvent::Show) {
    if (inWidget.windowType() == Qt::Popup) manager->capture.End(true);
    if (inWidget.isModal() && mAnnouncedModals == 0 && Application::Get()->IsHeadless()) {
      RejectModal(inWidget);
    }
  }
}

bool EventGate::HandToQt(QObject& inReceiver, QEvent& inEvent, const OS_Event& inOSEvent) {
  const lumcore::utility::StScopedValue<OS_Event> current(mCurrentOSEvent, inOSEvent);
  return QApplication::notify(&inReceiver, &inEvent);
}

bool EventGate::HandlePointer(OS_Window& inWindow, QWindow& inNative, QMouseEvent& inEvent) {
  // Qt keeps this press for itself and sends the double click next.
  if (IsPressOfDoubleClick(inEvent)) return QApplication::notify(&inNative, &inEvent);
  const bool press = IsPress(inEvent.type());
  CaptureState& capture = NodeManagerImpl().capture;
  OS_Event os = OSEventOf(inWindow.UI_GetHandle(), inWindow.GetPeer()->GetChromeHeight(), inEvent);
  bool handled = true;
  {
    const lumcore::utility::StScopedValue<bool> inPointerEvent(mInPointerEvent, true);
    const bool passed = Pass(os, [&] {
      if (capture.IsRunning()) {
        const lumcore::utility::StScopedValue<OS_Event> current(mCurrentOSEvent, os);
        capture.Deliver(inEvent, os);
        // Qt still sees the event, or its idea of the held buttons goes stale; no widget does.
        const lumcore::utility::StScopedValue<bool> swallow(mSwallowMouse, true);
        handled = QApplication::notify(&inNative, &inEvent);
        return;
      }
      bool swallowed = false;
      if (press) {
        const MouseEvent event =
            PointerEventOf(inEvent, inWindow.GetPeer()->WithContentOrigin(inEvent.position()), os);
        RunGuarded([&] { swallowed = UI_Node::UI_DispatchPrePointerEvent(&inWindow, event); });
      }
      if (!swallowed) handled = HandToQt(inNative, inEvent, os);
    });
    if (!passed) inEvent.accept();
  }
  NodeManagerImpl().ApplyCursor();
  return handled;
}

// Both turn into a message and go on to Qt as they are.
bool EventGate::HandleWheel(OS_Window& inWindow, QWindow& inNative, QEvent& inEvent) {
  OS_Event os = inEvent.type() == QEvent::Wheel
                    ? OSEventOf(inWindow.UI_GetHandle(), static_cast<QWheelEvent&>(inEvent))
                    : OS_Event(inWindow.UI_GetHandle(), kMessageMouseLeave, 0, 0);
  if (inEvent.type() == QEvent::Wheel) {
    mWheelTime = static_cast<double>(static_cast<QWheelEvent&>(inEvent).timestamp());
    utility::InteractionRegistry::Get().Note();
  }
  bool handled = true;
  Pass(os, [&] { handled = HandToQt(inNative, inEvent, os); });
  return handled;
}

bool EventGate::HandleClose(OS_Window& inWindow, QEvent& inEvent) {
  // Qt must not close by itself: that would make a second close event.
  inEvent.ignore();
  OS_Event os(inWindow.UI_GetHandle(), kMessageClose, 0, 0);
  const HWND handle = os.window;
  bool permitted = false;
  Pass(os, [&] {
    const OSEventFunction function = inWindow.UI_GetEventFunction();
    const bool done = !function || RunGuarded([&] { function(&os); });
    permitted = done && os.result != 0;
    // The function may have destroyed it.
    if (permitted && OS_Window::UI_GetWindow(handle) == &inWindow) {
      RunGuarded([&] { inWindow.UI_DoClose(); });
    }
  });
  return true;
}

// Qt's own drags take what they need in a filter that comes before the widgets.
bool EventGate::HandleInDrag(QWindow& inNative, QEvent& inEvent) {
  if (inEvent.type() == QEvent::MouseButtonRelease) {
    mHeldSinceDrag.setFlag(static_cast<const QMouseEvent&>(inEvent).button(), false);
  }
  datatransfer::HeadlessDrag* const headless = datatransfer::HeadlessDrag::GetRunning();
  if (!headless) return QApplication::notify(&inNative, &inEvent);
  headless->HandleEvent(inEvent);
  if (!IsPointerEvent(inEvent.type())) return true;
  const lumcore::utility::StScopedValue<bool> swallow(mSwallowMouse, true);
  return QApplication::notify(&inNative, &inEvent);
}

int EventGate::RunDrag(const std::function<int()>& inLoop) {
  const lumcore::utility::StScopedValue<bool> takesInput(mDragTakesInput, true);
  mDragging = true;
  mHeldSinceDrag = mouseButtons();
  mDropCameHere = false;
  mDragWatch->Forget();
  int effect = inLoop();
  if (!mDropCameHere) effect = mDragWatch->AwaitFinish(effect);
  mDragging = false;
  return effect;
}

// Qt sends one when the drag's loop is over; the user's own comes later where a key has ended the
// drag. Whoever presses the button again is not waiting for it any more.
bool EventGate::IsReleaseOfDrag(const QWindow& inNative, const QEvent& inEvent) {
  const QEvent::Type type = inEvent.type();
  if (!IsPointerEvent(type) || type == QEvent::MouseMove || !FindWindowOf(inNative)) return false;
  const auto& mouse = static_cast<const QMouseEvent&>(inEvent);
  const bool wasHeld = inEvent.spontaneous() && mHeldSinceDrag.testFlag(mouse.button());
  if (inEvent.spontaneous()) mHeldSinceDrag.setFlag(mouse.button(), false);
  return type == QEvent::MouseButtonRelease && (wasHeld || !inEvent.spontaneous());
}

void EventGate::RunDrop(const std::function<void()>& inDrop) {
  const lumcore::utility::StScopedValue<bool> takesInput(mDragTakesInput, false);
  inDrop();
}

void EventGate::CancelDrag() {
  if (!mDragging) return;
  const auto cancel = [] {
    if (auto* const headless = datatransfer::HeadlessDrag::GetRunning()) return headless->Cancel();
    QDrag::cancel();
  };
  QMetaObject::invokeMethod(this, cancel, Qt::QueuedConnection);
}

void EventGate::TellDisplayChange() {
  ForEachWindow([](OS_Window& inWindow) { inWindow.UI_SendMessage(kMessageDisplayChange, 0, 0); });
}

// A box that nobody can answer would hold the process for ever.
void EventGate::RejectModal(QWidget& inWidget) {
  using lumcore::utility::ReplaceInString;
  const auto text = ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(
          "$$$/lumui/Error/UnannouncedModal=A modal window opened in a run without a display and "
          "was closed: \"@0\""),
      {drawbot::FromQt(inWidget.windowTitle())});
  QTimer::singleShot(0, &inWidget, [&inWidget] { inWidget.close(); });
  ReportError(std::make_exception_ptr(lumcore::config::Error(text)));
}

}  // namespace lumui::ui
