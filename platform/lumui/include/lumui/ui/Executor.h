// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include "lumui/Export.h"

namespace lumui::ui {

// Runs functions on the thread of the user interface, each at a turn of the loop of its own, in the
// order in which they were posted, also while a modal loop runs. What a function throws goes to the
// application's error function, and the next one runs all the same.
class LUMUI_API Executor {
 public:
  Executor();
  ~Executor();
  Executor(const Executor&) = delete;
  Executor& operator=(const Executor&) = delete;

  // From any thread; never runs the function before it returns. Functions that have not run when
  // the application ends are destroyed.
  void Post(std::function<void()> inFunction);
  // On the thread of the user interface: while they are held, no function runs; the turns that were
  // due come afterwards.
  void SetHeld(bool inHeld);
  // On the thread of the user interface: runs at once what is posted now, unless it is held. What
  // that posts waits for its turn.
  void RunPosted();

 private:
  class Impl;
  std::unique_ptr<Impl> mImpl;
};

}  // namespace lumui::ui
