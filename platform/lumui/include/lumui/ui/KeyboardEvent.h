// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumui/Export.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/OS_Event.h"

namespace lumui::ui {

// A key going down or up, or a character that was typed. A key that types something makes a key
// down and then a character; text from an input method makes characters alone, one for each UTF-16
// unit. The code of a character event is the character as it was typed, lower case included.
//
// The code of a key is what its cap says in the keyboard's layout, and the modifiers are those that
// are held: Ctrl+Shift+7 is 7 with both, and Caps Lock changes nothing. Three exceptions:
// - A character of the third level (AltGr, which some systems tell as Ctrl and Alt) is its own
//   code, and AltGr counts for no modifier: "@" is never Ctrl+Alt+Q.
// - Shift and Num Lock together turn the number pad's digits into its arrows. Shift is used up by
//   that: the event is the pad's arrow without it.
// - A key without a code (see KeyboardCode), a dead key among them, makes no key down or up for
//   nodes. What it types comes as characters.
//
// A command may be mapped to a character that the layout has behind Shift, or not at all. So a key
// has up to three readings, and who looks keys up takes the first that means something to him:
// 1. the code and the modifiers;
// 2. the Latin code with the same modifiers;
// 3. the shifted code without Shift.
// What keeps the modifiers goes first, so that Ctrl+1 and Ctrl+Shift+1 stay two chords also where
// the digits are typed with Shift. OfferReadings does the walk.
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
  // The key in the same place of a Latin keyboard: "Z" for the Russian "Ya", ";" for a Hebrew key,
  // and the digit of every key in the digits' row, which French and Czech layouts type with Shift.
  // No key where the code is that already, and for all other keys of a Latin layout: its letters
  // and marks are elsewhere on purpose.
  KeyboardCode GetLatinCode() const { return mLatinCode; }
  // What the key types with the Shift that is held: "/" for Shift+7 on a German keyboard. No key
  // without Shift, and where Shift makes a capital of the same letter.
  KeyboardCode GetShiftedCode() const { return mShiftedCode; }
  void SetOtherCodes(KeyboardCode inLatinCode, KeyboardCode inShiftedCode) {
    mLatinCode = inLatinCode;
    mShiftedCode = inShiftedCode;
  }
  // The code's number or, where it has none, that of the Latin code.
  int GetOSCode() const {
    const int osCode = mCode.GetOSCode();
    return osCode != 0 ? osCode : mLatinCode.GetOSCode();
  }
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
  KeyboardCode mLatinCode;
  KeyboardCode mShiftedCode;
};

// The second and the third reading as events of their own, with no further codes. False, and the
// result untouched, where there is none.
LUMUI_API bool MakeLatinTwin(const KeyboardEvent& inEvent, KeyboardEvent& outTwin);
LUMUI_API bool MakeShiftedTwin(const KeyboardEvent& inEvent, KeyboardEvent& outTwin);
// Calls the function with each reading in order until it answers true; false if it never does. What
// the function throws ends the walk.
LUMUI_API bool OfferReadings(const KeyboardEvent& inEvent,
                             const std::function<bool(const KeyboardEvent&)>& inTake);

// To be called while a key down is handled: the character that the same key press would type next
// is dropped. A command that took the key calls it, so that the key does not type as well.
LUMUI_API void FlushPostActionKeyEvents(const KeyboardEvent& inEvent);

}  // namespace lumui::ui
