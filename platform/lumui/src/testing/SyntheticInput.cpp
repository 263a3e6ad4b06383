// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/testing/SyntheticInput.h"

#include <private/qhighdpiscaling_p.h>
#include <qpa/qwindowsysteminterface.h>

#include <QCoreApplication>
#include <QInputMethodEvent>
#include <QSessionManager>
#include <QWidget>
#include <QWindow>
#include <cmath>

#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumui/ui/Application.h"
#include "lumui/ui/OS_Window.h"
#include "ui/EventGate.h"
#include "ui/KeyTable.h"
#include "ui/NodePeer.h"
#include "ui/QtEvents.h"
#include "ui/WindowRegistry.h"

namespace lumui::testing {

namespace {

using System = QWindowSystemInterface;
using Now = System::SynchronousDelivery;

constexpr double kWheelUnitsANotch = 120;
// Milliseconds between two inputs: beyond any desktop's double click time, and within it.
constexpr unsigned long kApart = 10000;
constexpr unsigned long kTogether = 1;

unsigned long NextTime(unsigned long inStep) {
  static unsigned long sTime = 0;
  return sTime += inStep;
}

Qt::MouseButtons& HeldButtons() {
  static Qt::MouseButtons sHeld;
  return sHeld;
}

QWindow* NativeWindow(const ui::OS_Window& inWindow) {
  QWindow* const native = ui::NativeOf(inWindow);
  LUM_INPUT_CONTRACT(native != nullptr);
  return native;
}

// Nodes know nothing of the bar above them.
QPointF NativePosition(const ui::OS_Window& inWindow, const Position& inPosition) {
  return drawbot::ToQt(inPosition) + QPointF(0, inWindow.GetPeer()->GetChromeHeight());
}

// The window system counts in the screen's own pixels.
QPointF InPixels(const QPointF& inLocal, const QWindow* inNative) {
  return QHighDpi::toNativeLocalPosition(inLocal, inNative);
}
QPointF ScreenPixels(const QPointF& inLocal, const QWindow* inNative) {
  return QHighDpi::toNativeGlobalPosition(inNative->mapToGlobal(inLocal), inNative);
}

void SendMouse(ui::OS_Window& inWindow, const Position& inPosition, QEvent::Type inType,
               Qt::MouseButton inButton, ui::ModifierKeys inModifiers, unsigned long inStep) {
  QWindow* const native = NativeWindow(inWindow);
  Qt::MouseButtons& held = HeldButtons();
  held.setFlag(inButton, inType == QEvent::MouseButtonPress);
  const QPointF local = NativePosition(inWindow, inPosition);
  System::handleMouseEvent<Now>(native, NextTime(inStep), InPixels(local, native),
                                ScreenPixels(local, native), held, inButton, inType,
                                ui::QtFromModifiers(inModifiers));
}

// The text that a keyboard driver puts into a key event, control characters of chords included.
QString TextOf(ui::KeyboardCode inKey, ui::ModifierKeys inModifiers) {
  const bool chord = inModifiers.HasAny(ui::kModCommand | ui::kModControl);
  if (inKey.IsPrintable()) {
    const QChar character(inKey.GetCharacter());
    if (chord && character >= u'A' && character <= u'Z') {
      return QChar(character.unicode() - u'A' + 1);
    }
    return inModifiers.Has(ui::kModShift) ? character : character.toLower();
  }
  switch (inKey.GetControlCode(false)) {
    case ui::KeyboardCode::kSpace:
      return QStringLiteral(" ");
    case ui::KeyboardCode::kBackspace:
      return QStringLiteral("\b");
    case ui::KeyboardCode::kTab:
      return QStringLiteral("\t");
    case ui::KeyboardCode::kReturn:
    case ui::KeyboardCode::kEnter:
      return QStringLiteral("\r");
    case ui::KeyboardCode::kEscape:
      return QStringLiteral("\x1B");
    case ui::KeyboardCode::kDelete:
      return QStringLiteral("\x7F");
    default:
      return QString();
  }
}

void SendQtKey(ui::OS_Window& inWindow, QEvent::Type inType, const ui::QtKey& inKey,
               ui::ModifierKeys inModifiers, const QString& inText, bool inRepeat) {
  Qt::KeyboardModifiers modifiers = ui::QtFromModifiers(inModifiers);
  modifiers.setFlag(Qt::KeypadModifier, inKey.keypad);
  System::handleExtendedKeyEvent(NativeWindow(inWindow), NextTime(kApart), inType, inKey.key,
                                 modifiers, 0, 0, 0, inText, inRepeat);
  System::sendWindowSystemEvents(QEventLoop::AllEvents);
}

void SendKey(ui::OS_Window& inWindow, QEvent::Type inType, ui::KeyboardCode inKey,
             ui::ModifierKeys inModifiers, const QString& inText, bool inRepeat) {
  const ui::QtKey key = ui::QtFromCode(inKey);
  LUM_INPUT_CONTRACT(key.key != 0);
  SendQtKey(inWindow, inType, key, inModifiers, inText, inRepeat);
}

}  // namespace

void PressKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey, ui::ModifierKeys inModifiers,
              bool inRepeat) {
  const QString text = TextOf(inKey, inModifiers);
  // A held key comes as release and press, both marked as made by itself.
  if (inRepeat) SendKey(inWindow, QEvent::KeyRelease, inKey, inModifiers, text, true);
  SendKey(inWindow, QEvent::KeyPress, inKey, inModifiers, text, inRepeat);
}

void ReleaseKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey, ui::ModifierKeys inModifiers) {
  SendKey(inWindow, QEvent::KeyRelease, inKey, inModifiers, TextOf(inKey, inModifiers), false);
}

void TapKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey, ui::ModifierKeys inModifiers) {
  const lumcore::utility::StKeepAlive keepAlive(inWindow);
  PressKey(inWindow, inKey, inModifiers);
  if (inWindow.UI_GetHandle()) ReleaseKey(inWindow, inKey, inModifiers);
}

void PressTypingKey(ui::OS_Window& inWindow, ui::KeyboardCode inKey, ui::ModifierKeys inModifiers,
                    const lumcore::UTF16String& inText) {
  const bool named = inKey != ui::KeyboardCode();
  SendQtKey(inWindow, QEvent::KeyPress,
            named ? ui::QtFromCode(inKey) : ui::QtKey{Qt::Key_unknown, false}, inModifiers,
            drawbot::ToQt(inText), false);
}

void TypeText(ui::OS_Window& inWindow, const lumcore::UTF16String& inText) {
  const lumcore::utility::StKeepAlive keepAlive(inWindow);
  const QString text = drawbot::ToQt(inText);
  for (qsizetype i = 0; i < text.size() && inWindow.UI_GetHandle(); ++i) {
    // A character beyond 16 bits is typed by one key.
    const bool pair = text[i].isHighSurrogate() && i + 1 < text.size();
    const QString typed = text.mid(i, pair ? 2 : 1);
    const auto key = typed == u" " ? ui::KeyboardCode(ui::KeyboardCode::kSpace)
                                   : ui::KeyboardCode::CreateFromKeyboardChar(
                                         static_cast<unsigned short>(text[i].unicode()), false);
    const ui::ModifierKeys shift(text[i].isUpper() ? ui::kModShift : 0);
    SendKey(inWindow, QEvent::KeyPress, key, shift, typed, false);
    if (inWindow.UI_GetHandle()) {
      SendKey(inWindow, QEvent::KeyRelease, key, shift, typed, false);
    }
    i += pair ? 1 : 0;
  }
}

void CommitInputMethodText(ui::OS_Window& inWindow, const lumcore::UTF16String& inText) {
  NativeWindow(inWindow);
  QWidget* const top = inWindow.GetPeer()->GetWidget();
  QInputMethodEvent event;
  event.setCommitString(drawbot::ToQt(inText));
  QCoreApplication::sendEvent(top->focusWidget() ? top->focusWidget() : top, &event);
}

void MoveMouse(ui::OS_Window& inWindow, const Position& inPosition, ui::ModifierKeys inModifiers) {
  SendMouse(inWindow, inPosition, QEvent::MouseMove, Qt::NoButton, inModifiers, kApart);
}

void PressMouse(ui::OS_Window& inWindow, const Position& inPosition,
                ui::PointerEvent::Button inButton, ui::ModifierKeys inModifiers) {
  SendMouse(inWindow, inPosition, QEvent::MouseButtonPress, ui::QtFromButton(inButton), inModifiers,
            kApart);
}

void ReleaseMouse(ui::OS_Window& inWindow, const Position& inPosition,
                  ui::PointerEvent::Button inButton, ui::ModifierKeys inModifiers) {
  SendMouse(inWindow, inPosition, QEvent::MouseButtonRelease, ui::QtFromButton(inButton),
            inModifiers, kTogether);
}

void ClickMouse(ui::OS_Window& inWindow, const Position& inPosition,
                ui::PointerEvent::Button inButton, ui::ModifierKeys inModifiers) {
  const lumcore::utility::StKeepAlive keepAlive(inWindow);
  PressMouse(inWindow, inPosition, inButton, inModifiers);
  if (inWindow.UI_GetHandle()) ReleaseMouse(inWindow, inPosition, inButton, inModifiers);
}

void DoubleClickMouse(ui::OS_Window& inWindow, const Position& inPosition,
                      ui::PointerEvent::Button inButton, ui::ModifierKeys inModifiers) {
  const lumcore::utility::StKeepAlive keepAlive(inWindow);
  ClickMouse(inWindow, inPosition, inButton, inModifiers);
  if (!inWindow.UI_GetHandle()) return;
  SendMouse(inWindow, inPosition, QEvent::MouseButtonPress, ui::QtFromButton(inButton), inModifiers,
            kTogether);
  if (inWindow.UI_GetHandle()) ReleaseMouse(inWindow, inPosition, inButton, inModifiers);
}

void LeaveWindow(ui::OS_Window& inWindow) {
  System::handleLeaveEvent<Now>(NativeWindow(inWindow));
}

void TurnWheel(ui::OS_Window& inWindow, const Position& inPosition,
               const lumcore::geom::PointT<float>& inNotches, ui::ModifierKeys inModifiers) {
  QWindow* const native = NativeWindow(inWindow);
  const QPointF local = NativePosition(inWindow, inPosition);
  const QPoint angle(static_cast<int>(std::lround(-inNotches.x * kWheelUnitsANotch)),
                     static_cast<int>(std::lround(-inNotches.y * kWheelUnitsANotch)));
  System::handleWheelEvent(native, NextTime(kApart), InPixels(local, native),
                           ScreenPixels(local, native), QPoint(), angle,
                           ui::QtFromModifiers(inModifiers));
  System::sendWindowSystemEvents(QEventLoop::AllEvents);
}

void MoveFingers(ui::OS_Window& inWindow, const Position& inPosition, ui::WheelEvent::Touch inTouch,
                 const lumcore::geom::PointT<float>& inWay, double inSeconds) {
  using Touch = ui::WheelEvent::Touch;
  const Qt::ScrollPhase phase = inTouch == Touch::kBegin      ? Qt::ScrollBegin
                                : inTouch == Touch::kMove     ? Qt::ScrollUpdate
                                : inTouch == Touch::kEnd      ? Qt::ScrollEnd
                                : inTouch == Touch::kMomentum ? Qt::ScrollMomentum
                                                              : Qt::NoScrollPhase;
  QWindow* const native = NativeWindow(inWindow);
  const QPointF local = NativePosition(inWindow, inPosition);
  // Drivers count notches along with the pixels, by a rule of their own.
  const QPoint pixels(static_cast<int>(std::lround(-inWay.x)),
                      static_cast<int>(std::lround(-inWay.y)));
  constexpr double kMillisecondsASecond = 1000;
  const auto time = static_cast<unsigned long>(std::lround(inSeconds * kMillisecondsASecond));
  System::handleWheelEvent(native, NextTime(time), InPixels(local, native),
                           ScreenPixels(local, native), pixels, 2 * pixels, Qt::NoModifier, phase);
  System::sendWindowSystemEvents(QEventLoop::AllEvents);
}

void RequestClose(ui::OS_Window& inWindow) {
  System::handleCloseEvent<Now>(NativeWindow(inWindow));
}

void ActivateWindow(ui::OS_Window* inWindow) {
  System::handleWindowActivated<Now>(inWindow ? NativeWindow(*inWindow) : nullptr,
                                     Qt::ActiveWindowFocusReason);
}

bool AskSessionEnd() {
  ui::EventGate* const gate = ui::EventGate::Get();
  LUM_INPUT_CONTRACT(gate != nullptr);
  // The one that Qt has made for itself.
  auto* const session = gate->findChild<QSessionManager*>();
  LUM_INPUT_CONTRACT(session != nullptr);
  emit gate->commitDataRequest(*session);
  return gate->IsSessionEnding();
}

bool EndSession() {
  if (!AskSessionEnd()) return false;
  ui::EventGate* const gate = ui::EventGate::Get();
  QEvent quit(QEvent::Quit);
  QCoreApplication::sendEvent(gate, &quit);
  return true;
}

void ProcessEvents() {
  LUM_INPUT_CONTRACT(ui::Application::Get() != nullptr);
  ui::Application::Get()->PumpPendingEvents();
}

}  // namespace lumui::testing
