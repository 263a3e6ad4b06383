// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/KeyboardCode.h"

#include "lumcore/utility/StringUtils.h"
#include "ui/KeyTable.h"

namespace lumui::ui {

namespace {

constexpr std::uint32_t kUnitMask = 0xFFFF;

}  // namespace

KeyboardCode KeyboardCode::CreateFromControlCode(unsigned short inCode, bool inExtended) {
  return KeyboardCode(inCode | (inExtended ? kExtendedBit : 0));
}

KeyboardCode KeyboardCode::CreateFromKeyboardChar(unsigned short inCharacter, bool inExtended) {
  const lumcore::UTF16String upper =
      lumcore::utility::ToUpperCase(lumcore::UTF16String(1, inCharacter));
  // A letter whose upper case is two letters, and half of a surrogate pair, stay what they are.
  const bool usable = upper.size() == 1 && upper[0] != 0xFFFD;
  const unsigned short unit = usable ? upper[0] : inCharacter;
  return KeyboardCode(unit | kCharacterBit | (inExtended ? kExtendedBit : 0));
}

unsigned short KeyboardCode::GetCharacter() const {
  return IsPrintable() ? static_cast<unsigned short>(mValue & kUnitMask) : 0;
}

std::uint32_t KeyboardCode::GetValue(bool inWithExtended) const {
  return inWithExtended ? mValue : mValue & ~kExtendedBit;
}

std::uint32_t KeyboardCode::GetControlCode(bool inWithExtended) const {
  return IsPrintable() ? 0 : GetValue(inWithExtended);
}

int KeyboardCode::GetOSCode() const {
  return OSCodeFromCode(*this);
}

}  // namespace lumui::ui
