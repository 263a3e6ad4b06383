// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>
#include <Qt>

#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/ModifierKeys.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/PointerEvent.h"

class QKeyEvent;
class QMouseEvent;
class QWheelEvent;

namespace lumui::ui {

ModifierKeys ModifiersFromQt(Qt::KeyboardModifiers inModifiers);
Qt::KeyboardModifiers QtFromModifiers(ModifierKeys inModifiers);
unsigned ButtonsFromQt(Qt::MouseButtons inButtons);
Qt::MouseButton QtFromButton(unsigned inButton);

// A press that Qt sends before the double click that it belongs to.
bool IsPressOfDoubleClick(const QMouseEvent& inEvent);

// inTop is where the nodes begin in the native window.
OS_Event OSEventOf(HWND inWindow, int inTop, const QMouseEvent& inEvent);
OS_Event OSEventOf(HWND inWindow, const QWheelEvent& inEvent);
KeyboardEvent KeyEventOf(HWND inWindow, const QKeyEvent& inEvent, bool inRepeat);
KeyboardEvent CharacterEventOf(HWND inWindow, unsigned short inCharacter, ModifierKeys inModifiers);

// The same event as a node sees it that has the pointer at inPosition.
MouseEvent PointerEventOf(const QMouseEvent& inEvent,
                          const lumcore::geom::PointT<float>& inPosition,
                          const OS_Event& inOSEvent);

}  // namespace lumui::ui
