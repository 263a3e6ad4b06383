// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace vek::app {

// The application has come to the front, or another has.
class AppActivationMessage {
 public:
  enum eActivateStatus { kActivated = 0, kDeactivated = 1 };

  explicit AppActivationMessage(eActivateStatus inStatus) : mStatus(inStatus) {}

  eActivateStatus GetActivateStatus() const { return mStatus; }

 private:
  eActivateStatus mStatus;
};

}  // namespace vek::app
