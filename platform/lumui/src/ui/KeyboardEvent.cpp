// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/KeyboardEvent.h"

#include "ui/EventGate.h"

namespace lumui::ui {

namespace {

bool MakeTwin(const KeyboardEvent& inEvent, KeyboardCode inCode, ModifierKeys inModifiers,
              KeyboardEvent& outTwin) {
  if (inCode == KeyboardCode()) return false;
  outTwin = KeyboardEvent(inEvent.GetAction(), inCode, inModifiers, inEvent.IsRepeat(),
                          *inEvent.GetOSEvent());
  return true;
}

}  // namespace

bool MakeLatinTwin(const KeyboardEvent& inEvent, KeyboardEvent& outTwin) {
  return MakeTwin(inEvent, inEvent.GetLatinCode(), inEvent.GetModKey(), outTwin);
}

bool MakeShiftedTwin(const KeyboardEvent& inEvent, KeyboardEvent& outTwin) {
  ModifierKeys modifiers = inEvent.GetModKey();
  modifiers.Clear(kModShift);
  return MakeTwin(inEvent, inEvent.GetShiftedCode(), modifiers, outTwin);
}

bool OfferReadings(const KeyboardEvent& inEvent,
                   const std::function<bool(const KeyboardEvent&)>& inTake) {
  // A copy, since the function may be the end of the event.
  const KeyboardEvent event = inEvent;
  if (inTake(event)) return true;
  KeyboardEvent twin;
  if (MakeLatinTwin(event, twin) && inTake(twin)) return true;
  return MakeShiftedTwin(event, twin) && inTake(twin);
}

void FlushPostActionKeyEvents(const KeyboardEvent& inEvent) {
  EventGate* const gate = EventGate::Get();
  if (gate && inEvent.IsActionKeyDown()) gate->DropPendingCharacters();
}

}  // namespace lumui::ui
