// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <condition_variable>
#include <deque>
#include <exception>
#include <functional>
#include <memory>
#include <mutex>
#include <thread>
#include <vector>

#include "ListenedTypes.h"
#include "ScriptEngine.h"
#include "lumcore/Strings.h"
#include "lumscripting/ScriptRegistry.h"
#include "lumscripting/ScriptValue.h"
#include "lumscripting/events/QueueEvent.h"

namespace lumscripting {

class HostSide;

// The script thread of a runner and everything that the two threads share. The thread holds a
// reference, so that a runner that has given up waiting leaves nothing dangling.
class ScriptWorker : public std::enable_shared_from_this<ScriptWorker> {
 public:
  using Task = std::function<void()>;
  struct QueuedEvent {
    std::shared_ptr<const ScriptRegistry::Event> kind;
    lumcore::UTF16String type;
    events::FillFunction fill;
    const ScriptObject* target;
  };

  explicit ScriptWorker(std::weak_ptr<HostSide> inHostSide);
  ~ScriptWorker();

  // Those that have been started and not shut down. For the user interface thread.
  static std::vector<std::shared_ptr<ScriptWorker>> GetLive();

  // Of the user interface thread. What is queued waits for the first start; further ones, and one
  // behind the shut-down, do nothing.
  void Start();
  bool ShutDown(std::chrono::milliseconds inPatience);

  // From any thread.
  void Queue(Task inTask);
  void StopRunning();
  const ListenedTypes& GetListened() const { return mListened; }
  // Posts to the completion, or where that is 0 to what hears of failures.
  void Complete(int inCompletion, ScriptValue inValue, std::exception_ptr inFailure);
  void Fail(std::exception_ptr inFailure) { Complete(0, {}, std::move(inFailure)); }

  // For the tasks, on the script thread.
  void AddFunction(const lumcore::UTF16String& inName, int inFunction);
  void AddObject(std::shared_ptr<const ScriptDefinition> inDefinition,
                 const ScriptObject* inTarget);
  void RunScript(const lumcore::UTF16String& inProgram, const lumcore::UTF16String& inFile,
                 int inCompletion);
  void Deliver(const QueuedEvent& inEvent);

 private:
  void Work();
  void MakeEngine();
  bool TakeTask(Task& outTask);
  bool BeginRun();
  void Interrupt();
  bool EndRun();
  enum class RunEnd { kGood, kFailed, kNotBegun };
  RunEnd RunTurn(const lumcore::UTF16String& inFile, const ScriptEngine::Turn& inTurn);

  const std::weak_ptr<HostSide> mHostSide;
  ListenedTypes mListened;
  std::mutex mMutex;
  std::condition_variable mWake;
  std::deque<Task> mTasks;
  bool mRunning = false;
  bool mClosing = false;
  bool mEnded = false;
  std::thread mThread;
  // Made with the first task, and destroyed, on the script thread. Without one, scripts fail so.
  std::unique_ptr<ScriptEngine> mEngine;
  std::exception_ptr mEngineFailure;
};

}  // namespace lumscripting
