// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "lumui/Export.h"

namespace lumui::ui {

// Names one key in 32 bits, so that it can be stored. Bit 31 marks a character, upper case as on
// the key cap; bit 30 the number pad's key or the extended form of a key that exists twice; the
// other bits are a UTF-16 unit or a control code (one of the ControlCode constants). 0 is no key:
// it stands for a key that could not be named, and since no event of a key carries it, what is
// mapped to it never runs. Without a code are the dead keys, the media, browser and launch keys and
// those whose character is beyond 16 bits.
class LUMUI_API KeyboardCode {
 public:
  enum ControlCode : unsigned short {
    kSpace = 0x01,
    kBackspace,
    kTab,
    kReturn,
    kEnter,  // the number pad's
    kEscape,
    kF1 = 0x07,  // to kF1 + 23, F24
    kPrintScreen = 0x1F,
    kContextMenu = 0x20,
    kPause = 0x21,
    kInsert,
    kDelete,
    kHome,
    kEnd,
    kPageUp,
    kPageDown,
    kHelp,
    kClear,
    kLeftArrow = 0x2A,
    kRightArrow,
    kUpArrow,
    kDownArrow,
    // Modifier and lock keys alone.
    kNumLock = 0x2E,  // comes with bit 30
    kCapsLock,
    kScrollLock,
    kControlKey,
    kShiftKey = 0x32,
    kAltKey,
    kSystemKey,
  };

  static constexpr std::uint32_t kCharacterBit = 0x80000000;
  static constexpr std::uint32_t kExtendedBit = 0x40000000;

  constexpr KeyboardCode() = default;
  explicit constexpr KeyboardCode(std::uint32_t inValue) : mValue(inValue) {}

  // inExtended sets bit 30.
  static KeyboardCode CreateFromControlCode(unsigned short inCode, bool inExtended);
  // A lower case letter becomes the upper case one of its key.
  static KeyboardCode CreateFromKeyboardChar(unsigned short inCharacter, bool inExtended);

  bool IsPrintable() const { return (mValue & kCharacterBit) != 0; }
  bool IsExtended() const { return (mValue & kExtendedBit) != 0; }
  // 0 for a control code.
  unsigned short GetCharacter() const;
  // All bits, or all but bit 30.
  std::uint32_t GetValue(bool inWithExtended) const;
  // 0 for a character. inWithExtended keeps bit 30 in the result.
  std::uint32_t GetControlCode(bool inWithExtended) const;
  // The Windows virtual-key number, negative for the keys that Windows calls extended: the arrows
  // and their neighbours beside the number pad, the pad's Enter and slash, Num Lock and a few more.
  // 0 for a key that those numbers do not know.
  int GetOSCode() const;

  friend bool operator==(KeyboardCode inA, KeyboardCode inB) { return inA.mValue == inB.mValue; }
  friend bool operator!=(KeyboardCode inA, KeyboardCode inB) { return inA.mValue != inB.mValue; }
  friend bool operator<(KeyboardCode inA, KeyboardCode inB) { return inA.mValue < inB.mValue; }

 private:
  std::uint32_t mValue = 0;
};

}  // namespace lumui::ui
