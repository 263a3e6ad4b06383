// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumcore/geom/Rect.h"
#include "lumui/Export.h"
#include "lumui/ui/KeyboardCode.h"
#include "lumui/ui/ModifierKeys.h"

namespace lumui::utility::ksv {

// The two builds of keyboards: ISO has a key more beside the left Shift, and a high Enter.
enum class KeyboardForm { kANSI, kISO };

// One key where it lies, in widths of a letter's key, from the keyboard's top left.
struct KeyShape {
  lumcore::geom::RectT<float> rect;
  lumcore::geom::RectT<float> wing;  // what a high Enter has to the left at its top; else empty
  ui::KeyboardCode code;             // no key for what cannot be given a command
  ui::ModifierKeys modifier;         // of a modifier key, else none
  lumcore::UTF16String cap;          // what is printed on it
};

constexpr float kKeyboardWidth = 22.5f;
constexpr float kKeyboardHeight = 6.5f;

// All keys, with what the system's layout in force has on them; where the system does not tell, as
// in a headless run, that of the United States. Texts are localised.
LUMUI_API std::vector<KeyShape> MakeKeyboard(KeyboardForm inForm);
// The form that keyboards for the system's layout mostly have.
LUMUI_API KeyboardForm GetLikelyForm();

}  // namespace lumui::utility::ksv
