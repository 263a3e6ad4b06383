// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <chrono>
#include <exception>
#include <functional>
#include <memory>
#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"
#include "lumscripting/Export.h"
#include "lumscripting/ScriptDefinition.h"
#include "lumscripting/ScriptObject.h"
#include "lumscripting/ScriptValue.h"

namespace lumscripting {

class HostSide;
class ScriptWorker;

// Runs scripts, one after the other, on a thread of its own. Scripts reach the host through the
// objects of the ScriptRegistry and the functions that the host adds; both run on the user
// interface thread while the script waits. Between scripts, the listeners that they have added hear
// the events that were queued. A script or a listener that never ends can be stopped, and a runner
// that dies stops what it runs: neither thread hangs. The thread begins with the first script. So
// does the engine; where it cannot be loaded, scripts fail with a lumcore::filesupport::FileError
// that names its file.
//
// One thread makes a runner, uses it and destroys it, that of the user interface, while the
// application object lives. What the host hands over is kept, called and destroyed there.
class LUMSCRIPTING_API ScriptRunner {
 public:
  // What it throws becomes an exception in the script.
  using HostFunction = std::function<ScriptValue(const std::vector<ScriptValue>&)>;
  // Called on the user interface thread with the value of the script's last statement, or with what
  // went wrong: a ScriptError, also for a script that was stopped.
  using Completion = std::function<void(const ScriptValue& inValue, std::exception_ptr inFailure)>;
  using FailureFunction = std::function<void(const std::exception_ptr& inFailure)>;
  // Makes the call, once. What it throws, the call's own failure among it, becomes an exception in
  // the script.
  using CallFunction = std::function<void(const std::function<void()>& inCall)>;

  ScriptRunner();
  ~ScriptRunner();
  ScriptRunner(const ScriptRunner&) = delete;
  ScriptRunner& operator=(const ScriptRunner&) = delete;

  // A global function of all scripts that are queued from now on. Adding a name again replaces it.
  void AddFunction(const lumcore::UTF16String& inName, HostFunction inFunction);
  // Gets the failures that no completion hears of: those of listeners, of events, of a registered
  // object that could not be made, and of scripts without a completion. Without a function they go
  // to the application's error function.
  void SetFailureFunction(FailureFunction inFunction);
  // Stands around each call of a function and each reading of a property by a script or a listener,
  // on the user interface thread: for a host that tells a script more than the call throws.
  void SetCallFunction(CallFunction inFunction);

  // Queues a script. inFile stands in its errors. The completion is dropped when the runner dies.
  void Run(const lumcore::UTF16String& inProgram, const lumcore::UTF16String& inFile,
           Completion inCompletion);
  // The same with the content of a file, which is read now and has to be UTF-8. The completion also
  // hears of a FileError, and of a ScriptError with the line that is not UTF-8.
  void RunFile(const lumcore::filesupport::File& inFile, Completion inCompletion);
  // Stops the script, or the listener, that runs now, if any; the queued ones run on.
  void StopRunning();

  // What the scripts of this runner see of the ScriptRegistry, by name. The first call, or the
  // first script, makes the objects. Null where there is no such object.
  boost::intrusive_ptr<ScriptObject> FindObject(const lumcore::UTF16String& inName);
  std::vector<ScriptDefinition> GetDefinitions();

  // Stops the running script, drops the queued ones with the events and waits for the thread. False
  // when the thread did not end in time: it is in a built-in operation that cannot be stopped, and
  // is left behind.
  bool ShutDown(std::chrono::milliseconds inPatience);

 private:
  void MakeObjects();
  void Queue(lumcore::UTF16String inProgram, lumcore::UTF16String inFile, Completion inCompletion);

  std::shared_ptr<HostSide> mHostSide;
  std::shared_ptr<ScriptWorker> mWorker;
};

}  // namespace lumscripting
