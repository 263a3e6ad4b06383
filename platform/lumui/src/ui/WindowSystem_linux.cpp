// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QByteArray>

#include "ui/ApplicationImpl.h"

namespace lumui::ui {

namespace {

constexpr char kVariable[] = "QT_QPA_PLATFORM";
bool sChosen = false;

}  // namespace

void ChooseWindowSystem() {
  if (qEnvironmentVariableIsSet(kVariable)) return;
  QByteArray names;
  if (!qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")) names += "wayland;";
  if (!qEnvironmentVariableIsEmpty("DISPLAY")) names += "xcb;";
  sChosen = qputenv(kVariable, names + "offscreen");
}

void ForgetWindowSystem() {
  if (sChosen) qunsetenv(kVariable);
  sChosen = false;
}

}  // namespace lumui::ui
