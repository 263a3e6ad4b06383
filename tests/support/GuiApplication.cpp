// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/GuiApplication.h"

#include <QApplication>

namespace vek_test {

void EnsureGuiApplication() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  static int sCount = 1;
  static char sName[] = "test";
  static char* sArguments[] = {sName, nullptr};
  static QApplication sApplication(sCount, sArguments);
}

}  // namespace vek_test
