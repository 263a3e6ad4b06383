// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

class QKeyEvent;

namespace lumui::ui {

// Places of keys on a keyboard, whatever its layout prints on them. They are numbered as the first
// scan code set of the PC numbers them, which Linux's input layer and Windows both keep for these
// keys: 2 is the digit 1, 16 the Latin Q, 83 the number pad's dot. What a window system makes of
// them is its own file's business.

int PlaceOf(const QKeyEvent& inEvent);  // 0 where the event does not tell
// A press in that place without modifiers, as good as a real one for asking the layout.
std::unique_ptr<QKeyEvent> MakePressAt(int inPlace);

}  // namespace lumui::ui
