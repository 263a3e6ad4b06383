// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/ModifierKeys.h"

namespace vek::sharedui {

// Tab, or with Shift: the key that moves the focus.
inline bool IsFocusKey(const lumui::ui::KeyboardEvent& inEvent) {
  using lumui::ui::KeyboardCode;
  const unsigned char others = static_cast<unsigned char>(~lumui::ui::kModShift);
  return inEvent.GetCode() == KeyboardCode(KeyboardCode::kTab) &&
         !inEvent.GetModKey().HasAny(others);
}

// What no shortcut is made of: no key, a modifier or lock key alone, and Space.
inline bool IsNoKeyToStore(const lumui::ui::KeyboardEvent& inEvent) {
  using lumui::ui::KeyboardCode;
  const KeyboardCode code = inEvent.GetCode();
  constexpr unsigned kNoKey = 0xFFFF;
  if (code.GetValue(false) == kNoKey) return true;
  const unsigned control = code.GetControlCode(false);
  const bool alone = !code.IsPrintable() && control >= KeyboardCode::kNumLock &&
                     control <= KeyboardCode::kSystemKey;
  return alone || code == KeyboardCode(KeyboardCode::kSpace);
}

}  // namespace vek::sharedui
