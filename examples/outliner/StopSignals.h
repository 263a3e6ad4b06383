// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <thread>

namespace outliner {

// While it lives, the first request of the system to stop (Ctrl+C in a terminal, a polite kill)
// calls a function in place of ending the program. A second one ends it. One at a time.
class StStopSignals {
 public:
  // Called at most once for each kind of request, on a thread of its own, with the signal's number.
  explicit StStopSignals(std::function<void(int inSignal)> inStop);
  ~StStopSignals();
  StStopSignals(const StStopSignals&) = delete;
  StStopSignals& operator=(const StStopSignals&) = delete;

 private:
  std::function<void(int)> mStop;
  std::thread mThread;
};

}  // namespace outliner
