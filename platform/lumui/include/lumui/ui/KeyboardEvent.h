// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/OS_Event.h"

namespace lumui::ui {

// A key going down or up, or a character that was typed. A key that types something makes a key
// down and then a character; text from an input method makes characters alone, one for each UTF-16
// unit. The code of a character event is the character as it was typed, lower case included.
class LUMUI_API KeyboardEvent {
 public:
  enum Action { kActionNone = 0, kActionKeyDown = 1, kActionKeyUp = 2, kActionCharacter = 3 };

  KeyboardEvent() = default;
  KeyboardEvent(Action inAction, KeyboardCode inCode, ModifierKeys inModifiers, bool inRepeat,
                const OS_Event& inOSEvent)
      : mAction(inAction),
        mCode(inCode),
        mModifiers(inModifiers),
        mRepeat(inRepeat),
        mOSEvent(inOSEvent) {}

  Action GetAction() const { return mAction; }
  bool IsActionKeyDown() const { return mAction == kActionKeyDown; }
  bool IsActionKeyUp() const { return mAction == kActionKeyUp; }
  KeyboardCode GetCode() const { return mCode; }
  ModifierKeys GetModKey() const { return mModifiers; }
  int GetOSCode() const { return mCode.GetOSCode(); }
  // What a character event has typed: one UTF-16 unit. A key down or up has typed nothing.
  int GetNumCharacters() const { return mAction == kActionCharacter ? 1 : 0; }
  unsigned short GetCharacter(int inIndex = 0) const {
    return inIndex == 0 && mAction == kActionCharacter ? mCode.GetCharacter() : 0;
  }
  // True for the presses that a key held down makes by itself.
  bool IsRepeat() const { return mRepeat; }
  // The message behind the event; never null, alive as long as this event object.
  const OS_Event* GetOSEvent() const { return &mOSEvent; }

 private:
  Action mAction = kActionNone;
  KeyboardCode mCode;
  ModifierKeys mModifiers;
  bool mRepeat = false;
  OS_Event mOSEvent;
};

// To be called while a key down is handled: the character that the same key press would type next
// is dropped. A command that took the key calls it, so that the key does not type as well.
LUMUI_API void FlushPostActionKeyEvents(const KeyboardEvent& inEvent);

}  // namespace lumui::ui
