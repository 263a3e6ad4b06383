// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// Linked into a test program it gives the program an application object, without a display unless
// the environment names a platform. It ends behind the last test and not at the process's exit,
// where it would outlive the toolkit's own statics.

#include <gtest/gtest.h>

#include <cstdlib>
#include <memory>

#include "lumui/ui/Application.h"

namespace {

class ApplicationEnvironment : public testing::Environment {
 public:
  void SetUp() override {
    setenv("QT_QPA_PLATFORM", "offscreen", 0);
    mApplication = std::make_unique<lumui::ui::Application>(mCount, mArguments);
    mApplication->PumpPendingEvents();
  }
  void TearDown() override { mApplication.reset(); }

 private:
  char mName[5] = "test";
  char* mArguments[2] = {mName, nullptr};
  int mCount = 1;
  std::unique_ptr<lumui::ui::Application> mApplication;
};

[[maybe_unused]] testing::Environment* const gEnvironment =
    testing::AddGlobalTestEnvironment(new ApplicationEnvironment);

}  // namespace
