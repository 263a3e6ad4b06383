// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <stdexcept>

#include "lumui/testing/SyntheticInput.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/Executor.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/UI_NodeManager.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "support/RecordingApp.h"
#include "support/TemporaryFolder.h"

namespace {

using lumui::ui::OS_Event;

class EventPump : public ::testing::Test {
 protected:
  EventPump() : mApp(mFolder.GetPath("prefs")) {
    mApp.mHasManager = false;
    mApp.Start();
    lumui::testing::ProcessEvents();
    mApp.mLog.Take();
  }
  ~EventPump() override { mApp.Terminate(); }

  lumworkspace::workspace::TopLevelWindow& GetWindow() {
    return *mApp.GetWorkspace()->GetMainTopLevelWindow();
  }
  LRESULT Send(unsigned inMessage, WPARAM inWParam = 0) {
    return GetWindow().UI_SendMessage(inMessage, inWParam, 0);
  }
  bool TakeQuit() {
    auto& application = *lumui::ui::Application::Get();
    const bool quitting = application.IsQuitting();
    if (quitting) application.Run();  // ends at once, and the wish to quit with it
    return quitting;
  }

  TemporaryFolder mFolder;
  test_support::RecordingApp mApp;
};

TEST_F(EventPump, AnswersEachMessageAsTheTableSays) {
  mApp.mMayQuit = [] { return false; };
  EXPECT_EQ(Send(lumui::ui::kMessageClose), 0);
  EXPECT_EQ(Send(lumui::ui::kMessageQueryEndSession), 0);
  EXPECT_FALSE(TakeQuit());
  mApp.mMayQuit = []() -> bool { throw std::runtime_error("disk full"); };
  EXPECT_EQ(Send(lumui::ui::kMessageClose), 0);
  EXPECT_EQ(Send(lumui::ui::kMessageQueryEndSession), 0);
  EXPECT_FALSE(TakeQuit()) << "a failure means no";
  EXPECT_EQ(mApp.mErrors.size(), 2u);

  mApp.mMayQuit = [] { return true; };
  EXPECT_EQ(Send(lumui::ui::kMessageQueryEndSession), 1);
  EXPECT_EQ(Send(lumui::ui::kMessageEndSession, 0), 0);
  EXPECT_EQ(Send(lumui::ui::kMessageEraseBackground), 1);
  EXPECT_EQ(Send(lumui::ui::kMessageDisplayChange), 0);
  EXPECT_FALSE(TakeQuit());
  EXPECT_EQ(Send(lumui::ui::kMessageEndSession, 1), 0);
  EXPECT_TRUE(TakeQuit());
  EXPECT_EQ(Send(lumui::ui::kMessageClose), 0);
  EXPECT_TRUE(TakeQuit());
  EXPECT_NE(GetWindow().UI_GetHandle(), nullptr) << "the loop's end destroys the window, not this";
}

TEST_F(EventPump, RunsCommandsAtTheTopLevel) {
  std::string commands;
  mApp.mCommand = [&](int inCommand) -> bool {
    commands += std::to_string(inCommand) + " ";
    throw std::runtime_error("failed " + std::to_string(inCommand));
  };
  EXPECT_EQ(Send(lumui::ui::kMessageCommand, 0x10000 + 1234), 0);
  EXPECT_EQ(commands, "1234 ");
  ASSERT_EQ(mApp.mErrors.size(), 1u);
  EXPECT_EQ(mApp.mErrors.front(), "failed 1234");
}

TEST_F(EventPump, IdlesOnceWhenTheQueueIsEmptyAndSurvivesFailures) {
  int idles = 0;
  mApp.mPostStep = [&](const OS_Event&) { throw std::runtime_error("post"); };
  mApp.mIdle = [&] {
    if (++idles == 2) return mApp.EndEventLoop();
    // The loop is about to wait; this wakes it, and the queue runs empty once more.
    lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post(
        [this] { Send(lumui::ui::kMessageEraseBackground); });
    throw std::runtime_error("idle");
  };
  mApp.RunEventLoop();
  EXPECT_EQ(idles, 2);
  EXPECT_EQ(mApp.mLog.Take(), "DoAppCanQuit SaveDefaultWorkSpace");
  ASSERT_FALSE(mApp.mErrors.empty());
  EXPECT_EQ(mApp.mErrors.front(), "idle");
  EXPECT_EQ(mApp.mErrors.back(), "post");
}

TEST_F(EventPump, StepsStandAroundEachEventButNotInAModalPump) {
  std::string steps;
  mApp.mPreStep = [&](const OS_Event& inEvent) {
    if (inEvent.message == lumui::ui::kMessageKeyDown) steps += "pre ";
    return true;
  };
  mApp.mPostStep = [&](const OS_Event& inEvent) {
    if (inEvent.message == lumui::ui::kMessageKeyDown) steps += "post ";
  };
  const auto key = lumui::ui::KeyboardCode::CreateFromControlCode(lumui::ui::KeyboardCode::kF1, 0);
  lumui::testing::TapKey(GetWindow(), key, {});
  lumui::testing::ProcessEvents();
  EXPECT_EQ(steps, "pre post ");
  mApp.mIdle = [&] { steps += "idle "; };
  lumui::ui::UI_NodeManager::Get(true)->GetExecutor()->Post([&] {
    steps += "key ";
    lumui::testing::TapKey(GetWindow(), key, {});
  });
  mApp.ModalPumpEventQueue();
  EXPECT_EQ(steps, "pre post key ");
  mApp.mPreStep = [&](const OS_Event&) -> bool { throw std::runtime_error("pre"); };
  EXPECT_EQ(Send(lumui::ui::kMessageEraseBackground), 1) << "a failing step lets the event through";
}

}  // namespace
