// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/RealInput.h"

#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <thread>

#include "lumui/ui/Application.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"

namespace test_support {

namespace {

using lumui::ui::Application;
using lumui::ui::OS_Event;

constexpr WPARAM kF11 = 0x7A;
constexpr WPARAM kF12 = 0x7B;

// Ends the loop's wait when the tool ends.
void SendWhileRunning(const std::string& inActions, const std::function<bool()>& inCondition) {
  std::atomic<bool> isDone{false};
  std::thread tool([&] {
    RealInput::RunTool(inActions);
    isDone = true;
    lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([] {});
  });
  RealInput::RunUntil([&] { return isDone && inCondition(); });
  tool.join();
}

}  // namespace

RealInput::RealInput(lumui::ui::OS_Window& inWindow, int inX, int inY) : mWindow(inWindow) {
  Application::Get()->SetEventSteps([this](const OS_Event& inEvent) { return Look(inEvent); },
                                    nullptr);
  const LPARAM place = inX | (inY << 16);
  do {
    mLastMove = OS_Event();
    SendWhileRunning(At(inX + 1, inY) + " " + At(inX, inY) + " key F11", [] { return true; });
  } while (!mHasKeys || mLastMove.window != mWindow.UI_GetHandle() || mLastMove.lParam != place);
  // The moves and keys that were sent too often come before this one.
  Send("");
}

RealInput::~RealInput() {
  Application::Get()->SetEventSteps(nullptr, nullptr);
}

bool RealInput::Look(const OS_Event& inEvent) {
  if (inEvent.message == lumui::ui::kMessageMouseMove) mLastMove = inEvent;
  const bool isKey =
      inEvent.message == lumui::ui::kMessageKeyDown || inEvent.message == lumui::ui::kMessageKeyUp;
  if (!isKey || (inEvent.wParam != kF11 && inEvent.wParam != kF12)) return true;
  if (inEvent.wParam == kF11) mHasKeys = inEvent.window == mWindow.UI_GetHandle();
  if (inEvent.wParam == kF12 && inEvent.message == lumui::ui::kMessageKeyUp) ++mKeysBack;
  return false;
}

std::string RealInput::At(int inX, int inY) const {
  const auto& place = mWindow.UI_GetLocalRectF();
  return "mousemove " + std::to_string(static_cast<int>(place.x) + inX) + " " +
         std::to_string(static_cast<int>(place.y) + inY);
}

void RealInput::RunTool(const std::string& inActions) {
  EXPECT_EQ(std::system(("xdotool " + inActions).c_str()), 0) << inActions;
}

void RealInput::Send(const std::string& inActions) {
  const int before = mKeysBack;
  SendWhileRunning(inActions + " key F12", [&] { return mKeysBack != before; });
}

void RealInput::SendUntil(const std::string& inActions, const std::function<bool()>& inCondition) {
  do
    SendWhileRunning(inActions, [] { return true; });
  while (!inCondition());
}

void RealInput::RunUntil(const std::function<bool()>& inCondition) {
  Application& application = *Application::Get();
  application.SetIdleFunction([&] {
    if (inCondition()) application.Quit();
  });
  application.Run();
  application.SetIdleFunction(nullptr);
}

}  // namespace test_support
