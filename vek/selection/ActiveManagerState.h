// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/messaging/Broadcaster.h"
#include "vek/selection/Messages.h"

namespace vek::selection {

// The process-wide state behind the functions of ActiveManager.h. One thread, no lock.
class ActiveManagerState {
 public:
  static ActiveManagerState& Get();

  void ManagerDies(Manager* inManager);
  // Tells of the change from inPrevious to mActive now, or notes that there is something to tell.
  void Announce(Manager* inPrevious);

  Manager* mActive = nullptr;
  int mInhibitCount = 0;  // below 0 after unbalanced calls, which counts as not inhibited
  bool mChangePending = false;
  Manager* mAtInhibit = nullptr;  // may have died since: compared, never followed
  messaging::Broadcaster<const ManagerChangeMessage&> mManagerChange;
  messaging::Broadcaster<const SelectionChangeMessage&> mSelectionChange;
  messaging::Broadcaster<const JunctionChangeMessage&> mJunctionChange;
};

}  // namespace vek::selection
