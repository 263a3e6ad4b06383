// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <functional>
#include <stdexcept>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "lumui/ui/Application.h"
#include "vek/uisupport/DeferredAction.h"
#include "vek/uisupport/DeferredActionManager.h"

namespace {

using vek::uisupport::DeferredAction;
using vek::uisupport::DeferredActionManager;

class DeferredActions : public testing::Test {
 protected:
  // Logs its name when it runs and "~name" when it is deleted, and does what the test wants.
  class Action : public DeferredAction {
   public:
    Action(DeferredActions& ioTest, std::string inName) : mTest(ioTest), mName(std::move(inName)) {}
    ~Action() override { mTest.Log("~" + mName); }
    void Execute() override {
      mTest.Log(mName);
      if (mWork) mWork();
    }
    bool ReadyToExecute() const override { return mTest.mUnready.find(mName) == std::string::npos; }
    bool Supersedes(const DeferredAction* inOther) const override {
      return static_cast<const Action*>(inOther)->mName == mSuperseded;
    }

    DeferredActions& mTest;
    std::string mName;
    std::string mSuperseded;
    std::function<void()> mWork;
  };

  DeferredActions() { DeferredActionManager::Get(); }
  ~DeferredActions() override {
    DeferredActionManager::Terminate();
    lumui::ui::Application::Get()->PumpPendingEvents();
    lumui::ui::Application::Get()->SetErrorFunction({});
  }

  void Log(const std::string& inEvent) { mLog += (mLog.empty() ? "" : " ") + inEvent; }
  std::string Pump() {
    lumui::ui::Application::Get()->PumpPendingEvents();
    return std::exchange(mLog, {});
  }
  Action* Queue(const std::string& inName, std::function<void()> inWork = {}) {
    auto* const action = new Action(*this, inName);
    action->mWork = std::move(inWork);
    DeferredActionManager::Get().QueueAction(action);
    return action;
  }

  std::string mLog;
  std::string mUnready;
};

TEST_F(DeferredActions, RunOnceInOrderAtALaterTurn) {
  Queue("a");
  Queue("b");
  EXPECT_EQ(mLog, "");
  EXPECT_EQ(Pump(), "a ~a b ~b");
  EXPECT_EQ(Pump(), "");
}

TEST_F(DeferredActions, DropThoseBehindThemThatTheySupersede) {
  Queue("b");
  Queue("a")->mSuperseded = "b";
  Queue("c");
  Queue("b");
  Queue("b");
  EXPECT_EQ(Pump(), "b ~b ~b ~b a ~a c ~c");
}

TEST_F(DeferredActions, ThatAreNotReadyGoBehindWhatWasQueuedMeanwhile) {
  mUnready = "a";
  Queue("a");
  Queue("b", [this] { Queue("c"); });
  EXPECT_EQ(Pump(), "b ~b c ~c");
  mUnready = "";
  EXPECT_EQ(Pump(), "");
  Queue("d");
  EXPECT_EQ(Pump(), "a ~a d ~d");
}

TEST_F(DeferredActions, AreAbandonedUnrunWhenOneThrows) {
  std::string error;
  lumui::ui::Application::Get()->SetErrorFunction([&](const std::exception_ptr& inFailure) {
    try {
      std::rethrow_exception(inFailure);
    } catch (const std::exception& failure) {
      error = failure.what();
    }
  });
  Queue("a", [] { throw std::runtime_error("failed"); });
  Queue("b");
  const std::string log = Pump();
  EXPECT_EQ(error, "failed");
  EXPECT_EQ(log.substr(0, 1), "a");
  EXPECT_EQ(log.find(" b"), std::string::npos) << log;
  EXPECT_NE(log.find("~a"), std::string::npos) << log;
  EXPECT_NE(log.find("~b"), std::string::npos) << log;
  Queue("c");
  EXPECT_EQ(Pump(), "c ~c");
}

// The run that was posted for b comes inside a, is refused, and must not be the last one.
TEST_F(DeferredActions, QueuedWhileAnotherPumpsTheLoopRunAfterIt) {
  Queue("a", [this] {
    Queue("b");
    lumui::ui::Application::Get()->PumpPendingEvents();
    Log("end-of-a");
  });
  EXPECT_EQ(Pump(), "a end-of-a ~a b ~b");
}

TEST_F(DeferredActions, IdleOnesAreAQueueOfTheirOwnThatABatchExcludes) {
  Queue("a", [this] {
    DeferredActionManager::Get().QueueIdleAction(new Action(*this, "idle"));
    lumui::ui::Application::Get()->PumpPendingEvents();
  });
  mUnready = "b";
  Queue("b");
  EXPECT_EQ(Pump(), "a ~a idle ~idle");
}

TEST_F(DeferredActions, MayEndTheManagerThatRunsThem) {
  Queue("a", [this] {
    Queue("queued-later");
    DeferredActionManager::Terminate();
    Log("terminated");
  });
  mUnready = "b";
  Queue("b");
  EXPECT_EQ(Pump(), "a ~queued-later terminated ~a ~b");
  mUnready = "";
  Queue("c");
  EXPECT_EQ(Pump(), "c ~c");
}

TEST_F(DeferredActions, AreDeletedUnrunByTheEndOfTheManagerAndIdleOnesAreNot) {
  Queue("a");
  DeferredActionManager::Get().QueueIdleAction(new Action(*this, "idle"));
  DeferredActionManager::Terminate();
  EXPECT_EQ(mLog, "~a");
  EXPECT_EQ(Pump(), "~a");
}

TEST_F(DeferredActions, ComeFromManyThreadsEachInItsOrder) {
  constexpr int kThreads = 4;
  constexpr int kActions = 500;
  struct Count : DeferredAction {
    Count(std::vector<int>& ioCounts, int inThread, int inNumber)
        : mCounts(ioCounts), mThread(inThread), mNumber(inNumber) {}
    void Execute() override {
      int& count = mCounts[static_cast<std::size_t>(mThread)];
      if (count == mNumber) ++count;
    }
    bool ReadyToExecute() const override { return true; }
    std::vector<int>& mCounts;
    int mThread;
    int mNumber;
  };
  std::vector<int> counts(kThreads, 0);
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&counts, thread] {
      for (int number = 0; number < kActions; ++number) {
        DeferredActionManager::Get().QueueAction(new Count(counts, thread, number));
      }
    });
  }
  for (auto& thread : threads)
    thread.join();
  Pump();
  EXPECT_EQ(counts, std::vector<int>(kThreads, kActions));
}

}  // namespace
