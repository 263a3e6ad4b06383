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

#include "EventListeners.h"
#include "lumcore/Strings.h"
#include "lumscripting/ScriptRegistry.h"
#include "lumscripting/ScriptValue.h"
#include "lumscripting/events/QueueEvent.h"

class QJSEngine;
class QJSValue;

namespace lumscripting {

class HostBridge;
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

  // Of the user interface thread.
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
  HostBridge& GetBridge() { return *mBridge; }
  void RunScript(const lumcore::UTF16String& inProgram, const lumcore::UTF16String& inFile,
                 int inCompletion);
  void Deliver(const QueuedEvent& inEvent);

 private:
  void Work();
  bool TakeTask(Task& outTask);
  bool BeginRun();
  void Interrupt();
  bool EndRun();
  bool Fill(const QueuedEvent& inEvent, ScriptEventObject& ioEvent);

  const std::weak_ptr<HostSide> mHostSide;
  ListenedTypes mListened;
  std::mutex mMutex;
  std::condition_variable mWake;
  std::deque<Task> mTasks;
  bool mRunning = false;
  bool mClosing = false;
  bool mEnded = false;
  std::thread mThread;
  std::unique_ptr<QJSEngine> mEngine;   // made and destroyed on the script thread
  std::unique_ptr<HostBridge> mBridge;  // likewise
};

}  // namespace lumscripting
