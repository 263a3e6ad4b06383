// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/utility/ksv/KeyboardShape.h"

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/utility/ksv/IDelegateInterface.h"
#include "ui/KeyReadings.h"

namespace lumui::utility::ksv {

namespace {

using lumcore::UTF16String;
using lumcore::geom::RectT;
using ui::KeyboardCode;
using Keys = std::vector<KeyShape>;

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

// The place beside the left Shift, which only one of the forms has.
constexpr int kPlaceBesideShift = 86;
constexpr int kPlaceOfBackslash = 43;

constexpr float kNavigation = 15.25f;  // the left edges of the blocks
constexpr float kNumberPad = 18.5f;
constexpr float kRows[] = {0, 1.5f, 2.5f, 3.5f, 4.5f, 5.5f};

void AddPlaces(Keys& ioKeys, int inFirst, int inLast, float inX, float inY, float inWidth = 1) {
  for (int place = inFirst; place <= inLast; ++place, inX += inWidth) {
    const ui::PrintedKey printed = ui::PrintedAt(place);
    ioKeys.push_back({RectT<float>(inX, inY, inWidth, 1), {}, printed.code, {}, printed.cap});
  }
}

void AddNamed(Keys& ioKeys, unsigned short inCode, const UTF16String& inCap, float inX, float inY,
              float inWidth = 1, float inHeight = 1) {
  ioKeys.push_back({RectT<float>(inX, inY, inWidth, inHeight),
                    {},
                    KeyboardCode::CreateFromControlCode(inCode, false),
                    {},
                    inCap});
}

void AddPad(Keys& ioKeys, char inCharacter, float inX, float inY, float inWidth = 1,
            float inHeight = 1) {
  const auto code =
      KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned char>(inCharacter), true);
  ioKeys.push_back({RectT<float>(inX, inY, inWidth, inHeight),
                    {},
                    code,
                    {},
                    lumcore::utility::ToUTF16(std::string(1, inCharacter))});
}

// Keys that change what others do, or nothing at all: no command can be given to them.
void AddDumb(Keys& ioKeys, const UTF16String& inCap, unsigned char inModifier, float inX, float inY,
             float inWidth) {
  ioKeys.push_back({RectT<float>(inX, inY, inWidth, 1),
                    {},
                    KeyboardCode(),
                    ui::ModifierKeys(inModifier),
                    inCap});
}

void AddFunctionRow(Keys& ioKeys) {
  AddNamed(ioKeys, KeyboardCode::kEscape, Localized("$$$/lumui/ksv/Key/Escape=Esc"), 0, kRows[0]);
  for (int i = 0; i < 12; ++i) {
    const float x = 2.0f + static_cast<float>(i) + 0.5f * static_cast<float>(i / 4);
    AddNamed(ioKeys, static_cast<unsigned short>(KeyboardCode::kF1 + i),
             lumcore::utility::ToUTF16("F" + std::to_string(i + 1)), x, kRows[0]);
  }
  AddNamed(ioKeys, KeyboardCode::kPrintScreen, Localized("$$$/lumui/ksv/Key/PrintScreen=PrtSc"),
           kNavigation, kRows[0]);
  AddDumb(ioKeys, Localized("$$$/lumui/ksv/Key/ScrollLock=ScrLk"), 0, kNavigation + 1, kRows[0], 1);
  AddNamed(ioKeys, KeyboardCode::kPause, Localized("$$$/lumui/ksv/Key/Pause=Pause"),
           kNavigation + 2, kRows[0]);
}

void AddLetters(Keys& ioKeys, KeyboardForm inForm) {
  const bool isISO = inForm == KeyboardForm::kISO;
  AddPlaces(ioKeys, 41, 41, 0, kRows[1]);
  AddPlaces(ioKeys, 2, 13, 1, kRows[1]);
  AddNamed(ioKeys, KeyboardCode::kBackspace, Localized("$$$/lumui/ksv/Key/Backspace=Backspace"), 13,
           kRows[1], 2);
  AddNamed(ioKeys, KeyboardCode::kTab, Localized("$$$/lumui/ksv/Key/Tab=Tab"), 0, kRows[2], 1.5f);
  AddPlaces(ioKeys, 16, 27, 1.5f, kRows[2]);
  AddDumb(ioKeys, Localized("$$$/lumui/ksv/Key/CapsLock=Caps Lock"), 0, 0, kRows[3], 1.75f);
  AddPlaces(ioKeys, 30, 40, 1.75f, kRows[3]);
  const UTF16String enter = Localized("$$$/lumui/ksv/Key/Return=Enter");
  if (isISO) {
    AddPlaces(ioKeys, kPlaceOfBackslash, kPlaceOfBackslash, 12.75f, kRows[3]);
    AddNamed(ioKeys, KeyboardCode::kReturn, enter, 13.75f, kRows[2], 1.25f, 2);
    ioKeys.back().wing = RectT<float>(13.5f, kRows[2], 1.5f, 1);
  } else {
    AddPlaces(ioKeys, kPlaceOfBackslash, kPlaceOfBackslash, 13.5f, kRows[2], 1.5f);
    AddNamed(ioKeys, KeyboardCode::kReturn, enter, 12.75f, kRows[3], 2.25f);
  }
  const UTF16String shift = Localized("$$$/lumui/ksv/Key/Shift=Shift");
  AddDumb(ioKeys, shift, ui::kModShift, 0, kRows[4], isISO ? 1.25f : 2.25f);
  if (isISO) AddPlaces(ioKeys, kPlaceBesideShift, kPlaceBesideShift, 1.25f, kRows[4]);
  AddPlaces(ioKeys, 44, 53, 2.25f, kRows[4]);
  AddDumb(ioKeys, shift, ui::kModShift, 12.25f, kRows[4], 2.75f);
}

void AddBottomRow(Keys& ioKeys) {
  const UTF16String control = Localized("$$$/lumui/ksv/Key/Control=Ctrl");
  const UTF16String alt = Localized("$$$/lumui/ksv/Key/Alt=Alt");
  AddDumb(ioKeys, control, ui::kModCommand, 0, kRows[5], 1.25f);
  AddDumb(ioKeys, UTF16String(), 0, 1.25f, kRows[5], 1.25f);
  AddDumb(ioKeys, alt, ui::kModAlt, 2.5f, kRows[5], 1.25f);
  AddNamed(ioKeys, KeyboardCode::kSpace, Localized("$$$/lumui/ksv/Key/Space=Space"), 3.75f,
           kRows[5], 6.25f);
  // The right Alt types characters of the third level in most layouts.
  AddDumb(ioKeys, Localized("$$$/lumui/ksv/Key/AltGr=Alt Gr"), 0, 10, kRows[5], 1.25f);
  AddDumb(ioKeys, UTF16String(), 0, 11.25f, kRows[5], 1.25f);
  AddNamed(ioKeys, KeyboardCode::kContextMenu, Localized("$$$/lumui/ksv/Key/Menu=Menu"), 12.5f,
           kRows[5], 1.25f);
  AddDumb(ioKeys, control, ui::kModCommand, 13.75f, kRows[5], 1.25f);
}

void AddNavigation(Keys& ioKeys) {
  const float x = kNavigation;
  AddNamed(ioKeys, KeyboardCode::kInsert, Localized("$$$/lumui/ksv/Key/Insert=Ins"), x, kRows[1]);
  AddNamed(ioKeys, KeyboardCode::kHome, Localized("$$$/lumui/ksv/Key/Home=Home"), x + 1, kRows[1]);
  AddNamed(ioKeys, KeyboardCode::kPageUp, Localized("$$$/lumui/ksv/Key/PageUp=PgUp"), x + 2,
           kRows[1]);
  AddNamed(ioKeys, KeyboardCode::kDelete, Localized("$$$/lumui/ksv/Key/Delete=Del"), x, kRows[2]);
  AddNamed(ioKeys, KeyboardCode::kEnd, Localized("$$$/lumui/ksv/Key/End=End"), x + 1, kRows[2]);
  AddNamed(ioKeys, KeyboardCode::kPageDown, Localized("$$$/lumui/ksv/Key/PageDown=PgDn"), x + 2,
           kRows[2]);
  AddNamed(ioKeys, KeyboardCode::kUpArrow, UTF16String{0x2191}, x + 1, kRows[4]);
  AddNamed(ioKeys, KeyboardCode::kLeftArrow, UTF16String{0x2190}, x, kRows[5]);
  AddNamed(ioKeys, KeyboardCode::kDownArrow, UTF16String{0x2193}, x + 1, kRows[5]);
  AddNamed(ioKeys, KeyboardCode::kRightArrow, UTF16String{0x2192}, x + 2, kRows[5]);
}

void AddNumberPad(Keys& ioKeys) {
  const float x = kNumberPad;
  AddDumb(ioKeys, Localized("$$$/lumui/ksv/Key/NumLock=Num"), 0, x, kRows[1], 1);
  AddPad(ioKeys, '/', x + 1, kRows[1]);
  AddPad(ioKeys, '*', x + 2, kRows[1]);
  AddPad(ioKeys, '-', x + 3, kRows[1]);
  const char digits[3][4] = {"789", "456", "123"};
  for (int row = 0; row < 3; ++row) {
    for (int i = 0; i < 3; ++i)
      AddPad(ioKeys, digits[row][i], x + static_cast<float>(i), kRows[2 + row]);
  }
  AddPad(ioKeys, '+', x + 3, kRows[2], 1, 2);
  AddNamed(ioKeys, KeyboardCode::kEnter, Localized("$$$/lumui/ksv/Key/Return=Enter"), x + 3,
           kRows[4], 1, 2);
  AddPad(ioKeys, '0', x, kRows[5], 2);
  AddPad(ioKeys, '.', x + 2, kRows[5]);
}

}  // namespace

IDelegateInterface::~IDelegateInterface() = default;

std::vector<KeyShape> MakeKeyboard(KeyboardForm inForm) {
  Keys keys;
  AddFunctionRow(keys);
  AddLetters(keys, inForm);
  AddBottomRow(keys);
  AddNavigation(keys);
  AddNumberPad(keys);
  return keys;
}

// The layouts of the United States are the ones that are sold on the form without the key.
KeyboardForm GetLikelyForm() {
  return ui::IsLayoutOfUnitedStates() ? KeyboardForm::kANSI : KeyboardForm::kISO;
}

}  // namespace lumui::utility::ksv
