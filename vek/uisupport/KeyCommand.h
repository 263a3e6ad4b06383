// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <list>
#include <map>

#include "lumcore/Strings.h"
#include "lumcore/utility/Flags.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/config/Export.h"

namespace vek::uisupport {

// One mapping of a key to a command. A mapping that repeats is a hold mapping: it stands for the
// presses that a key held down makes by itself, and one that does not repeat for the first press.
// So a key may have one of each. A protected mapping is not for the user to change.
class VEK_API KeyCommand {
 public:
  using Modifiers = lumcore::utility::Flags<unsigned char>;
  using Action = lumui::ui::KeyboardEvent::Action;

  KeyCommand(const int& inCommand, lumui::ui::KeyboardCode inCode, Modifiers inModifiers,
             Action inKeyType, bool inRepeat, bool inIsProtected);
  virtual ~KeyCommand();
  KeyCommand(const KeyCommand&) = default;
  KeyCommand& operator=(const KeyCommand&) = default;

  // As menus show it, "Ctrl+Shift+Z". Empty for a key without a name.
  virtual lumcore::UTF16String GetAsString();
  // Whether the event is this key, whatever it says of the other platform's control key. Of a key
  // that is no character, the extended form counts as the plain one.
  virtual bool SameAs(const lumui::ui::KeyboardEvent& inEvent);

  int GetCommandID() const { return mCommandID; }
  lumui::ui::KeyboardCode GetKeyboardCode() const { return mKeyCode; }
  Modifiers GetModifiers() const { return mModifiers; }
  Action GetKeyType() const { return mKeyType; }
  bool GetIsRepeat() const { return mRepeat; }
  bool GetIsProtected() const { return mProtected; }

 private:
  int mCommandID;
  Modifiers mModifiers;
  lumui::ui::KeyboardCode mKeyCode;
  Action mKeyType;
  bool mRepeat;
  bool mProtected;
};

using KeyCommandList = std::list<KeyCommand*>;
using KeyCommandContexts = std::map<lumcore::UTF8String, KeyCommandList>;

}  // namespace vek::uisupport
