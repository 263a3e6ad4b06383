// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/threads/DirectCall.h"

#include <QCoreApplication>
#include <QThread>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <set>
#include <utility>

#include "lumui/ui/Executor.h"
#include "lumui/ui/UI_NodeManager.h"

namespace lumscripting::threads {

namespace {

// One call on its way. Both threads hold it, so that either may leave first.
class Call {
 public:
  explicit Call(std::function<void()> inFunction) : mFunction(std::move(inFunction)) {}

  void Run() {
    {
      const std::lock_guard lock(mMutex);
      if (mState != State::kWaiting) return;
      mState = State::kRunning;
    }
    std::exception_ptr failure;
    try {
      mFunction();
    } catch (...) {
      // Kept for the thread that waits.
      failure = std::current_exception();
    }
    Finish(State::kDone, failure);
  }

  // Also when it runs already: the call that runs may be the one that shuts the caller down.
  void Cancel() { Finish(State::kCancelled, nullptr); }

  void Wait() {
    std::unique_lock lock(mMutex);
    mFinished.wait(lock, [this] { return mState == State::kDone || mState == State::kCancelled; });
    if (mState == State::kCancelled) throw CallCancelled();
    if (mFailure) std::rethrow_exception(std::exchange(mFailure, nullptr));
  }

 private:
  enum class State { kWaiting, kRunning, kDone, kCancelled };

  void Finish(State inState, std::exception_ptr inFailure) {
    const std::lock_guard lock(mMutex);
    if (mState == State::kDone || mState == State::kCancelled) return;
    mState = inState;
    mFailure = std::move(inFailure);
    mFinished.notify_all();
  }

  std::function<void()> mFunction;
  std::mutex mMutex;
  std::condition_variable mFinished;
  State mState = State::kWaiting;
  std::exception_ptr mFailure;
};

// Which threads wait in a call and which may make none.
class Calls {
 public:
  static Calls& Get() {
    static Calls* const sCalls = new Calls;
    return *sCalls;
  }

  bool Enter(const std::shared_ptr<Call>& inCall) {
    const std::lock_guard lock(mMutex);
    const auto thread = std::this_thread::get_id();
    return mRefused.count(thread) == 0 && mWaiting.emplace(thread, inCall).second;
  }
  void Leave() {
    const std::lock_guard lock(mMutex);
    mWaiting.erase(std::this_thread::get_id());
  }
  void Refuse(std::thread::id inThread) {
    const std::lock_guard lock(mMutex);
    mRefused.insert(inThread);
    const auto waiting = mWaiting.find(inThread);
    if (waiting != mWaiting.end()) waiting->second->Cancel();
  }
  void Allow(std::thread::id inThread) {
    const std::lock_guard lock(mMutex);
    mRefused.erase(inThread);
  }

 private:
  std::mutex mMutex;
  std::map<std::thread::id, std::shared_ptr<Call>> mWaiting;
  std::set<std::thread::id> mRefused;
};

struct StEnteredCall {
  explicit StEnteredCall(const std::shared_ptr<Call>& inCall) {
    if (!Calls::Get().Enter(inCall)) throw CallCancelled();
  }
  ~StEnteredCall() { Calls::Get().Leave(); }
  StEnteredCall(const StEnteredCall&) = delete;
  StEnteredCall& operator=(const StEnteredCall&) = delete;
};

}  // namespace

CallCancelled::CallCancelled() = default;
CallCancelled::~CallCancelled() = default;

const char* CallCancelled::what() const noexcept {
  return "The call to the user interface was cancelled";
}

void DirectVoidCallOnUIThread(std::function<void()> inFunction) {
  lumui::ui::UI_NodeManager* const manager = lumui::ui::UI_NodeManager::Get(false);
  if (!manager) throw CallCancelled();
  if (QThread::currentThread() == QCoreApplication::instance()->thread()) {
    inFunction();
    return;
  }
  const auto call = std::make_shared<Call>(std::move(inFunction));
  const StEnteredCall entered(call);
  manager->GetExecutor()->Post([call] { call->Run(); });
  call->Wait();
}

void RefuseCallsFrom(std::thread::id inThread) {
  Calls::Get().Refuse(inThread);
}

void AllowCallsFrom(std::thread::id inThread) {
  Calls::Get().Allow(inThread);
}

}  // namespace lumscripting::threads
