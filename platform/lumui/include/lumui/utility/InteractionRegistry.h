// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::utility {

// Counts what the user does in the windows of this process: presses, keys that go down, turns of
// the wheel. Whoever wants to know whether anything has been done since it last looked (to save
// what is unsaved while the user is away, say) compares two counts.
//
// The event gate notes each of them once, before the nodes get it. An event that is made by hand,
// on behalf of something that the user has not done here, is dispatched while the registry pauses.
class LUMUI_API InteractionRegistry {
 public:
  static InteractionRegistry& Get();

  void Note();  // nothing while it pauses
  unsigned GetCount() const { return mCount; }
  bool IsPaused() const { return mPauses > 0; }

 private:
  friend class ScPauseResumeInteractionRegistry;

  unsigned mCount = 0;
  int mPauses = 0;
};

// Pauses the registry as long as it lives. Several may, one within the other.
class LUMUI_API ScPauseResumeInteractionRegistry {
 public:
  ScPauseResumeInteractionRegistry();
  ~ScPauseResumeInteractionRegistry();
  ScPauseResumeInteractionRegistry(const ScPauseResumeInteractionRegistry&) = delete;
  ScPauseResumeInteractionRegistry& operator=(const ScPauseResumeInteractionRegistry&) = delete;
};

}  // namespace lumui::utility
