// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace vek::uisupport {

// Work that is put off to a later turn of the event loop. Given to the DeferredActionManager, which
// owns it from then on and runs it on the thread of the user interface.
class VEK_API DeferredAction {
 public:
  virtual ~DeferredAction();

  // What it throws reaches the executor, and the rest of its batch is abandoned.
  virtual void Execute() = 0;
  // One that is not ready waits until something else is queued.
  virtual bool ReadyToExecute() const = 0;
  // Whether inOther, which was queued later, can be dropped because this makes it pointless.
  virtual bool Supersedes(const DeferredAction* inOther) const;  // false
};

}  // namespace vek::uisupport
