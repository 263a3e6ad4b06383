// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "vek/app/AppBase.h"

namespace lumui::ui {
struct ForeignPress;
}

namespace vek::app {

// The application's hold on the window system: its event loop, the one window procedure of the main
// window, the hook on presses in windows that are not ours, and menus that follow the command
// chain. All work of the application runs at the top level of the error manager, so no exception
// leaves a window procedure.
class VEK_API OS_AppBase : public AppBase {
 public:
  ~OS_AppBase() override;

  void RunEventLoop() override;
  void EndEventLoop() override;
  void ModalPumpEventQueue() override;
  void RebuildMenuState(HMENU inMenu) override;
  // The same with a choice about the items that nobody answers for; 0, always.
  int UpdateMenuRefEnablement(HMENU inMenu, bool inDisableUnanswered, int inFirstCommand);

 protected:
  OS_AppBase();

  void OSInitialize(AppInitArgs& inArgs) override;
  void OSTerminate() override;
  void OSTerminateDrawing() override;
  bool InitApplication(AppInitArgs& inArgs) override;
  void EndEventLoopDuringSessionEnd() override;
  LRESULT MainWindowDefaultProc(HWND inWindow, unsigned inMessage, WPARAM inWParam,
                                LPARAM inLParam) override;
  int GetCommandID(WPARAM inWParam, LPARAM inLParam) const override;

 private:
  struct Platform;

  static void MainOSEventFunc(lumui::ui::OS_Event* ioEvent);
  static LRESULT MainWndProc(HWND inWindow, unsigned inMessage, WPARAM inWParam, LPARAM inLParam);
  static LRESULT HandleClose(OS_AppBase* inApp, HWND inWindow);
  bool MouseHook(const lumui::ui::ForeignPress& inPress);
  bool MayQuit();

  std::unique_ptr<Platform> mPlatform;  // from OSInitialize to OSTerminate
};

}  // namespace vek::app
