// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QApplication>
#include <QPointer>
#include <QWidget>
#include <atomic>
#include <memory>
#include <stdexcept>
#include <thread>
#include <vector>

#include "UITest.h"
#include "lumui/dialogs/MessageDialog.h"
#include "lumui/ui/Executor.h"

namespace lumui::test {

namespace {

class EventLoop : public UITest {};

}  // namespace

TEST_F(EventLoop, RunsIdleWorkEachTimeTheQueueIsEmptyAndEndsWithTheCode) {
  App().SetIdleFunction([this] {
    Log("idle");
    Manager().GetExecutor()->Post([this] {
      Log("posted");
      if (TakeLog() == "idle posted") {
        Log("first");
      } else {
        App().Quit(7);
      }
    });
  });
  EXPECT_EQ(App().Run(), 7);
  // The next run starts anew.
  App().SetIdleFunction([this] { App().Quit(3); });
  EXPECT_EQ(App().Run(), 3);
}

TEST_F(EventLoop, IdleWorkThatPostsIsFollowedByIdleWork) {
  std::string log;
  App().SetIdleFunction([&] {
    log += "idle ";
    if (log != "idle ") return App().Quit();
    Manager().GetExecutor()->Post([&] { log += "posted "; });
  });
  App().Run();
  EXPECT_EQ(log, "idle posted idle ");
}

TEST_F(EventLoop, ReportsWhatIdleWorkThrowsAndGoesOn) {
  int runs = 0;
  App().SetIdleFunction([&] {
    if (++runs == 2) App().Quit();
    Manager().GetExecutor()->Post([] {});
    throw std::runtime_error("idle");
  });
  App().Run();
  EXPECT_EQ(TakeErrors(), "idle | idle");
}

TEST_F(EventLoop, LetsGoOfWhatEventsAndIdleWorkHaveDestroyed) {
  const auto first = MakeWindow();
  const auto second = MakeWindow();
  std::vector<QPointer<QWidget>> widgets;
  for (QWidget* widget : QApplication::topLevelWidgets()) {
    if (widget->isVisible()) widgets.emplace_back(widget);
  }
  ASSERT_EQ(widgets.size(), 2u);
  Manager().GetExecutor()->Post([&] { first->UI_DestroyWindow(); });
  App().SetIdleFunction([&] {
    EXPECT_NE(widgets[0] == nullptr, widgets[1] == nullptr) << "the first has gone";
    second->UI_DestroyWindow();
    App().SetIdleFunction([this] { App().Quit(); });
    // One more time idle.
    Manager().GetExecutor()->Post([] {});
  });
  App().Run();
  EXPECT_TRUE(widgets[0] == nullptr && widgets[1] == nullptr);
}

TEST_F(EventLoop, QuitFromAnotherThreadWakesALoopThatWaits) {
  std::thread other;
  App().SetIdleFunction([&] {
    if (!other.joinable()) other = std::thread([this] { App().Quit(5); });
  });
  EXPECT_EQ(App().Run(), 5);
  other.join();
}

TEST_F(EventLoop, QuitComesBehindWhatWasPostedBeforeIt) {
  ui::Executor* const executor = Manager().GetExecutor();
  std::function<void()> again = [&] {
    Log("again");
    executor->Post(again);
  };
  executor->Post([&] {
    executor->Post([&] { Log("nested"); });
    executor->Post(again);
    App().Quit(4);
  });
  EXPECT_EQ(App().Run(), 4);
  EXPECT_EQ(TakeLog(), "nested again");
  again = [&] { Log("last"); };
  App().PumpPendingEvents();
  EXPECT_EQ(TakeLog(), "again last");
  App().SetIdleFunction([&] {
    executor->Post([&] { Log("idle"); });
    App().Quit(5);
  });
  EXPECT_EQ(App().Run(), 5);
  EXPECT_EQ(TakeLog(), "idle");
  // What runs so late may think better of it.
  executor->Post([&] { App().CancelQuit(); });
  App().Quit(6);
  EXPECT_EQ(App().Run(), 5);
  EXPECT_EQ(TakeLog(), "idle");
}

// Each thread's functions in its order, each once, none on a foreign thread.
TEST_F(EventLoop, ExecutorKeepsTheOrderOfEveryThread) {
  constexpr int kThreads = 8;
  constexpr int kEach = 2000;
  const auto here = std::this_thread::get_id();
  std::vector<int> next(kThreads, 0);
  int wrong = 0;
  int left = kThreads * kEach;
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread, executor = Manager().GetExecutor()] {
      for (int i = 0; i < kEach; ++i) {
        executor->Post([&, thread, i] {
          if (next[static_cast<std::size_t>(thread)]++ != i) ++wrong;
          if (std::this_thread::get_id() != here) ++wrong;
          if (--left == 0) App().Quit();
        });
      }
    });
  }
  App().Run();
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(wrong, 0);
  EXPECT_EQ(next, std::vector<int>(kThreads, kEach));
}

TEST_F(EventLoop, ExecutorGoesOnAfterAThrowAndInsideAModalBox) {
  ui::Executor* const executor = Manager().GetExecutor();
  executor->Post([] { throw std::runtime_error("posted"); });
  executor->Post([this] {
    Log("box");
    Manager().GetExecutor()->Post([this] { Log("inside"); });
    dialogs::MessageDialogArgs args;
    args.text = U16("text");
    args.buttons = {U16("No"), U16("Yes")};
    dialogs::SetDialogAnswerer([](const dialogs::MessageDialogArgs&) { return 1; });
    Log("answer" + std::to_string(dialogs::RunMessageDialog(args)));
    dialogs::SetDialogAnswerer(nullptr);
  });
  EXPECT_EQ(TakeLog(), "");
  App().PumpPendingEvents();
  EXPECT_EQ(TakeLog(), "box inside answer1");
  EXPECT_EQ(TakeErrors(), "posted");
}

}  // namespace lumui::test
