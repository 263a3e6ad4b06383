// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

// What the key mappings of this framework are measured beside: a window of Qt's with as many
// shortcuts, Ctrl and the characters from inFirst on.
class ShortcutWindow {
 public:
  ShortcutWindow(int inFirst, int inCount);
  ~ShortcutWindow();

  // A key press as the window system sends it, with Ctrl.
  void Press(int inCharacter);
  long GetActivations() const;

 private:
  struct Impl;
  std::unique_ptr<Impl> mImpl;
};
