// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <atomic>
#include <functional>
#include <memory>

#include "lumui/ui/Application.h"
#include "lumui/ui/UI_NodeManager.h"
#include "ui/EventGate.h"

namespace lumui::ui {

class Application::Impl {
 public:
  // What is in the queue; if that is nothing, idle work and then a wait.
  void Turn();
  void DeleteLetGo() const;

  std::unique_ptr<EventGate> gate;
  UI_NodeManager* manager = nullptr;  // owned; only the application may delete it
  std::function<void()> idle;
  std::atomic<bool> quitting{false};
  std::atomic<int> quits{0};  // that have ever come
  std::atomic<int> exitCode{0};
  bool running = false;
};

// Before the connection is made: names the window systems that are worth trying, so that a process
// without a display runs on one that shows nothing. The second takes that back from the
// environment, which child processes inherit.
void ChooseWindowSystem();
void ForgetWindowSystem();

}  // namespace lumui::ui
