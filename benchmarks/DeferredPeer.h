// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

// What the deferred actions of this framework are measured beside: queued calls of Qt's.
class QueuedCalls {
 public:
  QueuedCalls();
  ~QueuedCalls();

  // From any thread.
  void Queue(std::function<void()> inFunction);

 private:
  struct Impl;
  std::unique_ptr<Impl> mImpl;
};
