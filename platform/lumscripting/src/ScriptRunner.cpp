// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptRunner.h"

#include <QJSEngine>
#include <QStringList>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <utility>

#include "HostBridge.h"
#include "lumcore/config/Localizer.h"
#include "lumscripting/ScriptError.h"
#include "lumscripting/threads/DirectCall.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"

namespace lumscripting {

namespace {

constexpr std::chrono::milliseconds kDestructorPatience(5000);
constexpr int kFirstLine = 1;

lumcore::UTF16String StoppedText() {
  return lumcore::config::Localizer::Get()->GetLocalizedString(
      "$$$/lumscripting/Error/Stopped=The script was stopped.");
}

// The innermost line of a script that has a file: an error that comes from the host is made in a
// function that the user has not written. An entry of the stack reads "function:line:column:file".
int FindLine(const QJSValue& inError, const QStringList& inStack) {
  for (const QString& entry : inStack) {
    const QStringList parts = entry.split(QLatin1Char(':'));
    if (parts.size() > 3 && !parts.back().isEmpty()) return parts[1].toInt();
  }
  return inError.property(QStringLiteral("lineNumber")).toInt();
}

}  // namespace

// Everything that the two threads share. The script thread holds a reference, so that a runner that
// has given up waiting leaves nothing dangling.
class ScriptRunner::Worker : public std::enable_shared_from_this<Worker> {
 public:
  using Task = std::function<void()>;

  void Start() {
    mThread = std::thread([self = shared_from_this()] { self->Work(); });
  }

  void Queue(Task inTask) {
    const std::lock_guard lock(mMutex);
    mTasks.push_back(std::move(inTask));
    mWake.notify_all();
  }

  void AddFunction(const lumcore::UTF16String& inName, HostFunction inFunction) {
    mBridge->AddFunction(inName, std::move(inFunction));
  }

  void RunScript(const lumcore::UTF16String& inProgram, const lumcore::UTF16String& inFile,
                 const Completion& inCompletion);
  void StopRunning();
  bool ShutDown(std::chrono::milliseconds inPatience);

 private:
  void Work();
  bool TakeTask(Task& outTask);
  bool BeginRun();
  void Interrupt();
  bool EndRun();
  void Complete(const Completion& inCompletion, ScriptValue inValue, std::exception_ptr inFailure);

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

void ScriptRunner::Worker::Work() {
  mEngine = std::make_unique<QJSEngine>();
  mBridge = std::make_unique<HostBridge>(*mEngine);
  for (Task task; TakeTask(task);)
    task();
  mBridge.reset();
  mEngine.reset();
  const std::lock_guard lock(mMutex);
  mEnded = true;
  mWake.notify_all();
}

bool ScriptRunner::Worker::TakeTask(Task& outTask) {
  std::unique_lock lock(mMutex);
  mWake.wait(lock, [this] { return mClosing || !mTasks.empty(); });
  if (mClosing) return false;
  outTask = std::move(mTasks.front());
  mTasks.pop_front();
  return true;
}

bool ScriptRunner::Worker::BeginRun() {
  const std::lock_guard lock(mMutex);
  mRunning = !mClosing;
  return mRunning;
}

// Called under the lock.
void ScriptRunner::Worker::Interrupt() {
  if (!mRunning) return;
  mEngine->setInterrupted(true);
  threads::RefuseCallsFrom(mThread.get_id());
}

// Whether the run was stopped. An interruption stays set until it is cleared: it is set only while
// a run is under way and cleared under the same lock, so that a stop meant for one run never hits
// what follows.
bool ScriptRunner::Worker::EndRun() {
  const std::lock_guard lock(mMutex);
  mRunning = false;
  const bool stopped = mEngine->isInterrupted();
  mEngine->setInterrupted(false);
  threads::AllowCallsFrom(std::this_thread::get_id());
  return stopped;
}

void ScriptRunner::Worker::RunScript(const lumcore::UTF16String& inProgram,
                                     const lumcore::UTF16String& inFile,
                                     const Completion& inCompletion) {
  if (!BeginRun()) return;
  QStringList stack;
  const QJSValue value =
      mEngine->evaluate(ToQString(inProgram), ToQString(inFile), kFirstLine, &stack);
  if (EndRun()) {
    Complete(inCompletion, {}, std::make_exception_ptr(ScriptError(inFile, 0, StoppedText())));
  } else if (!value.isError() && stack.isEmpty()) {
    Complete(inCompletion, FromScript(value), nullptr);
  } else {
    const ScriptError failure(inFile, FindLine(value, stack), FromQString(value.toString()));
    Complete(inCompletion, {}, std::make_exception_ptr(failure));
  }
}

void ScriptRunner::Worker::Complete(const Completion& inCompletion, ScriptValue inValue,
                                    std::exception_ptr inFailure) {
  const std::lock_guard lock(mMutex);
  // A runner that goes has promised nothing more, and the executor may go with it.
  if (mClosing || !inCompletion) return;
  lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([weak = weak_from_this(), inCompletion,
                                                             value = std::move(inValue),
                                                             failure = std::move(inFailure)] {
    const auto self = weak.lock();
    if (self && !self->mClosing) inCompletion(value, failure);
  });
}

void ScriptRunner::Worker::StopRunning() {
  const std::lock_guard lock(mMutex);
  Interrupt();
}

bool ScriptRunner::Worker::ShutDown(std::chrono::milliseconds inPatience) {
  if (!mThread.joinable()) return true;
  std::unique_lock lock(mMutex);
  mClosing = true;
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

ScriptRunner::ScriptRunner() : mWorker(std::make_shared<Worker>()) {
  mWorker->Start();
}

ScriptRunner::~ScriptRunner() {
  ShutDown(kDestructorPatience);
}

void ScriptRunner::AddFunction(const lumcore::UTF16String& inName, HostFunction inFunction) {
  mWorker->Queue([worker = mWorker.get(), inName, function = std::move(inFunction)]() mutable {
    worker->AddFunction(inName, std::move(function));
  });
}

void ScriptRunner::Run(const lumcore::UTF16String& inProgram, const lumcore::UTF16String& inFile,
                       Completion inCompletion) {
  mWorker->Queue([worker = mWorker.get(), inProgram, inFile, completion = std::move(inCompletion)] {
    worker->RunScript(inProgram, inFile, completion);
  });
}

void ScriptRunner::StopRunning() {
  mWorker->StopRunning();
}

bool ScriptRunner::ShutDown(std::chrono::milliseconds inPatience) {
  return mWorker->ShutDown(inPatience);
}

}  // namespace lumscripting
