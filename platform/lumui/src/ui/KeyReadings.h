// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"

class QKeyEvent;

namespace lumui::ui {

// What one key of Qt means, in the terms of KeyboardEvent.
struct KeyReadings {
  KeyboardCode code;
  ModifierKeys modifiers;
  KeyboardCode latinCode;
  KeyboardCode shiftedCode;
};

KeyReadings ReadKey(const QKeyEvent& inEvent);

// What the layout in force has on the key in a place (see KeyPlaces.h), of the digits and letters;
// the layout of the United States where nobody tells. A dead key has a cap and no code.
struct PrintedKey {
  KeyboardCode code;
  lumcore::UTF16String cap;
};
PrintedKey PrintedAt(int inPlace);
bool IsLayoutOfUnitedStates();  // true where nobody tells

}  // namespace lumui::ui
