// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <functional>
#include <thread>

#include "lumscripting/Export.h"

namespace lumscripting::threads {

// Thrown to the caller whose call was refused or given up: the application or its script thread is
// shutting down, or the run was stopped.
class LUMSCRIPTING_API CallCancelled : public std::exception {
 public:
  CallCancelled();
  ~CallCancelled() override;
  const char* what() const noexcept override;
};

// The one road of scripts to the user interface: runs the function on its thread, at a turn of the
// loop, and waits for it. What the function throws is thrown here. On the user interface thread
// itself the function runs at once.
//
// A call that is cancelled returns while the function may still run, so the function owns all that
// it uses: it captures nothing of the caller's by reference.
LUMSCRIPTING_API void DirectVoidCallOnUIThread(std::function<void()> inFunction);

// Refuses further calls from the thread and gives up the one that it waits in, if any. Allowing
// them again is for the next run on the same thread. From any thread.
LUMSCRIPTING_API void RefuseCallsFrom(std::thread::id inThread);
LUMSCRIPTING_API void AllowCallsFrom(std::thread::id inThread);

}  // namespace lumscripting::threads
