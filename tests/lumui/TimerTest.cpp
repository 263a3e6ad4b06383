// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <stdexcept>

#include "UITest.h"
#include "lumcore/config/ThrowError.h"
#include "lumui/testing/VirtualClock.h"

namespace lumui::test {

namespace {

class Timer : public UITest {
 protected:
  boost::intrusive_ptr<RecordingNode> MakeNode(const std::string& inName) {
    return new RecordingNode(inName, [this](const std::string& inWord) {
      Log(inWord + "@" + std::to_string(static_cast<int>(mClock.GetTime() * 1000 + 0.5)));
    });
  }

  lumui::testing::VirtualClock mClock;
};

}  // namespace

TEST_F(Timer, FireInTheOrderInWhichTheyFallDue) {
  const auto a = MakeNode("a");
  const auto b = MakeNode("b");
  a->UI_InstallTimer(0.5f, 7);
  b->UI_InstallTimer(0.25f, 7);
  a->UI_InstallTimer(0.25f, 3);
  mClock.Advance(0.2);
  EXPECT_EQ(TakeLog(), "");
  mClock.Advance(0.4);
  // Of those due at the same time the one installed first.
  EXPECT_EQ(TakeLog(), "b:timer7@250 a:timer3@250 a:timer7@500 b:timer7@500 a:timer3@500");
  a->UI_InstallTimer(0.25f, 3);  // starts anew: 850 and not 750
  mClock.Advance(0.25);
  EXPECT_EQ(TakeLog(), "b:timer7@750 a:timer3@850");
}

TEST_F(Timer, MayBeRemovedInstalledAndLoseTheirNodeWhileTheyFire) {
  auto a = MakeNode("a");
  const auto b = MakeNode("b");
  a->mLogDestruction = true;
  a->mOnTimer = [&](unsigned int) {
    b->UI_RemoveTimer(1, true);
    b->UI_InstallTimer(0.125f, 2);
    a.reset();
  };
  a->UI_InstallTimer(0.5f, 1);
  b->UI_InstallTimer(0.5f, 1);
  mClock.Advance(0.75);
  EXPECT_EQ(TakeLog(), "a:timer1@500 ~a@500 b:timer2@625 b:timer2@750");
  b->UI_RemoveTimer(99, false);
  EXPECT_THROW(b->UI_RemoveTimer(99, true), lumcore::config::Error);
  EXPECT_THROW(b->UI_InstallTimer(0, 5), lumcore::config::Error);
}

TEST_F(Timer, ThatThrowsKeepsFiring) {
  const auto a = MakeNode("a");
  a->mOnTimer = [](unsigned int) { throw std::runtime_error("timer"); };
  a->UI_InstallTimer(0.5f, 1);
  mClock.Advance(1);
  EXPECT_EQ(TakeLog(), "a:timer1@500 a:timer1@1000");
  EXPECT_EQ(TakeErrors(), "timer | timer");
}

}  // namespace lumui::test
