// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::testing {

// While one lives, the nodes' timers run by its time, which moves only when it is told to. Timers
// that run already keep what is left of them. There is one at a time (a contract).
class LUMUI_API VirtualClock {
 public:
  VirtualClock();
  ~VirtualClock();
  VirtualClock(const VirtualClock&) = delete;
  VirtualClock& operator=(const VirtualClock&) = delete;

  // Fires what falls due on the way, in the order of the times and then of installing, each with
  // the clock at its own time. Not from inside a timer (a contract).
  void Advance(double inSeconds);
  double GetTime() const;  // seconds since the clock was made
};

}  // namespace lumui::testing
