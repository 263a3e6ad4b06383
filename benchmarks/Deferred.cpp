// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <atomic>
#include <chrono>
#include <functional>
#include <thread>
#include <utility>
#include <vector>

#include "DeferredPeer.h"
#include "lumui/ui/Application.h"
#include "support/Pair.h"
#include "vek/uisupport/DeferredAction.h"
#include "vek/uisupport/DeferredActionManager.h"

namespace {

using vek::uisupport::DeferredActionManager;
using Clock = std::chrono::steady_clock;
using QueueFunction = std::function<void(std::function<void()>)>;

constexpr int kThreads = 4;
constexpr int kActionsAThread = 250;
constexpr int kActions = kThreads * kActionsAThread;

class FunctionAction : public vek::uisupport::DeferredAction {
 public:
  explicit FunctionAction(std::function<void()> inFunction) : mFunction(std::move(inFunction)) {}
  void Execute() override { mFunction(); }
  bool ReadyToExecute() const override { return true; }

 private:
  std::function<void()> mFunction;
};

void QueueAction(std::function<void()> inFunction) {
  DeferredActionManager::Get().QueueAction(new FunctionAction(std::move(inFunction)));
}

// Four threads queue as fast as they can while this one runs what comes.
class Burst {
 public:
  explicit Burst(const QueueFunction& inQueue) {
    for (int thread = 0; thread < kThreads; ++thread) {
      mThreads.emplace_back([this, &inQueue] {
        while (!mGo)
          std::this_thread::yield();
        for (int i = 0; i < kActionsAThread; ++i) {
          inQueue([this, queued = Clock::now()] {
            mLongestWait = std::max(mLongestWait, Clock::now() - queued);
            ++mRan;
          });
        }
      });
    }
  }
  ~Burst() {
    for (std::thread& thread : mThreads)
      thread.join();
    // The posts of actions that ran with others' are left.
    lumui::ui::Application::Get()->PumpPendingEvents();
  }

  void Run() {
    mGo = true;
    while (mRan < kActions)
      lumui::ui::Application::Get()->PumpPendingEvents();
  }
  double GetLongestWait() const {  // microseconds
    return std::chrono::duration<double, std::micro>(mLongestWait).count();
  }

 private:
  std::vector<std::thread> mThreads;
  std::atomic<bool> mGo{false};
  int mRan = 0;
  Clock::duration mLongestWait{};
};

bench::Body Time(const QueueFunction& inQueue) {
  return [inQueue](benchmark::State& ioState) {
    for (auto _ : ioState) {
      ioState.PauseTiming();
      {
        Burst burst(inQueue);
        ioState.ResumeTiming();
        burst.Run();
        ioState.PauseTiming();
      }
      ioState.ResumeTiming();
    }
    ioState.SetItemsProcessed(ioState.iterations() * kActions);
  };
}

// The median of many bursts, since one that the machine holds up says nothing.
double LongestWait(const QueueFunction& inQueue) {
  constexpr int kBursts = 101;
  std::vector<double> waits;
  for (int i = 0; i < kBursts; ++i) {
    Burst burst(inQueue);
    burst.Run();
    waits.push_back(burst.GetLongestWait());
  }
  std::nth_element(waits.begin(), waits.begin() + kBursts / 2, waits.end());
  return waits[kBursts / 2];
}

}  // namespace

int main(int argc, char** argv) {
  lumui::ui::Application application(argc, argv);
  DeferredActionManager::Get();
  QueuedCalls calls;
  const QueueFunction queueInQt = [&calls](std::function<void()> inFunction) {
    calls.Queue(std::move(inFunction));
  };
  const bool wallClock = true;
  const int result = bench::Run("deferred", argc, argv,
                                {{"queue and run an action, 4 threads of 250", "us", std::nullopt,
                                  Time(QueueAction), Time(queueInQt), wallClock}},
                                {{"longest wait in such a burst", "us", std::nullopt,
                                  LongestWait(QueueAction), LongestWait(queueInQt)}});
  DeferredActionManager::Terminate();
  return result;
}
