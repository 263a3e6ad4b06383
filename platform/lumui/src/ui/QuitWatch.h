// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QObject>
#include <functional>

#include "lumui/Export.h"

namespace lumui::ui {

// For what waits in a loop of its own, such as a modal dialog: ends it when the application quits.
// A quit that nobody waits for, from before and outside Application::Run, does not count: a program
// that ends may still have something to ask.
class LUMUI_API QuitWatch {
 public:
  // The function is called at each turn of a loop from then on, also of one that runs before the
  // one that it makes end.
  explicit QuitWatch(std::function<void()> inEnd);
  QuitWatch(const QuitWatch&) = delete;
  QuitWatch& operator=(const QuitWatch&) = delete;

  // True before the loop: it must not begin.
  bool HasQuit() const;

 private:
  void Look();

  std::function<void()> mEnd;
  int mQuitsBefore;
  QObject mConnection;
};

}  // namespace lumui::ui
