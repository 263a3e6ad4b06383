// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/KeyReadings.h"

#include <private/qkeymapper_p.h>
#include <QKeyEvent>
#include <cstddef>
#include <iterator>
#include <memory>
#include <string_view>

#include "ui/KeyPlaces.h"
#include "ui/KeyTable.h"
#include "ui/QtEvents.h"

namespace lumui::ui {

namespace {

// Qt has told combinations as int and later as a type of their own.
QKeyCombination Combination(int inCombination) {
  return QKeyCombination::fromCombined(inCombination);
}
[[maybe_unused]] QKeyCombination Combination(QKeyCombination inCombination) {
  return inCombination;
}

bool IsCharacter(int inKey) {
  return inKey > Qt::Key_Space && inKey <= 0xFFFF;
}

bool IsLatinCapital(int inKey) {
  return inKey >= 'A' && inKey <= 'Z';
}

// What the keyboard's layout has in a key: the first possible key of Qt is the one without Shift
// and with all modifiers; further ones have modifiers spent on the character; one of another layout
// that the user switches to stands last, with all modifiers again.
struct LayoutKeys {
  int cap = 0;
  int shifted = 0;
  int otherLayouts = 0;
};

LayoutKeys AskLayout(QKeyEvent& ioEvent) {
  const Qt::KeyboardModifiers chord = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;
  const Qt::KeyboardModifiers held = ioEvent.modifiers() & chord;
  LayoutKeys keys;
  for (const auto& possible : QKeyMapper::possibleKeys(&ioEvent)) {
    const QKeyCombination combination = Combination(possible);
    const int key = combination.key();
    const Qt::KeyboardModifiers needed = combination.keyboardModifiers() & chord;
    if (keys.cap == 0) {
      keys.cap = key;
    } else if (needed == held) {
      keys.otherLayouts = key;
    } else if ((needed | Qt::ShiftModifier) == held && keys.shifted == 0) {
      keys.shifted = key;
    }
  }
  return keys;
}

LayoutKeys AskLayout(const QKeyEvent& inEvent) {
  const std::unique_ptr<QKeyEvent> copy(inEvent.clone());
  return AskLayout(*copy);
}

// The keys of a keyboard with the layout of the United States, by the place of each row's first
// key; the rows are those that every PC keyboard has.
struct PlaceRow {
  int firstPlace;
  std::string_view keys;
};

constexpr PlaceRow kPlaceRows[] = {
    {2, "1234567890-="}, {16, "QWERTYUIOP[]"}, {30, "ASDFGHJKL;'`"}, {43, "\\ZXCVBNM,./"}};
constexpr int kPadDotPlace = 83;

int LatinKeyAt(int inPlace) {
  for (const PlaceRow& row : kPlaceRows) {
    const int at = inPlace - row.firstPlace;
    if (at >= 0 && at < static_cast<int>(row.keys.size())) return row.keys[std::size_t(at)];
  }
  return 0;
}

// True if the layout in force has other letters. Marks alone do not tell: Hebrew has "/" and Greek
// ";" where Q is, and the Latin layouts move their marks about as well.
bool IsLayoutOfOtherScript() {
  bool tells = false;
  for (const PlaceRow& row : kPlaceRows) {
    for (std::size_t i = 0; i < row.keys.size(); ++i) {
      if (!IsLatinCapital(row.keys[i])) continue;
      const int key = AskLayout(*MakePressAt(row.firstPlace + static_cast<int>(i))).cap;
      if (IsLatinCapital(key)) return false;
      tells = tells || key != 0;
    }
  }
  return tells;
}

bool IsLetterOfOtherScript(int inKey) {
  if (!IsCharacter(inKey)) return false;
  const QChar character(static_cast<char16_t>(inKey));
  return character.isLetter() && character.script() != QChar::Script_Latin;
}

bool IsDigit(int inKey) {
  return inKey >= '0' && inKey <= '9';
}

int LatinKeyOf(const QKeyEvent& inEvent, int inCap, const LayoutKeys& inLayout) {
  const int place = PlaceOf(inEvent);
  if (inEvent.modifiers().testFlag(Qt::KeypadModifier)) return place == kPadDotPlace ? '.' : 0;
  const int latin = LatinKeyAt(place);
  if (latin == 0 || latin == inCap || IsLatinCapital(inCap)) return 0;
  if (IsDigit(latin)) return IsDigit(inCap) ? 0 : latin;
  if (!IsLetterOfOtherScript(inCap) && !IsLayoutOfOtherScript()) return 0;
  // The user's own Latin layout, where there is one, may have that key elsewhere.
  return IsCharacter(inLayout.otherLayouts) ? inLayout.otherLayouts : latin;
}

// Some systems tell AltGr as Ctrl and Alt. Real chords type what the key types anyway, or nothing.
bool IsThirdLevel(const QKeyEvent& inEvent, const LayoutKeys& inLayout) {
  if (inEvent.modifiers().testFlag(Qt::GroupSwitchModifier)) return true;
  const Qt::KeyboardModifiers both = Qt::ControlModifier | Qt::AltModifier;
  if ((inEvent.modifiers() & both) != both || inEvent.text().isEmpty()) return false;
  const QChar typed = inEvent.text().front();
  const int key = typed.toUpper().unicode();
  return typed.isPrint() && !typed.isSpace() && key != inLayout.cap && key != inLayout.shifted;
}

KeyboardCode CharacterCode(int inKey, bool inKeypad) {
  return IsCharacter(inKey) ? CodeFromQt(QtKey{inKey, inKeypad}) : KeyboardCode();
}

// A key of the third level is what it types, and has no other reading.
KeyReadings ReadThirdLevel(const QKeyEvent& inEvent, KeyReadings inReadings) {
  const bool byCtrlAndAlt = !inEvent.modifiers().testFlag(Qt::GroupSwitchModifier);
  if (byCtrlAndAlt) inReadings.modifiers.Clear(kModCommand | kModAlt);
  const QString text = inEvent.text();
  const bool types = byCtrlAndAlt && text.size() == 1;
  const int key = types ? text.front().toUpper().unicode() : inEvent.key();
  inReadings.code = CodeFromQt(QtKey{key, inEvent.modifiers().testFlag(Qt::KeypadModifier)});
  return inReadings;
}

// Of the keys that a layout may have dead: what they put on letters, standing alone.
struct DeadKey {
  int key;
  char16_t mark;
};

constexpr DeadKey kDeadKeys[] = {
    {Qt::Key_Dead_Grave, u'`'},          {Qt::Key_Dead_Acute, u'\u00B4'},
    {Qt::Key_Dead_Circumflex, u'^'},     {Qt::Key_Dead_Tilde, u'~'},
    {Qt::Key_Dead_Diaeresis, u'\u00A8'}, {Qt::Key_Dead_Abovering, u'\u02DA'},
    {Qt::Key_Dead_Caron, u'\u02C7'},     {Qt::Key_Dead_Cedilla, u'\u00B8'},
    {Qt::Key_Dead_Macron, u'\u00AF'},    {Qt::Key_Dead_Breve, u'\u02D8'},
    {Qt::Key_Dead_Ogonek, u'\u02DB'},    {Qt::Key_Dead_Doubleacute, u'\u02DD'}};

// The key that keyboards of the form without it do not have.
constexpr int kBesideShiftPlace = 86;

}  // namespace

PrintedKey PrintedAt(int inPlace) {
  int key = AskLayout(*MakePressAt(inPlace)).cap;
  for (const DeadKey& dead : kDeadKeys) {
    if (dead.key == key) return {KeyboardCode(), lumcore::UTF16String(1, dead.mark)};
  }
  if (!IsCharacter(key)) key = inPlace == kBesideShiftPlace ? '<' : LatinKeyAt(inPlace);
  const KeyboardCode code = CharacterCode(key, false);
  return {code, lumcore::UTF16String(1, code.GetCharacter())};
}

bool IsLayoutOfUnitedStates() {
  for (const PlaceRow& row : kPlaceRows) {
    for (std::size_t i = 0; i < row.keys.size(); ++i) {
      const int key = AskLayout(*MakePressAt(row.firstPlace + static_cast<int>(i))).cap;
      if (key != 0 && key != row.keys[i]) return false;
    }
  }
  return true;
}

KeyReadings ReadKey(const QKeyEvent& inEvent) {
  const bool keypad = inEvent.modifiers().testFlag(Qt::KeypadModifier);
  const int key = inEvent.key();
  KeyReadings readings;
  readings.modifiers = ModifiersFromQt(inEvent.modifiers());
  const LayoutKeys layout = AskLayout(inEvent);
  if (IsThirdLevel(inEvent, layout)) return ReadThirdLevel(inEvent, readings);
  if (keypad) {
    if (layout.cap != 0 && layout.cap != key) readings.modifiers.Clear(kModShift);
    readings.code = CodeFromQt(QtKey{key, true});
    if (IsCharacter(key)) {
      const int latin = LatinKeyOf(inEvent, key, layout);
      if (latin != key) readings.latinCode = CharacterCode(latin, true);
    }
    return readings;
  }
  // With Shift or Ctrl, Qt names other characters than the cap has. A dead key is one also where
  // Shift alone makes it dead.
  const int cap = IsCharacter(key) && IsCharacter(layout.cap) ? layout.cap : key;
  readings.code = CodeFromQt(QtKey{cap, false});
  if (!IsCharacter(cap)) return readings;
  readings.latinCode = CharacterCode(LatinKeyOf(inEvent, cap, layout), false);
  readings.shiftedCode = CharacterCode(layout.shifted, false);
  return readings;
}

}  // namespace lumui::ui
