// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/OS_Window.h"

#include <QAbstractEventDispatcher>
#include <QApplication>
#include <QImageWriter>
#include <QPixmap>
#include <QPointer>
#include <QTimer>
#include <QWidget>
#include <QWindow>
#include <algorithm>
#include <utility>
#include <vector>

#include "drawbot/QtConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/Flags.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/OS_Menu.h"
#include "ui/EventGate.h"
#include "ui/FrameRegistry.h"
#include "ui/NodeManagerImpl.h"
#include "ui/WindowPeer.h"
#include "ui/WindowRegistry.h"

namespace lumui::ui {

namespace {

constexpr unsigned kStyleCaption = 0xC00000;
constexpr unsigned kStyleSizingFrame = 0x40000;
constexpr unsigned kStyleDefault = 0xCF0000;  // caption, frame, and the caption's buttons

constexpr int kLongestWaitMilliseconds = 500;

// What the application has to do waits.
class StHoldBack {
 public:
  StHoldBack() { Set(true); }
  ~StHoldBack() { Set(false); }
  StHoldBack(const StHoldBack&) = delete;
  StHoldBack& operator=(const StHoldBack&) = delete;

 private:
  static void Set(bool inHeld) {
    NodeManagerImpl().executor.SetHeld(inHeld);
    NodeManagerImpl().timers.SetHeld(inHeld);
  }
};

std::vector<OS_Window*>& Windows() {
  static std::vector<OS_Window*> sWindows;
  return sWindows;
}

}  // namespace

OS_Window* FindWindowOf(const QWindow& inNative) {
  for (OS_Window* window : Windows()) {
    if (NativeOf(*window) == &inNative) return window;
  }
  return nullptr;
}

void ForEachWindow(const std::function<void(OS_Window&)>& inFunction) {
  const std::vector<OS_Window*> atStart = Windows();
  for (OS_Window* window : atStart) {
    const auto& now = Windows();
    if (std::find(now.begin(), now.end(), window) == now.end()) continue;
    const lumcore::utility::StKeepAlive keepAlive(*window);
    inFunction(*window);
  }
}

QWindow* NativeOf(const OS_Window& inWindow) {
  const QWidget* const widget = inWindow.GetPeer()->GetWidget();
  return widget ? widget->windowHandle() : nullptr;
}

OS_Window::OS_Window(OSEventFunction inEventFunction, bool inConstructNow)
    : OS_Window(inEventFunction, std::make_unique<WindowPeer>()) {
  if (inConstructNow) OS_Window::UI_ConstructWindow(nullptr);
}

OS_Window::OS_Window(OSEventFunction inEventFunction, std::unique_ptr<WindowPeer> inPeer)
    : UI_Node(std::move(inPeer)), mEventFunction(inEventFunction), mStyleFlags(kStyleDefault) {
  UI_Show(false);
}

OS_Window::~OS_Window() {
  UI_DestroyWindow();
}

OS_Window* OS_Window::UI_GetWindow(HWND inHandle) {
  for (OS_Window* window : Windows()) {
    if (inHandle && window->mHandle == inHandle) return window;
  }
  return nullptr;
}

LRESULT OS_Window::UI_DefaultEventProc(HWND, unsigned inMessage, WPARAM, LPARAM) {
  return OS_Event(nullptr, inMessage, 0, 0).result;
}

void OS_Window::UI_ConstructWindow(const lumcore::geom::RectT<int>* inRect) {
  LUM_INPUT_CONTRACT(Application::Get() != nullptr);
  if (mHandle) return;
  if (inRect) {
    UI_SetLocalRectF(lumcore::geom::RectT<float>(
        static_cast<float>(inRect->x), static_cast<float>(inRect->y),
        static_cast<float>(inRect->width), static_cast<float>(inRect->height)));
  }
  OS_Frame::Description frame;
  const bool framed = OS_Frame::GetDescription(mFrame, frame);
  if (framed) ApplyFrame(frame);
  GetPeer()->PlaceIn(nullptr);
  mHandle = framed && RemoveFrame(mFrame) ? mFrame : NewWindowHandle();
  mFrame = nullptr;
  QWidget* const widget = GetPeer()->GetWidget();
  widget->winId();  // makes the native window, and so windowHandle()
  Windows().push_back(this);
  if (UI_GetMenu()) {
    // The bar comes on top of the size that was asked for.
    const lumcore::geom::RectT<float> rect = UI_GetLocalRectF();
    GetWindowPeer().ShowMenu(mMenu);
    if (!rect.IsEmpty()) UI_SetLocalRectF(rect);
  }
  UI_SetWindowStyleFlags(mStyleFlags);
  widget->setWindowTitle(drawbot::ToQt(mTitle));
  if (framed) GetWindowPeer().ApplyIcon(frame);
  // Its place stays the system's to choose.
  if (framed && !inRect && frame.width > 0 && frame.height > 0) {
    GetPeer()->ApplySize(frame.width, frame.height);
  }
  GetPeer()->ApplyVisible();
  NodeManagerImpl().TellNodeChanged(*this);
}

bool OS_Window::UI_TakeFrame(HWND inFrame) {
  OS_Frame::Description frame;
  if (mHandle || !OS_Frame::GetDescription(inFrame, frame)) return false;
  mFrame = inFrame;
  return true;
}

void OS_Window::ApplyFrame(const OS_Frame::Description& inFrame) {
  mTitle = inFrame.title;
  mStyleFlags = inFrame.style;
  if (inFrame.menuID != 0 && !UI_GetMenu()) mMenu = OS_Menu::Create(false);
}

void OS_Window::UI_Initialize(HINSTANCE) {
  LUM_INPUT_CONTRACT(Application::Get() != nullptr);
}

void OS_Window::UI_Terminate() {
  OS_Frame::ForgetAll();
}

void OS_Window::UI_DestroyWindow() {
  if (!mHandle) return;
  if (auto* const manager = NodeManagerImplIfAny()) manager->capture.CancelFor(*this);
  OS_Event destroy(mHandle, kMessageDestroy, 0, 0);
  // Over before the message is sent: whoever gets it finds no window and may make a new one.
  mHandle = nullptr;
  auto& windows = Windows();
  windows.erase(std::remove(windows.begin(), windows.end(), this), windows.end());
  GetPeer()->Destroy();
  if (auto* const manager = NodeManagerImplIfAny()) manager->TellNodeChanged(*this);
  const HMENU menu = std::exchange(mMenu, nullptr);
  EventGate* const gate = EventGate::Get();
  const OSEventFunction function = mEventFunction;
  if (gate) {
    gate->Pass(destroy, [&] {
      if (function) gate->RunGuarded([&] { function(&destroy); });
    });
  }
  OS_Menu::Destroy(menu);
}

bool OS_Window::UI_SetMenu(HMENU inMenu) {
  if (inMenu && !OS_Menu::IsMenu(inMenu)) return false;
  if (inMenu == UI_GetMenu()) return true;
  mMenu = inMenu;
  if (mHandle) GetWindowPeer().ShowMenu(inMenu);
  return true;
}

HMENU OS_Window::UI_GetMenu() const {
  return OS_Menu::IsMenu(mMenu) ? mMenu : nullptr;
}

WindowPeer& OS_Window::GetWindowPeer() const {
  return static_cast<WindowPeer&>(*GetPeer());
}

void OS_Window::UI_SetTitle(const lumcore::UTF16String& inTitle) {
  mTitle = inTitle;
  if (mHandle) GetPeer()->GetWidget()->setWindowTitle(drawbot::ToQt(inTitle));
}

void OS_Window::UI_SetSize(int inWidth, int inHeight) {
  if (mHandle) return GetPeer()->ApplySize(inWidth, inHeight);
  lumcore::geom::RectT<float> rect = UI_GetLocalRectF();
  rect.width = static_cast<float>(inWidth);
  rect.height = static_cast<float>(inHeight);
  UI_SetLocalRectF(rect);
}

void OS_Window::UI_Activate() {
  UI_Show(true);
  if (!mHandle) return;
  // Without a display no window lies above another, and the platform says so each time.
  if (!Application::Get()->IsHeadless()) GetPeer()->GetWidget()->raise();
  GetPeer()->GetWidget()->activateWindow();
}

bool OS_Window::UI_IsActive() const {
  return mHandle && GetPeer()->GetWidget()->isActiveWindow();
}

void OS_Window::UI_PaintNow() {
  const QPointer<QWindow> native = mHandle ? NativeOf(*this) : nullptr;
  if (!native || !UI_IsVisible()) return;
  const lumcore::utility::StKeepAlive keepAlive(*this);
  {
    const StHoldBack holdBack;
    QTimer limit;
    limit.setSingleShot(true);
    limit.start(kLongestWaitMilliseconds);
    while (native && !native->isExposed() && limit.isActive()) {
      QAbstractEventDispatcher::instance()->processEvents(QEventLoop::ExcludeUserInputEvents |
                                                          QEventLoop::WaitForMoreEvents);
    }
  }
  UI_UpdateNow(lumcore::utility::Flags<unsigned int>());
}

void OS_Window::UI_SetMaximized(bool inMaximized) {
  if (mHandle)
    GetPeer()->GetWidget()->setWindowState(
        GetPeer()->GetWidget()->windowState().setFlag(Qt::WindowMaximized, inMaximized));
}

bool OS_Window::UI_IsMaximized() const {
  return mHandle && GetPeer()->GetWidget()->isMaximized();
}

lumcore::geom::RectT<float> OS_Window::UI_GetRestoredRect() const {
  if (!mHandle) return {};
  if (!UI_IsMaximized()) return UI_GetLocalRectF();
  lumcore::geom::RectT<float> rect =
      drawbot::FromQt(QRectF(GetPeer()->GetWidget()->normalGeometry()));
  rect.height -= static_cast<float>(GetPeer()->GetChromeHeight());
  return rect;
}

void OS_Window::UI_WindowToScreen(lumcore::geom::PointT<int>& ioPoint) const {
  if (!mHandle) return;
  const QPoint origin =
      GetPeer()->GetWidget()->mapToGlobal(QPoint(0, GetPeer()->GetChromeHeight()));
  ioPoint = lumcore::geom::PointT<int>(ioPoint.x + origin.x(), ioPoint.y + origin.y());
}

void OS_Window::UI_ScreenToWindow(lumcore::geom::PointT<int>& ioPoint) const {
  lumcore::geom::PointT<int> origin;
  UI_WindowToScreen(origin);
  ioPoint = ioPoint - origin;
}

UI_Node* OS_Window::UI_GetFocusNode() const {
  return mHandle ? NodePeer::NodeOf(GetPeer()->GetWidget()->focusWidget()) : nullptr;
}

void OS_Window::UI_SetWindowStyleFlags(unsigned inFlags) {
  mStyleFlags = inFlags;
  if (!mHandle) return;
  QWidget* const widget = GetPeer()->GetWidget();
  const bool frameless = (inFlags & (kStyleCaption | kStyleSizingFrame)) == 0;
  if (widget->windowFlags().testFlag(Qt::FramelessWindowHint) == frameless) return;
  // Qt hides a window whose flags change.
  widget->setWindowFlag(Qt::FramelessWindowHint, frameless);
  widget->winId();
  GetPeer()->ApplyVisible();
}

LRESULT OS_Window::UI_SendMessage(unsigned inMessage, WPARAM inWParam, LPARAM inLParam) {
  LUM_INPUT_CONTRACT(mHandle != nullptr);
  OS_Event event(mHandle, inMessage, inWParam, inLParam);
  EventGate::Get()->PassToWindow(event);
  return event.result;
}

void OS_Window::UI_SavePicture(const lumcore::UTF16String& inPath) {
  LUM_INPUT_CONTRACT(mHandle != nullptr);
  const QPixmap picture = GetPeer()->GetWidget()->grab();
  QImageWriter writer(drawbot::ToQt(inPath), "png");
  if (writer.write(picture.toImage())) return;
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(
          "$$$/lumui/Error/SavePicture=The picture \"@0\" cannot be written: @1"),
      {inPath, drawbot::FromQt(writer.errorString())}));
}

void OS_Window::UI_DoClose() {
  UI_DestroyWindow();
}

}  // namespace lumui::ui
