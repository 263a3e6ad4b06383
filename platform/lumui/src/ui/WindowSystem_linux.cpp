// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QByteArray>
#include <QKeyEvent>

#include "ui/ApplicationImpl.h"
#include "ui/KeyPlaces.h"

namespace lumui::ui {

namespace {

constexpr char kVariable[] = "QT_QPA_PLATFORM";
bool sChosen = false;

// X11 leaves the first eight key codes to itself, and Wayland's layouts keep that.
constexpr quint32 kFirstKeyCode = 8;

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

int PlaceOf(const QKeyEvent& inEvent) {
  const quint32 keyCode = inEvent.nativeScanCode();
  return keyCode > kFirstKeyCode ? static_cast<int>(keyCode - kFirstKeyCode) : 0;
}

std::unique_ptr<QKeyEvent> MakePressAt(int inPlace) {
  return std::make_unique<QKeyEvent>(QEvent::KeyPress, 0, Qt::NoModifier,
                                     static_cast<quint32>(inPlace) + kFirstKeyCode, 0, 0);
}

}  // namespace lumui::ui
