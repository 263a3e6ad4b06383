// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QKeyEvent>
#include <QWindow>

#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/utility/InteractionRegistry.h"
#include "ui/EventGate.h"
#include "ui/NodeManagerImpl.h"
#include "ui/QtEvents.h"

namespace lumui::ui {

namespace {

// What a key types by itself: no control characters, and nothing of a chord.
bool IsTyped(QChar inCharacter) {
  const char16_t unit = inCharacter.unicode();
  return unit >= 0x20 && !(unit >= 0x7F && unit < 0xA0);
}

}  // namespace

bool EventGate::HandleKey(OS_Window& inWindow, QWindow& inNative, QKeyEvent& inEvent) {
  // Some window systems repeat a held key as release and press; only the presses are told.
  if (inEvent.type() == QEvent::KeyRelease && inEvent.isAutoRepeat()) return true;
  KeyState key;
  key.event = KeyEventOf(inWindow.UI_GetHandle(), inEvent, inEvent.isAutoRepeat());
  if (key.event.IsActionKeyDown()) utility::InteractionRegistry::Get().Note();
  OS_Event os = *key.event.GetOSEvent();
  bool handled = true;
  bool passed = false;
  {
    const lumcore::utility::StScopedValue<KeyState*> current(mKey, &key);
    passed = Pass(os, [&] { handled = HandToQt(inNative, inEvent, os); });
  }
  if (!passed) {
    inEvent.accept();
    return true;
  }
  const ModifierKeys modifiers = key.event.GetModKey();
  const bool chord = modifiers.Has(kModCommand);
  const bool takenByControl = inEvent.isAccepted() && !key.takenByNode;
  if (key.event.IsActionKeyDown() && !key.charactersDropped && !chord && !takenByControl) {
    const lumcore::utility::StScopedValue<ModifierKeys> typing(mTypingModifiers, modifiers);
    TypeCharacters(inWindow, inEvent.text());
  }
  return handled;
}

void EventGate::DropPendingCharacters() {
  if (mKey) mKey->charactersDropped = true;
}

void EventGate::NoteKeyTakenByNode() {
  if (mKey) mKey->takenByNode = true;
}

void EventGate::TypeCharacters(OS_Window& inWindow, const QString& inText) {
  const lumcore::utility::StKeepAlive keepAlive(inWindow);
  const ModifierKeys modifiers = mTypingModifiers;
  for (const QChar character : inText) {
    if (!IsTyped(character) || !inWindow.UI_GetHandle()) continue;
    const KeyboardEvent event =
        CharacterEventOf(inWindow.UI_GetHandle(), character.unicode(), modifiers);
    OS_Event os = *event.GetOSEvent();
    Pass(os, [&] {
      UI_Node* const focus = inWindow.UI_GetFocusNode();
      const boost::intrusive_ptr<UI_Node> start = focus ? focus : &inWindow;
      bool taken = false;
      for (boost::intrusive_ptr<UI_Node> node = start; node && !taken;) {
        taken = true;
        RunGuarded([&] { taken = node->UI_DoKeyboardEvent(start.get(), event); });
        // As for the keys, the walk ends with the window.
        node = node.get() == &inWindow ? nullptr : node->UI_GetParentNode();
      }
    });
  }
}

bool EventGate::HandleShortcutOverride(OS_Window& inWindow, QKeyEvent& inEvent) {
  const UI_Node* const focus = inWindow.UI_GetFocusNode();
  if (focus && focus->UI_ClaimsAllKeys()) {
    inEvent.accept();
    return true;
  }
  if (!mShortcutClaim && NodeManagerImpl().mnemonics) return false;
  const KeyboardEvent event = KeyEventOf(inWindow.UI_GetHandle(), inEvent, inEvent.isAutoRepeat());
  bool claimed = !NodeManagerImpl().mnemonics;
  const auto claim = mShortcutClaim;
  if (claim && event.GetCode() != KeyboardCode()) {
    RunGuarded([&] { claimed = OfferReadings(event, claim) || claimed; });
  }
  if (claimed) inEvent.accept();
  return claimed;
}

}  // namespace lumui::ui
