// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumscripting/Export.h"
#include "lumscripting/ScriptValue.h"

namespace lumscripting {

// Runs scripts, one after the other, on a thread of its own. Scripts reach the host through the
// functions that it adds; those run on the user interface thread while the script waits. A script
// that never ends can be stopped, and a runner that dies stops what it runs: neither thread hangs.
//
// One thread makes a runner, uses it and destroys it, that of the user interface, while the
// application object lives.
class LUMSCRIPTING_API ScriptRunner {
 public:
  // What it throws becomes an exception in the script.
  using HostFunction = std::function<ScriptValue(const std::vector<ScriptValue>&)>;
  // Called on the user interface thread with the value of the script's last statement, or with what
  // went wrong: a ScriptError, also for a script that was stopped.
  using Completion = std::function<void(const ScriptValue& inValue, std::exception_ptr inFailure)>;

  ScriptRunner();
  ~ScriptRunner();
  ScriptRunner(const ScriptRunner&) = delete;
  ScriptRunner& operator=(const ScriptRunner&) = delete;

  // A global function of all scripts that are queued from now on. Adding a name again replaces it.
  void AddFunction(const lumcore::UTF16String& inName, HostFunction inFunction);

  // Queues a script. inFile stands in its errors. The completion is dropped when the runner dies.
  void Run(const lumcore::UTF16String& inProgram, const lumcore::UTF16String& inFile,
           Completion inCompletion);
  // Stops the script that runs now, if any; the queued ones run on.
  void StopRunning();

  // Stops the running script, drops the queued ones and waits for the thread. False when the thread
  // did not end in time: it is in a built-in operation that cannot be stopped, and is left behind.
  bool ShutDown(std::chrono::milliseconds inPatience);

 private:
  class Worker;
  std::shared_ptr<Worker> mWorker;
};

}  // namespace lumscripting
