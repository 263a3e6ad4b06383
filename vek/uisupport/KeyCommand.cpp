// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/KeyCommand.h"

#include "lumui/ui/ModifierKeys.h"
#include "vek/uisupport/KeyCommandManager.h"

namespace vek::uisupport {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;

namespace {

KeyCommand::Modifiers WithoutOtherControl(KeyCommand::Modifiers inModifiers) {
  inModifiers.Clear(lumui::ui::kModOtherControl);
  return inModifiers;
}

// Two control codes are compared without the mark of the extended form, which the event's loses
// and the mapping's keeps: a mapping of an extended control code never matches.
KeyboardCode CodeToCompare(KeyboardCode inEvent, KeyboardCode inMapping) {
  if (inEvent.IsPrintable() || inMapping.IsPrintable()) return inEvent;
  return KeyboardCode(static_cast<unsigned short>(inEvent.GetControlCode(false)));
}

}  // namespace

KeyCommand::KeyCommand(const int& inCommand, KeyboardCode inCode, Modifiers inModifiers,
                       Action inKeyType, bool inRepeat, bool inIsProtected)
    : mCommandID(inCommand),
      mModifiers(inModifiers),
      mKeyCode(inCode),
      mKeyType(inKeyType),
      mRepeat(inRepeat),
      mProtected(inIsProtected) {}

KeyCommand::~KeyCommand() = default;

lumcore::UTF16String KeyCommand::GetAsString() {
  return KeyCommandManager::GetShortcutString(mKeyCode, mModifiers);
}

bool KeyCommand::SameAs(const KeyboardEvent& inEvent) {
  return CodeToCompare(inEvent.GetCode(), mKeyCode) == mKeyCode &&
         WithoutOtherControl(inEvent.GetModKey()) == WithoutOtherControl(mModifiers) &&
         inEvent.GetAction() == mKeyType && inEvent.IsRepeat() == mRepeat;
}

}  // namespace vek::uisupport
