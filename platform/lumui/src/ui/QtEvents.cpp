// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/QtEvents.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cmath>
#include <cstdlib>

#include "ui/KeyReadings.h"

namespace lumui::ui {

namespace {

// The bits of wParam in pointer messages.
constexpr WPARAM kHeldLeft = 1;
constexpr WPARAM kHeldRight = 2;
constexpr WPARAM kHeldShift = 4;
constexpr WPARAM kHeldControl = 8;
constexpr WPARAM kHeldMiddle = 16;
// The bits of lParam in key messages.
constexpr LPARAM kKeyExtended = LPARAM(1) << 24;
constexpr LPARAM kKeyWithAlt = LPARAM(1) << 29;
constexpr LPARAM kKeyWasDown = LPARAM(1) << 30;
constexpr LPARAM kKeyGoesUp = LPARAM(1) << 31;

constexpr int kWheelUnitsANotch = 120;

WPARAM HeldKeys(Qt::MouseButtons inButtons, Qt::KeyboardModifiers inModifiers) {
  WPARAM held = 0;
  if (inButtons & Qt::LeftButton) held |= kHeldLeft;
  if (inButtons & Qt::RightButton) held |= kHeldRight;
  if (inButtons & Qt::MiddleButton) held |= kHeldMiddle;
  if (inModifiers & Qt::ShiftModifier) held |= kHeldShift;
  if (inModifiers & Qt::ControlModifier) held |= kHeldControl;
  return held;
}

LPARAM PackedPosition(const QPointF& inPosition) {
  const auto x = static_cast<unsigned short>(std::lround(std::floor(inPosition.x())));
  const auto y = static_cast<unsigned short>(std::lround(std::floor(inPosition.y())));
  return static_cast<LPARAM>(x) | (static_cast<LPARAM>(y) << 16);
}

// The down, up and double click messages of a button stand side by side.
unsigned PointerMessage(const QMouseEvent& inEvent) {
  if (inEvent.type() == QEvent::MouseMove) return kMessageMouseMove;
  const unsigned step = inEvent.type() == QEvent::MouseButtonPress     ? 0
                        : inEvent.type() == QEvent::MouseButtonRelease ? 1
                                                                       : 2;
  switch (inEvent.button()) {
    case Qt::LeftButton:
      return kMessageLeftDown + step;
    case Qt::RightButton:
      return kMessageRightDown + step;
    case Qt::MiddleButton:
      return kMessageMiddleDown + step;
    default:
      return kMessageExtraDown + step;
  }
}

// A modifier key alone counts as held from its own press to its own release, which window systems
// tell each in its own way.
ModifierKeys WithOwnKey(ModifierKeys inModifiers, KeyboardCode inCode, bool inDown) {
  unsigned char own = 0;
  switch (inCode.GetControlCode(true)) {
    case KeyboardCode::kShiftKey:
      own = kModShift;
      break;
    case KeyboardCode::kControlKey:
      own = kModCommand;
      break;
    case KeyboardCode::kAltKey:
      own = kModAlt;
      break;
    default:
      return inModifiers;
  }
  if (inDown) {
    inModifiers.Set(own);
  } else {
    inModifiers.Clear(own);
  }
  return inModifiers;
}

// Alt alone makes the system's variants of the key messages.
bool IsSystemKey(ModifierKeys inModifiers) {
  return inModifiers.Has(kModAlt) && !inModifiers.Has(kModCommand);
}

}  // namespace

ModifierKeys ModifiersFromQt(Qt::KeyboardModifiers inModifiers) {
  ModifierKeys keys;
  if (inModifiers & Qt::ShiftModifier) keys.Set(kModShift);
  if (inModifiers & Qt::ControlModifier) keys.Set(kModCommand);
  if (inModifiers & Qt::AltModifier) keys.Set(kModAlt);
  return keys;
}

Qt::KeyboardModifiers QtFromModifiers(ModifierKeys inModifiers) {
  Qt::KeyboardModifiers keys;
  keys.setFlag(Qt::ShiftModifier, inModifiers.Has(kModShift));
  keys.setFlag(Qt::ControlModifier, inModifiers.HasAny(kModCommand | kModControl));
  keys.setFlag(Qt::AltModifier, inModifiers.Has(kModAlt));
  return keys;
}

unsigned ButtonsFromQt(Qt::MouseButtons inButtons) {
  unsigned buttons = PointerEvent::kNoButton;
  if (inButtons & Qt::LeftButton) buttons |= PointerEvent::kLeftButton;
  if (inButtons & Qt::MiddleButton) buttons |= PointerEvent::kMiddleButton;
  if (inButtons & Qt::RightButton) buttons |= PointerEvent::kRightButton;
  if (inButtons & ~(Qt::LeftButton | Qt::MiddleButton | Qt::RightButton)) {
    buttons |= PointerEvent::kExtraButton;
  }
  return buttons;
}

Qt::MouseButton QtFromButton(unsigned inButton) {
  switch (inButton) {
    case PointerEvent::kLeftButton:
      return Qt::LeftButton;
    case PointerEvent::kMiddleButton:
      return Qt::MiddleButton;
    case PointerEvent::kRightButton:
      return Qt::RightButton;
    case PointerEvent::kExtraButton:
      return Qt::BackButton;
    default:
      return Qt::NoButton;
  }
}

bool IsPressOfDoubleClick(const QMouseEvent& inEvent) {
  // The flag is protected and without a public reader; a copy of a derived class may read it.
  class Reader : public QMouseEvent {
   public:
    explicit Reader(const QMouseEvent& inFrom) : QMouseEvent(inFrom) {}
    bool IsDoubleClick() const { return m_doubleClick; }
  };
  return inEvent.type() == QEvent::MouseButtonPress && Reader(inEvent).IsDoubleClick();
}

OS_Event OSEventOf(HWND inWindow, int inTop, const QMouseEvent& inEvent) {
  return OS_Event(inWindow, PointerMessage(inEvent),
                  HeldKeys(inEvent.buttons(), inEvent.modifiers()),
                  PackedPosition(inEvent.position() - QPointF(0, inTop)));
}

OS_Event OSEventOf(HWND inWindow, const QWheelEvent& inEvent) {
  const QPoint delta = inEvent.angleDelta();
  const bool horizontal = std::abs(delta.x()) > std::abs(delta.y());
  const int units = horizontal ? delta.x() : delta.y();
  const WPARAM high = static_cast<unsigned short>(units);
  return OS_Event(inWindow, horizontal ? kMessageMouseHWheel : kMessageMouseWheel,
                  HeldKeys(inEvent.buttons(), inEvent.modifiers()) | (high << 16),
                  PackedPosition(inEvent.globalPosition()));
}

KeyboardEvent KeyEventOf(HWND inWindow, const QKeyEvent& inEvent, bool inRepeat) {
  const bool down = inEvent.type() != QEvent::KeyRelease;
  const KeyReadings readings = ReadKey(inEvent);
  // AltGr has Alt's code and is no modifier.
  const ModifierKeys modifiers = inEvent.key() == Qt::Key_AltGr
                                     ? readings.modifiers
                                     : WithOwnKey(readings.modifiers, readings.code, down);
  const bool system = IsSystemKey(modifiers);
  const int ownOSCode = readings.code.GetOSCode();
  const int osCode = ownOSCode != 0 ? ownOSCode : readings.latinCode.GetOSCode();
  const unsigned message = down ? (system ? kMessageSysKeyDown : kMessageKeyDown)
                                : (system ? kMessageSysKeyUp : kMessageKeyUp);
  LPARAM details = 1;
  if (osCode < 0) details |= kKeyExtended;
  if (system) details |= kKeyWithAlt;
  if (!down || inRepeat) details |= kKeyWasDown;
  if (!down) details |= kKeyGoesUp;
  const OS_Event os(inWindow, message, static_cast<WPARAM>(std::abs(osCode)), details);
  KeyboardEvent event(down ? KeyboardEvent::kActionKeyDown : KeyboardEvent::kActionKeyUp,
                      readings.code, modifiers, inRepeat, os);
  event.SetOtherCodes(readings.latinCode, readings.shiftedCode);
  return event;
}

KeyboardEvent CharacterEventOf(HWND inWindow, unsigned short inCharacter,
                               ModifierKeys inModifiers) {
  const bool system = IsSystemKey(inModifiers);
  const OS_Event os(inWindow, system ? kMessageSysChar : kMessageChar, inCharacter,
                    1 | (system ? kKeyWithAlt : 0));
  return KeyboardEvent(KeyboardEvent::kActionCharacter,
                       KeyboardCode(KeyboardCode::kCharacterBit | inCharacter), inModifiers, false,
                       os);
}

MouseEvent PointerEventOf(const QMouseEvent& inEvent,
                          const lumcore::geom::PointT<float>& inPosition,
                          const OS_Event& inOSEvent) {
  const ModifierKeys modifiers = ModifiersFromQt(inEvent.modifiers());
  switch (inEvent.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
      return MouseEvent(PointerEvent::kActionPress, ButtonsFromQt(inEvent.button()), modifiers,
                        inPosition, inEvent.type() == QEvent::MouseButtonDblClick ? 2 : 1,
                        inOSEvent);
    case QEvent::MouseButtonRelease:
      return MouseEvent(PointerEvent::kActionRelease, ButtonsFromQt(inEvent.button()), modifiers,
                        inPosition, 1, inOSEvent);
    default:
      return MouseEvent(PointerEvent::kActionMove, ButtonsFromQt(inEvent.buttons()), modifiers,
                        inPosition, 1, inOSEvent);
  }
}

}  // namespace lumui::ui
