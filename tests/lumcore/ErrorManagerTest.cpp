// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/config/ErrorManager.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace {

using lumcore::config::ErrorManager;
using lumcore::config::ExecuteTopLevelFunction;

std::string Name(const std::exception_ptr& inError) {
  try {
    std::rethrow_exception(inError);
  } catch (const std::exception& error) {
    return error.what();
  } catch (...) {
    return "unknown";
  }
}

class ErrorManagers : public testing::Test {
 protected:
  ErrorManagers() { ErrorManager::Set(&mManager); }

  std::string mLog;
  ErrorManager mManager{[this](const std::exception_ptr& inError) { mLog += Name(inError) + " "; }};
};

TEST_F(ErrorManagers, TheInnermostRunReportsAndThoseAroundItGoOn) {
  const bool outer = ExecuteTopLevelFunction([this] {
    const bool inner = ExecuteTopLevelFunction([] { throw 1; });
    mLog += inner ? "true " : "false ";
    throw std::runtime_error("outer");
  });
  EXPECT_FALSE(outer);
  EXPECT_TRUE(ExecuteTopLevelFunction([this] { mLog += "fine"; }));
  EXPECT_EQ(mLog, "unknown false outer fine");
}

TEST_F(ErrorManagers, WhatAReporterThrowsEndsInTheLogWithTheErrorItself) {
  mManager.SetReporter([](const std::exception_ptr&) { throw std::runtime_error("reporter"); });
  testing::internal::CaptureStderr();
  EXPECT_FALSE(ExecuteTopLevelFunction([] { throw std::runtime_error("first"); }));
  const std::string log = testing::internal::GetCapturedStderr();
  EXPECT_LT(log.find("unhandled exception: first\n"), log.find("unhandled exception: reporter\n"));
  EXPECT_NE(log.find("unhandled exception: reporter\n"), log.npos);
  EXPECT_FALSE(mManager.IsReporting());
}

// A box for an error runs an event loop, in which more may fail.
TEST_F(ErrorManagers, AReporterThatFailsInARunOfItsOwnIsEnteredEightTimesAtMost) {
  mManager.SetReporter([this](const std::exception_ptr& inError) {
    mLog += Name(inError);
    ExecuteTopLevelFunction([] { throw std::runtime_error("+"); });
    mLog += "-";
  });
  testing::internal::CaptureStderr();
  ExecuteTopLevelFunction([] { throw std::runtime_error("*"); });
  EXPECT_NE(testing::internal::GetCapturedStderr().find("unhandled exception: +"),
            std::string::npos);
  EXPECT_EQ(mLog, "*+++++++--------");
}

TEST_F(ErrorManagers, AReporterMayReplaceItself) {
  mManager.SetReporter([this, big = std::string(100, 'x')](const std::exception_ptr&) {
    mManager.SetReporter({});
    mLog += big;
  });
  ExecuteTopLevelFunction([] { throw 1; });
  EXPECT_EQ(mLog, std::string(100, 'x'));
}

TEST(ErrorManagersInPlace, WithoutOneErrorsStillShow) {
  int reports = 0;
  {
    ErrorManager manager([&](const std::exception_ptr&) { ++reports; });
    ErrorManager::Set(&manager);
  }
  testing::internal::CaptureStderr();
  EXPECT_FALSE(ExecuteTopLevelFunction([] { throw std::runtime_error("late"); }));
  EXPECT_NE(testing::internal::GetCapturedStderr().find("late"), std::string::npos);
  EXPECT_EQ(reports, 0);
  EXPECT_THROW(ErrorManager::Get(true), std::exception);
}

}  // namespace
