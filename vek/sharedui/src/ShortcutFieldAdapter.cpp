// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/sharedui/ShortcutFieldAdapter.h"

namespace vek::sharedui {

using lumui::ui::KeyboardCode;
using Modifiers = lumcore::utility::Flags<unsigned char>;

namespace {

// The code goes through a signed number: its highest bit marks a character.
int CodeOf(const ShortcutField& inField) {
  KeyboardCode code;
  Modifiers modifiers;
  inField.GetKeyboardCode(code, modifiers);
  return static_cast<int>(code.GetValue(true));
}

Modifiers ModifiersOf(const ShortcutField& inField) {
  KeyboardCode code;
  Modifiers modifiers;
  inField.GetKeyboardCode(code, modifiers);
  return modifiers;
}

}  // namespace

ShortcutFieldAdapter::ShortcutFieldAdapter()
    : UI_NodeAdapterT("vek::ShortcutField", "lumui::controls::UI_InteractiveControlView") {
  Add("keyboardCode", &CodeOf, [](ShortcutField& ioField, int inCode) {
    ioField.SetKeyboardCode(KeyboardCode(static_cast<std::uint32_t>(inCode)), ModifiersOf(ioField));
  });
  Add(
      "modifiers", [](const ShortcutField& inField) { return int(ModifiersOf(inField).GetBits()); },
      [](ShortcutField& ioField, int inBits) {
        ioField.SetKeyboardCode(KeyboardCode(static_cast<std::uint32_t>(CodeOf(ioField))),
                                Modifiers(static_cast<unsigned char>(inBits)));
      });
}

ShortcutFieldAdapter::~ShortcutFieldAdapter() = default;

}  // namespace vek::sharedui
