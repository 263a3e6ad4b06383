// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

// A shown window of Qt's own controls, 50 of five kinds, and what an application without themes
// does to change its look.
class QtWindowPeer {
 public:
  QtWindowPeer();
  ~QtWindowPeer();

  // One of two palettes, in turn, for the whole application.
  void ChangePalette();
  // Runs what is waiting and has every control paint.
  void Repaint();

 private:
  class Impl;
  std::unique_ptr<Impl> mImpl;
};
