// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QGuiApplication>

#include "ui/HeldKeys.h"
// Behind Qt, whose names it has macros for.
#include <X11/XKBlib.h>

namespace lumui::ui {

namespace {

// The connection on which Qt gets its events; null on other window systems.
Display* QtDisplay() {
  auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 ? x11->display() : nullptr;
}

}  // namespace

bool RepeatByPressesAlone() {
  Display* const display = QtDisplay();
  Bool supported = False;
  return display && XkbSetDetectableAutoRepeat(display, True, &supported) && supported;
}

void KeepThoseDown(std::set<unsigned>& ioKeyCodes) {
  Display* const display = QtDisplay();
  if (!display || ioKeyCodes.empty()) return;
  char bits[32];  // one for each key code
  XQueryKeymap(display, bits);
  for (auto key = ioKeyCodes.begin(); key != ioKeyCodes.end();) {
    const bool down = (bits[*key / 8] >> (*key % 8)) & 1;
    key = down ? std::next(key) : ioKeyCodes.erase(key);
  }
}

}  // namespace lumui::ui
