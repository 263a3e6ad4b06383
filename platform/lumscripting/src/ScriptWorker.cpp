// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptWorker.h"

#include <QJSEngine>
#include <QStringList>
#include <algorithm>
#include <utility>

#include "HostBridge.h"
#include "HostSide.h"
#include "ScriptConvert.h"
#include "lumcore/config/Localizer.h"
#include "lumscripting/ScriptError.h"
#include "lumscripting/threads/DirectCall.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"

namespace lumscripting {

namespace {

constexpr int kFirstLine = 1;

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
  mEngine = std::make_unique<QJSEngine>();
  mBridge = std::make_unique<HostBridge>(*mEngine, mHostSide, mListened);
  for (Task task; TakeTask(task);)
    task();
  mBridge.reset();
  mEngine.reset();
  const std::lock_guard lock(mMutex);
  mEnded = true;
  mWake.notify_all();
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
  mEngine->setInterrupted(true);
  threads::RefuseCallsFrom(mThread.get_id());
}

// Whether the run was stopped. An interruption stays set until it is cleared: it is set only while
// a run is under way and cleared under the same lock, so that a stop meant for one run never hits
// what follows.
bool ScriptWorker::EndRun() {
  const std::lock_guard lock(mMutex);
  mRunning = false;
  const bool stopped = mEngine->isInterrupted();
  mEngine->setInterrupted(false);
  threads::AllowCallsFrom(std::this_thread::get_id());
  return stopped;
}

void ScriptWorker::RunScript(const lumcore::UTF16String& inProgram,
                             const lumcore::UTF16String& inFile, int inCompletion) {
  if (!BeginRun()) return;
  QStringList stack;
  const QJSValue value =
      mEngine->evaluate(ToQString(inProgram), ToQString(inFile), kFirstLine, &stack);
  if (EndRun()) {
    Complete(inCompletion, {}, Stopped(inFile));
  } else if (!value.isError() && stack.isEmpty()) {
    Complete(inCompletion, FromScript(value), nullptr);
  } else {
    Complete(inCompletion, {}, std::make_exception_ptr(ErrorFromScript(value, stack, inFile)));
  }
}

// Each listener is a run of its own: one that is stopped, or that throws, does not keep the others
// from the event. One that another has removed meanwhile does not hear it.
void ScriptWorker::Deliver(const QueuedEvent& inEvent) {
  const auto filled = inEvent.kind->make();
  if (!Fill(inEvent, *filled)) return;
  const ScriptDefinition& definition = inEvent.kind->definition;
  const QJSValue event = mBridge->MakeEvent(definition, *filled, inEvent.type, inEvent.target);
  EventListeners& listeners = mBridge->GetListeners();
  for (const QJSValue& listener : listeners.Find(inEvent.target, inEvent.type)) {
    if (!listeners.Has(inEvent.target, inEvent.type, listener)) continue;
    if (!BeginRun()) return;
    QStringList stack;
    const QJSValue value = mBridge->CallListener(listener, event, stack);
    if (EndRun()) {
      Fail(Stopped(definition.name));
    } else if (!stack.isEmpty()) {
      Fail(std::make_exception_ptr(ErrorFromScript(value, stack, definition.name)));
    }
  }
}

// A run too, since it may wait for the user interface: a shut-down has to get it out of that.
bool ScriptWorker::Fill(const QueuedEvent& inEvent, ScriptEventObject& ioEvent) {
  if (!BeginRun()) return false;
  std::exception_ptr failure;
  try {
    inEvent.fill(ioEvent);
  } catch (...) {
    // The host's own failure, for the host.
    failure = std::current_exception();
  }
  if (EndRun()) failure = Stopped(inEvent.kind->definition.name);
  if (failure) Fail(failure);
  return !failure;
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
  if (!mThread.joinable()) return true;
  auto& live = Live();
  live.erase(std::remove(live.begin(), live.end(), shared_from_this()), live.end());
  std::deque<Task> dropped;  // outlives the lock
  std::unique_lock lock(mMutex);
  mClosing = true;
  dropped.swap(mTasks);
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
