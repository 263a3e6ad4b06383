// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/GuiApplication.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <memory>

namespace vek_test {

namespace {

std::unique_ptr<QApplication>& TheApplication() {
  static std::unique_ptr<QApplication> sApplication;
  return sApplication;
}

// Ends the application object behind the last test: at the process's exit it would outlive the
// toolkit's font cache of the thread.
class EndOfApplication : public testing::Environment {
  void TearDown() override { TheApplication().reset(); }
};

[[maybe_unused]] testing::Environment* const gEndOfApplication =
    testing::AddGlobalTestEnvironment(new EndOfApplication);

}  // namespace

void EnsureGuiApplication() {
  if (TheApplication()) return;
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int sCount = 1;
  static char sName[] = "test";
  static char* sArguments[] = {sName, nullptr};
  TheApplication() = std::make_unique<QApplication>(sCount, sArguments);
}

}  // namespace vek_test
