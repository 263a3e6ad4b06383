// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/HeldKeys.h"

namespace lumui::ui {

HeldKeys::HeldKeys() : mPressesAlone(RepeatByPressesAlone()) {}

void HeldKeys::Note(const QEvent& inEvent) {
  if (!mPressesAlone || !inEvent.spontaneous()) return;
  if (inEvent.type() == QEvent::FocusIn) {
    // A key that was let go while the keyboard was elsewhere had its release there. One that is
    // still down goes on repeating here: what it did to the last window is not done to this one.
    KeepThoseDown(mDown);
  } else if (inEvent.type() == QEvent::KeyPress || inEvent.type() == QEvent::KeyRelease) {
    // Input that is made up has no key code.
    const unsigned keyCode = static_cast<const QKeyEvent&>(inEvent).nativeScanCode();
    if (inEvent.type() == QEvent::KeyRelease) {
      mDown.erase(keyCode);
    } else if (keyCode != 0) {
      mDown.insert(keyCode);
    }
  }
}

bool HeldKeys::IsUnmarkedRepeat(const QEvent& inEvent) const {
  if (!inEvent.spontaneous()) return false;
  if (inEvent.type() != QEvent::KeyPress && inEvent.type() != QEvent::ShortcutOverride)
    return false;
  const auto& key = static_cast<const QKeyEvent&>(inEvent);
  return !key.isAutoRepeat() && mDown.count(key.nativeScanCode()) != 0;
}

}  // namespace lumui::ui
