// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/OS_AppBase.h"

#include <exception>

#include "lumcore/config/ErrorManager.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Frame.h"
#include "lumui/ui/OS_Menu.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/utility/InteractionRegistry.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/app/src/MenuState.h"
#include "vek/uisupport/CommandHandlerBase.h"
#include "vek/uisupport/KeyCommandManager.h"
#include "vek/workspace/Workspace.h"

namespace vek::app {

using lumui::ui::OS_Event;
using lumui::ui::OS_Window;

namespace {

// How the main window looks before a workspace says more: the numbers of the window system.
constexpr unsigned kMainWindowStyle = 0xCF0000;
constexpr int kMainWindowWidth = 600;
constexpr int kMainWindowHeight = 320;

constexpr WPARAM kLowWord = 0xFFFF;

OS_AppBase*& Instance() {
  static OS_AppBase* sApp = nullptr;
  return sApp;
}

// A window that is hidden stays so.
void BringToFront(HWND inWindow) {
  OS_Window* const window = OS_Window::UI_GetWindow(inWindow);
  if (window && window->UI_IsVisible()) window->UI_Activate();
}

void PostQuit() {
  if (auto* const application = lumui::ui::Application::Get()) application->Quit(0);
}

bool RunAtTopLevel(const boost::function<void()>& inFunction) {
  return lumcore::config::ErrorManager::Get(false)->ExecuteTopLevelFunction(inFunction);
}

}  // namespace

// The connection with the window system. A host that reads its command line before it starts has
// made the application object already; then that one is used, and left.
struct OS_AppBase::Platform {
  Platform() {
    if (!lumui::ui::Application::Get()) {
      application = std::make_unique<lumui::ui::Application>(argumentCount, arguments);
    }
  }
  lumui::ui::Application& Get() { return *lumui::ui::Application::Get(); }

  char name[4] = "vek";
  char* arguments[2] = {name, nullptr};
  int argumentCount = 1;
  std::unique_ptr<lumui::ui::Application> application;
  bool pumpsForModal = false;  // no steps and no idle work then
};

OS_AppBase::OS_AppBase() {
  Instance() = this;
}

OS_AppBase::~OS_AppBase() {
  // Where Terminate was not called, or did not come to its end.
  OS_AppBase::OSTerminate();
  Instance() = nullptr;
}

void OS_AppBase::OSInitialize(AppInitArgs& inArgs) {
  if (!mPlatform) mPlatform = std::make_unique<Platform>();
  OS_Window::UI_Initialize(inArgs.applicationInstance);
  lumui::ui::Application& application = mPlatform->Get();
  application.SetEventSteps(
      [this](const OS_Event& inEvent) {
        return mPlatform->pumpsForModal || PreEventProcessing(inEvent);
      },
      [this](const OS_Event& inEvent) {
        if (!mPlatform->pumpsForModal) PostEventProcessing(inEvent);
      });
  application.SetIdleFunction([this] { RunAtTopLevel([this] { OnIdle(); }); });
  application.SetErrorFunction([](const std::exception_ptr& inError) {
    lumcore::config::ErrorManager::Get(false)->ReportError(inError);
  });
  application.SetShortcutClaim([](const lumui::ui::KeyboardEvent& inEvent) {
    return uisupport::KeyCommandManager::Get().HasMappingFor(inEvent);
  });
  application.SetForeignPressHook(
      [this](const lumui::ui::ForeignPress& inPress) { return MouseHook(inPress); });
}

void OS_AppBase::OSTerminate() {
  if (!mPlatform) return;
  if (!lumui::ui::Application::Get()) return mPlatform.reset();  // it was the host's, and is gone
  lumui::ui::Application& application = mPlatform->Get();
  application.SetEventSteps(nullptr, nullptr);
  application.SetIdleFunction(nullptr);
  application.SetErrorFunction(nullptr);
  application.SetShortcutClaim(nullptr);
  application.SetForeignPressHook(nullptr);
  // The window that has gone has asked for an end of the loop.
  application.CancelQuit();
  OS_Window::UI_Terminate();
  mPlatform.reset();
}

// What draws is part of the window system here and ends with it.
void OS_AppBase::OSTerminateDrawing() {}

bool OS_AppBase::InitApplication(AppInitArgs& inArgs) {
  using lumui::ui::OS_Frame;
  OS_Frame::Class windowClass;
  windowClass.name = inArgs.windowClassName;
  windowClass.resources = inArgs.resourceInstance;
  windowClass.iconID = inArgs.iconResourceID;
  windowClass.menuID = inArgs.menuResourceID;
  if (!OS_Frame::Register(windowClass)) return false;
  const HWND window = OS_Frame::Create(
      inArgs.windowClassName, inArgs.windowTitle ? inArgs.windowTitle : inArgs.windowClassName,
      kMainWindowStyle, kMainWindowWidth, kMainWindowHeight);
  if (!window) return false;
  LUM_INPUT_CONTRACT(GetWorkspace() != nullptr);
  lumworkspace::workspace::OS_Workspace::AttachToClientApp(
      *GetWorkspace(), inArgs.applicationInstance, inArgs.resourceInstance, window,
      &OS_AppBase::MainOSEventFunc, 0);
  if (const HMENU menu = GetMainMenu()) MenubarCreateHook(menu);
  ApplyDefaultWorkspace();
  if (inArgs.showMainWindow) {
    auto& mainWindow = *GetWorkspace()->GetMainTopLevelWindow();
    mainWindow.UI_Activate();
    // Before the splash screen goes.
    mainWindow.UI_PaintNow();
  }
  return true;
}

void OS_AppBase::RunEventLoop() {
  LUM_INPUT_CONTRACT(mPlatform);
  mPlatform->Get().Run();
  SaveDefaultWorkSpace();
}

void OS_AppBase::EndEventLoop() {
  auto* const window = GetWorkspace() ? GetWorkspace()->GetMainTopLevelWindow() : nullptr;
  if (window) BringToFront(window->UI_GetHandle());
  if (AppCanQuit()) PostQuit();
}

void OS_AppBase::EndEventLoopDuringSessionEnd() {
  PostQuit();
}

// A quit that comes meanwhile is a flag of the application's and waits for the outer loop.
void OS_AppBase::ModalPumpEventQueue() {
  LUM_INPUT_CONTRACT(mPlatform);
  const lumcore::utility::StScopedValue<bool> modal(mPlatform->pumpsForModal, true);
  mPlatform->Get().PumpPendingEvents();
}

void OS_AppBase::RebuildMenuState(HMENU inMenu) {
  UpdateMenuRefEnablement(inMenu, IsAutoDisabling(), GetAutoDisableThreshold());
}

int OS_AppBase::UpdateMenuRefEnablement(HMENU inMenu, bool inDisableUnanswered,
                                        int inFirstCommand) {
  BeforeMenuPopup(inMenu);
  UpdateMenuState(inMenu, GetUpdateMenuShortcuts(), inDisableUnanswered, inFirstCommand);
  return 0;
}

void OS_AppBase::MainOSEventFunc(OS_Event* ioEvent) {
  ioEvent->result =
      MainWndProc(ioEvent->window, ioEvent->message, ioEvent->wParam, ioEvent->lParam);
}

// A failure of the question is a no: nothing is lost by staying.
bool OS_AppBase::MayQuit() {
  bool mayQuit = false;
  RunAtTopLevel([&] { mayQuit = AppCanQuit(); });
  return mayQuit;
}

LRESULT OS_AppBase::HandleClose(OS_AppBase* inApp, HWND inWindow) {
  if (inApp) {
    BringToFront(inWindow);
    if (!inApp->MayQuit()) return 0;
  }
  PostQuit();
  return 0;
}

LRESULT OS_AppBase::MainWndProc(HWND inWindow, unsigned inMessage, WPARAM inWParam,
                                LPARAM inLParam) {
  OS_AppBase* const app = Instance();
  switch (inMessage) {
    case lumui::ui::kMessageDestroy:
      PostQuit();
      return 0;
    case lumui::ui::kMessageClose:
      return HandleClose(app, inWindow);
    case lumui::ui::kMessageQueryEndSession:
      if (app) BringToFront(inWindow);
      return !app || app->MayQuit() ? 1 : 0;
    case lumui::ui::kMessageEraseBackground:
      return 1;
    case lumui::ui::kMessageEndSession:
      if (inWParam != 1) return 0;
      if (app) {
        app->EndEventLoopDuringSessionEnd();
      } else if (OS_Window* const window = OS_Window::UI_GetWindow(inWindow)) {
        window->UI_DestroyWindow();
      }
      return 0;
    case lumui::ui::kMessageDisplayChange:
      return 0;
    case lumui::ui::kMessageCommand: {
      const int command =
          app ? app->GetCommandID(inWParam, inLParam) : static_cast<int>(inWParam & kLowWord);
      RunAtTopLevel([command] { uisupport::CommandHandlerBase::CallCommandChain(command); });
      return 0;
    }
    case lumui::ui::kMessageInitMenuPopup:
      if (app) {
        const HMENU menu = lumui::ui::OS_Menu::OfParameter(inWParam);
        lumcore::config::ExecuteTopLevelFunction([app, menu] { app->RebuildMenuState(menu); });
      }
      return 0;
    default:
      return app ? app->MainWindowDefaultProc(inWindow, inMessage, inWParam, inLParam)
                 : OS_Window::UI_DefaultEventProc(inWindow, inMessage, inWParam, inLParam);
  }
}

LRESULT OS_AppBase::MainWindowDefaultProc(HWND inWindow, unsigned inMessage, WPARAM inWParam,
                                          LPARAM inLParam) {
  return OS_Window::UI_DefaultEventProc(inWindow, inMessage, inWParam, inLParam);
}

int OS_AppBase::GetCommandID(WPARAM inWParam, LPARAM) const {
  return static_cast<int>(inWParam & kLowWord);
}

// The press goes to a window that the nodes do not know: they hear of it all the same, so that what
// closes on a press elsewhere closes. True swallows it.
bool OS_AppBase::MouseHook(const lumui::ui::ForeignPress& inPress) {
  using lumui::ui::MouseEvent;
  auto* const window = GetWorkspace() ? GetWorkspace()->GetMainTopLevelWindow() : nullptr;
  if (!window) return false;
  lumcore::geom::PointT<int> point = inPress.screenPosition;
  window->UI_ScreenToWindow(point);
  const LPARAM position = static_cast<LPARAM>((static_cast<unsigned>(point.y) & kLowWord) << 16 |
                                              (static_cast<unsigned>(point.x) & kLowWord));
  const MouseEvent event(
      MouseEvent::kActionPress,
      inPress.message == lumui::ui::kMessageLeftDown ? MouseEvent::kLeftButton
                                                     : MouseEvent::kRightButton,
      inPress.modifiers,
      lumcore::geom::PointT<float>(static_cast<float>(point.x), static_cast<float>(point.y)), 1,
      OS_Event(inPress.window, inPress.message, 0, position));
  // The user has done nothing in a window of ours.
  const lumui::utility::ScPauseResumeInteractionRegistry pause;
  return lumui::ui::UI_Node::UI_DispatchPrePointerEvent(window, event);
}

}  // namespace vek::app
