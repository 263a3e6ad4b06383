// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/testing/VirtualClock.h"

#include "ui/NodeManagerImpl.h"

namespace lumui::testing {

VirtualClock::VirtualClock() {
  ui::NodeManagerImpl().timers.SetVirtual(true);
}

VirtualClock::~VirtualClock() {
  if (auto* const manager = ui::NodeManagerImplIfAny()) manager->timers.SetVirtual(false);
}

void VirtualClock::Advance(double inSeconds) {
  ui::NodeManagerImpl().timers.Advance(inSeconds);
}

double VirtualClock::GetTime() const {
  return ui::NodeManagerImpl().timers.GetVirtualTime();
}

}  // namespace lumui::testing
