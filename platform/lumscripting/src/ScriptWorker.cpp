// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptWorker.h"

#include <algorithm>
#include <utility>

#include "HostSide.h"
#include "lumcore/config/Localizer.h"
#include "lumscripting/ScriptError.h"
#include "lumscripting/ScriptEventObject.h"
#include "lumscripting/threads/DirectCall.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"

namespace lumscripting {

namespace {

std::vector<std::shared_ptr<ScriptWorker>>& Live() {
  static std::vector<std::shared_ptr<ScriptWorker>> sLive;
  return sLive;
}

std::exception_ptr Stopped(const lumcore::UTF16String& inFile) {
  const auto text = lumcore::config::Localizer::Get()->GetLocalizedString(
      "$$$/lumscripting/Error/Stopped=The script was stopped.");
  return std::make_exception_ptr(ScriptError(inFile, 0, text));
}

// On the user interface thread.
void HandOver(HostSide& ioHost, int inCompletion, const ScriptValue& inValue,
              const std::exception_ptr& inFailure) {
  if (inCompletion != 0) {
    const auto found = ioHost.completions.find(inCompletion);
    if (found == ioHost.completions.end()) return;  // the runner has shut down
    const ScriptRunner::Completion completion = std::move(found->second);
    ioHost.completions.erase(found);
    if (completion) return completion(inValue, inFailure);
  }
  if (!inFailure) return;
  const ScriptRunner::FailureFunction function = ioHost.failureFunction;
  if (!function) std::rethrow_exception(inFailure);  // reaches the application's error function
  function(inFailure);
}

}  // namespace

ScriptWorker::ScriptWorker(std::weak_ptr<HostSide> inHostSide) : mHostSide(std::move(inHostSide)) {}

ScriptWorker::~ScriptWorker() = default;

std::vector<std::shared_ptr<ScriptWorker>> ScriptWorker::GetLive() {
  return Live();
}

void ScriptWorker::Start() {
  if (mThread.joinable() || mClosing) return;
  Live().push_back(shared_from_this());
  mThread = std::thread([self = shared_from_this()] { self->Work(); });
}

void ScriptWorker::Queue(Task inTask) {
  const std::lock_guard lock(mMutex);
  if (mClosing) return;
  mTasks.push_back(std::move(inTask));
  mWake.notify_all();
}

void ScriptWorker::Work() {
  for (Task task; TakeTask(task);) {
    if (!mEngine && !mEngineFailure) MakeEngine();
    task();
  }
  mEngine.reset();
  const std::lock_guard lock(mMutex);
  mEnded = true;
  mWake.notify_all();
}

void ScriptWorker::MakeEngine() {
  try {
    mEngine = MakeScriptEngine(mHostSide, mListened);
  } catch (...) {
    // Told to whoever runs a script.
    mEngineFailure = std::current_exception();
  }
}

bool ScriptWorker::TakeTask(Task& outTask) {
  std::unique_lock lock(mMutex);
  mWake.wait(lock, [this] { return mClosing || !mTasks.empty(); });
  if (mClosing) return false;
  outTask = std::move(mTasks.front());
  mTasks.pop_front();
  return true;
}

bool ScriptWorker::BeginRun() {
  const std::lock_guard lock(mMutex);
  mRunning = !mClosing;
  return mRunning;
}

// Called under the lock.
void ScriptWorker::Interrupt() {
  if (!mRunning) return;
  mEngine->SetInterrupted(true);
  threads::RefuseCallsFrom(mThread.get_id());
}

// Whether the run was stopped. An interruption stays set until it is cleared: it is set only while
// a run is under way and cleared under the same lock, so that a stop meant for one run never hits
// what follows.
bool ScriptWorker::EndRun() {
  const std::lock_guard lock(mMutex);
  mRunning = false;
  const bool stopped = mEngine->IsInterrupted();
  mEngine->SetInterrupted(false);
  threads::AllowCallsFrom(std::this_thread::get_id());
  return stopped;
}

void ScriptWorker::AddFunction(const lumcore::UTF16String& inName, int inFunction) {
  if (mEngine) mEngine->AddFunction(inName, inFunction);
}

void ScriptWorker::AddObject(std::shared_ptr<const ScriptDefinition> inDefinition,
                             const ScriptObject* inTarget) {
  if (mEngine) mEngine->AddObject(std::move(inDefinition), inTarget);
}

void ScriptWorker::RunScript(const lumcore::UTF16String& inProgram,
                             const lumcore::UTF16String& inFile, int inCompletion) {
  if (!mEngine) return Complete(inCompletion, {}, mEngineFailure);
  if (!BeginRun()) return;
  ScriptEngine::Result result = mEngine->Evaluate(inProgram, inFile);
  if (EndRun()) result = {{}, Stopped(inFile)};
  Complete(inCompletion, std::move(result.value), std::move(result.failure));
}

// Filling the event is a run too, since it may wait for the user interface: a shut-down has to get
// it out of that. And so is each listener's turn: one that is stopped, or that throws, does not
// keep the others from the event.
void ScriptWorker::Deliver(const QueuedEvent& inEvent) {
  const auto filled = inEvent.kind->make();
  const ScriptDefinition& definition = inEvent.kind->definition;
  const auto fill = [&]() -> std::exception_ptr {
    try {
      inEvent.fill(*filled);
    } catch (...) {
      // The host's own failure, for the host.
      return std::current_exception();
    }
    return nullptr;
  };
  if (RunTurn(definition.name, fill) != RunEnd::kGood) return;
  mEngine->Deliver(definition, *filled, inEvent.type, inEvent.target,
                   [&](const ScriptEngine::Turn& inTurn) {
                     return RunTurn(definition.name, inTurn) != RunEnd::kNotBegun;
                   });
}

ScriptWorker::RunEnd ScriptWorker::RunTurn(const lumcore::UTF16String& inFile,
                                           const ScriptEngine::Turn& inTurn) {
  if (!BeginRun()) return RunEnd::kNotBegun;
  std::exception_ptr failure = inTurn();
  if (EndRun()) failure = Stopped(inFile);
  if (!failure) return RunEnd::kGood;
  Fail(std::move(failure));
  return RunEnd::kFailed;
}

void ScriptWorker::Complete(int inCompletion, ScriptValue inValue, std::exception_ptr inFailure) {
  const std::lock_guard lock(mMutex);
  // A runner that goes has promised nothing more, and the executor may go with it.
  auto* const manager = lumui::ui::UI_NodeManager::Get(false);
  if (mClosing || !manager) return;
  manager->GetExecutor()->Post(
      [weak = mHostSide, inCompletion, value = std::move(inValue), failure = std::move(inFailure)] {
        if (const auto host = weak.lock()) HandOver(*host, inCompletion, value, failure);
      });
}

void ScriptWorker::StopRunning() {
  const std::lock_guard lock(mMutex);
  Interrupt();
}

bool ScriptWorker::ShutDown(std::chrono::milliseconds inPatience) {
  auto& live = Live();
  live.erase(std::remove(live.begin(), live.end(), shared_from_this()), live.end());
  std::deque<Task> dropped;  // outlives the lock
  std::unique_lock lock(mMutex);
  mClosing = true;
  dropped.swap(mTasks);
  if (!mThread.joinable()) return true;
  Interrupt();
  mWake.notify_all();
  const bool ended = mWake.wait_for(lock, inPatience, [this] { return mEnded; });
  lock.unlock();
  if (ended) {
    mThread.join();
  } else {
    mThread.detach();
  }
  return ended;
}

}  // namespace lumscripting
