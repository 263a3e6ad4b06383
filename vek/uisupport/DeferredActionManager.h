// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/thread/lock_guard.hpp>
#include <boost/thread/mutex.hpp>
#include <list>
#include <memory>

#include "vek/config/Export.h"

namespace vek::uisupport {

class DeferredAction;

// Two queues of actions, of which each is run in batches at later turns of the event loop. Actions
// may be queued from any thread once the thread of the user interface has called Get; all else
// belongs to that thread. The lock guards the lists alone and is never held while an action runs or
// dies.
//
// While a batch runs, no other batch of either queue does. Its actions may queue others, run the
// event loop, and end this manager: what is left of the batch is then deleted unrun.
class VEK_API DeferredActionManager {
 public:
  static DeferredActionManager& Get();
  // Deletes the manager and its actions. Those of the idle queue are given up and never deleted.
  static void Terminate();

  // Each takes ownership and posts a run of its queue, also where it throws.
  void QueueAction(DeferredAction* inAction);
  void QueueIdleAction(DeferredAction* inAction);

 private:
  using Actions = std::list<std::unique_ptr<DeferredAction>>;
  using Queue = Actions DeferredActionManager::*;
  using Run = void (DeferredActionManager::*)();
  class StRunning;

  DeferredActionManager();
  ~DeferredActionManager();
  DeferredActionManager(const DeferredActionManager&) = delete;
  DeferredActionManager& operator=(const DeferredActionManager&) = delete;

  void Append(Queue inQueue, DeferredAction* inAction);
  static void PostRun(Run inRun);
  void ExecuteActions();
  void ExecuteIdleActions();
  void Execute(Queue inQueue);
  static void RunBatch(Actions& ioBatch);

  Actions mActions;
  Actions mIdleActions;
  boost::mutex mMutex;
  // Runs that were refused in the middle of another. For the thread of the user interface alone.
  bool mActionsRefused = false;
  bool mIdleActionsRefused = false;
};

}  // namespace vek::uisupport
