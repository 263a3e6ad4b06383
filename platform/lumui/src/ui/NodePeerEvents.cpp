// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QFocusEvent>
#include <QInputMethodEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cmath>
#include <functional>
#include <vector>

#include "drawbot/QtConvert.h"
#include "drawbot/QtDrawbot.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/UI_NodeManager.h"
#include "ui/DamageRects.h"
#include "ui/EventGate.h"
#include "ui/NodeManagerImpl.h"
#include "ui/NodePeer.h"
#include "ui/QtEvents.h"

namespace lumui::ui {

namespace {

constexpr float kWheelUnitsANotch = 120;

int ReasonFromQt(Qt::FocusReason inReason) {
  switch (inReason) {
    case Qt::MouseFocusReason:
      return kFocusPointer;
    case Qt::TabFocusReason:
    case Qt::BacktabFocusReason:
      return kFocusTab;
    case Qt::ActiveWindowFocusReason:
      return kFocusWindow;
    default:
      return kFocusOther;
  }
}

WheelEvent::Touch TouchOf(Qt::ScrollPhase inPhase) {
  switch (inPhase) {
    case Qt::ScrollBegin:
      return WheelEvent::Touch::kBegin;
    case Qt::ScrollUpdate:
      return WheelEvent::Touch::kMove;
    case Qt::ScrollEnd:
      return WheelEvent::Touch::kEnd;
    case Qt::ScrollMomentum:
      return WheelEvent::Touch::kMomentum;
    default:
      return WheelEvent::Touch::kNone;
  }
}

// The pixels that the painter's clip has of a part of the widget. An edge between two pixels would
// be blended with what was there before, at each paint a little more.
QRectF WholePixels(const QTransform& inToDevice, const QRect& inRect) {
  const QRectF device = inToDevice.mapRect(QRectF(inRect));
  const QRectF pixels(QPointF(std::floor(device.left() + 0.5), std::floor(device.top() + 0.5)),
                      QPointF(std::floor(device.right() + 0.5), std::floor(device.bottom() + 0.5)));
  return inToDevice.inverted().mapRect(pixels);
}

bool IsTabPress(const KeyboardEvent* inKey) {
  return inKey && inKey->IsActionKeyDown() &&
         inKey->GetCode() == KeyboardCode(KeyboardCode::kTab) &&
         !inKey->GetModKey().HasAny(kModCommand | kModAlt);
}

void CollectTabStops(UI_Node& inNode, std::vector<UI_Node*>& outStops) {
  const QWidget* const widget = inNode.GetPeer()->GetWidget();
  if (!widget || !inNode.UI_IsVisible() || inNode.UI_IsDisabled()) return;
  const bool native = !inNode.GetPeer()->IsDrawn() && (widget->focusPolicy() & Qt::TabFocus) != 0;
  if (native || inNode.UI_WantsKeyboardFocus()) outStops.push_back(&inNode);
  for (std::size_t i = 0; i < inNode.UI_GetChildCount(); ++i) {
    CollectTabStops(*inNode.UI_GetChild(i), outStops);
  }
}

}  // namespace

bool NodePeer::HandleEvent(QEvent& inEvent) {
  switch (inEvent.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
      return HandleMouse(static_cast<QMouseEvent&>(inEvent));
    case QEvent::Wheel:
      return HandleWheel(static_cast<QWheelEvent&>(inEvent));
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
      return HandleKey(static_cast<QKeyEvent&>(inEvent));
    case QEvent::InputMethod:
      return HandleInputMethod(static_cast<QInputMethodEvent&>(inEvent));
    case QEvent::Leave:
      HandleLeave();
      return false;
    case QEvent::FocusIn:
    case QEvent::FocusOut:
      HandleFocus(inEvent);
      return false;
    case QEvent::Move:
    case QEvent::Resize:
      HandleGeometry();
      return false;
    case QEvent::Hide:
    case QEvent::EnabledChange:
      if (!mWidget->isEnabled() || inEvent.type() == QEvent::Hide) {
        NodeManagerImpl().capture.CancelFor(*mNode);
        NodeManagerImpl().drops.LeaveFor(*mNode);
      }
      return false;
    default:
      return false;
  }
}

// Asks the node, and says by the event's accepted flag whether Qt is to ask the widget around it.
bool NodePeer::Offer(QEvent& inEvent, const std::function<bool(UI_Node*)>& inAsk) {
  if (!mWidget->isEnabled()) return false;
  const lumcore::utility::StKeepAlive keepAlive(*mNode);
  const bool drawn = IsDrawn();
  UI_Node* const start = EventGate::Get()->GetStartNode();
  const OS_Window* const window = mNode->UI_GetWindowNode();
  const HWND handle = window ? window->UI_GetHandle() : nullptr;
  bool taken = true;
  EventGate::Get()->RunGuarded([&] { taken = inAsk(start ? start : mNode); });
  // The event ends with its window.
  if (handle && !OS_Window::UI_GetWindow(handle)) taken = true;
  if (!taken && !drawn) return false;
  inEvent.setAccepted(taken);
  return true;
}

bool NodePeer::HandleMouse(QMouseEvent& inEvent) {
  return Offer(inEvent, [&](UI_Node* inStart) {
    if (inEvent.type() == QEvent::MouseMove && inStart == mNode) AskCursor(inStart, inEvent);
    if (!mWidget) return true;
    mLastPosition = WithContentOrigin(mWidget->mapFromGlobal(inEvent.globalPosition()));
    return mNode->UI_DoMouseEvent(
        inStart, PointerEventOf(inEvent, mLastPosition, EventGate::Get()->GetCurrentOSEvent()));
  });
}

void NodePeer::AskCursor(UI_Node* inStart, QMouseEvent& inEvent) {
  if (IsDrawn()) UI_NodeManager::Get(true)->SetCursor(CursorShape::kArrow);
  for (boost::intrusive_ptr<UI_Node> node = inStart; node; node = node->UI_GetParentNode()) {
    const NodePeer* const peer = node->GetPeer();
    if (!peer->GetWidget()) return;
    const auto position =
        peer->WithContentOrigin(peer->GetWidget()->mapFromGlobal(inEvent.globalPosition()));
    const MouseEvent event =
        PointerEventOf(inEvent, position, EventGate::Get()->GetCurrentOSEvent());
    // Asked before the handler may take the widget away.
    const bool last = peer->GetWidget()->isWindow();
    if (node->UI_DoCursor(inStart, event) || last) return;
  }
}

bool NodePeer::HandleWheel(QWheelEvent& inEvent) {
  return Offer(inEvent, [&](UI_Node* inStart) {
    const auto position = WithContentOrigin(mWidget->mapFromGlobal(inEvent.globalPosition()));
    // Qt counts what the wheel does, the event where the view goes.
    const lumcore::geom::PointT<float> notches(
        static_cast<float>(-inEvent.angleDelta().x()) / kWheelUnitsANotch,
        static_cast<float>(-inEvent.angleDelta().y()) / kWheelUnitsANotch);
    WheelEvent event(ModifiersFromQt(inEvent.modifiers()), position, notches,
                     EventGate::Get()->GetCurrentOSEvent());
    // Without fingers, some drivers tell pixels that are none.
    const WheelEvent::Touch touch = TouchOf(inEvent.phase());
    const QPoint pixels = touch == WheelEvent::Touch::kNone ? QPoint() : inEvent.pixelDelta();
    constexpr double kMilliseconds = 0.001;
    event.SetTouch(touch, drawbot::FromQt(QRectF(-pixels, QSizeF())).Origin(),
                   kMilliseconds * EventGate::Get()->GetWheelTime());
    return mNode->UI_DoMouseWheel(inStart, event);
  });
}

bool NodePeer::HandleKey(QKeyEvent& inEvent) {
  EventGate* const gate = EventGate::Get();
  if (!gate->GetCurrentKey()) return false;
  const KeyboardEvent event = *gate->GetCurrentKey();
  // A key without a code is no key to a node; what it types comes as characters.
  if (event.GetCode() == KeyboardCode()) return false;
  const QPointer<QWidget> widget = mWidget;
  const bool decided = Offer(inEvent, [&](UI_Node* inStart) {
    const bool taken = mNode->UI_DoKeyboardEvent(inStart, event);
    if (taken) gate->NoteKeyTakenByNode();
    return taken;
  });
  // The end of the walk: nobody has taken the key.
  if (decided && !inEvent.isAccepted() && widget && widget == mWidget && widget->isWindow() &&
      IsTabPress(&event) && MoveFocus(!event.GetModKey().Has(kModShift))) {
    gate->NoteKeyTakenByNode();
    inEvent.accept();
  }
  return decided;
}

bool NodePeer::HandleInputMethod(QInputMethodEvent& inEvent) {
  OS_Window* const window = mNode->UI_GetWindowNode();
  if (!IsDrawn() || !window) return false;
  if (!inEvent.commitString().isEmpty()) {
    EventGate::Get()->TypeCharacters(*window, inEvent.commitString());
  }
  inEvent.accept();
  return true;
}

void NodePeer::HandleLeave() {
  // A capture gets the leave of its own node from the gate, and nobody else gets one meanwhile.
  if (NodeManagerImpl().capture.IsRunning() || !mWidget->isEnabled()) return;
  const lumcore::utility::StKeepAlive keepAlive(*mNode);
  const OS_Window* const window = mNode->UI_GetWindowNode();
  const OS_Event os(window ? window->UI_GetHandle() : nullptr, kMessageMouseLeave, 0, 0);
  const MouseEvent event(PointerEvent::kActionLeave, PointerEvent::kNoButton, ModifierKeys(),
                         mLastPosition, 1, os);
  EventGate::Get()->RunGuarded([&] { mNode->UI_DoMouseEvent(mNode, event); });
}

void NodePeer::HandleFocus(QEvent& inEvent) {
  const Qt::FocusReason reason = static_cast<QFocusEvent&>(inEvent).reason();
  // An open menu borrows the keyboard; the focus stays where it is.
  if (reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason) return;
  const lumcore::utility::StKeepAlive keepAlive(*mNode);
  EventGate::Get()->RunGuarded([&] { mNode->UI_FocusChanged(ReasonFromQt(reason)); });
  mNode->NoteChange();
}

// The user, or a widget of Qt that lays out others, has moved the widget: the node follows.
void NodePeer::HandleGeometry() {
  const QRect geometry = WithoutChrome(mWidget->geometry());
  if (mApplyingRect || geometry == RoundedRect()) return;
  const lumcore::utility::StKeepAlive keepAlive(*mNode);
  const lumcore::utility::StScopedValue<bool> applying(mApplyingRect, true);
  EventGate::Get()->RunGuarded([&] { mNode->UI_SetLocalRectF(drawbot::FromQt(QRectF(geometry))); });
}

// The clip's bounds are those of the damage, so that a node with a large content draws little.
void NodePeer::Paint(const QRegion& inDamage) {
  const lumcore::utility::StKeepAlive keepAlive(*mNode);
  QWidget* const widget = mWidget;
  mIsAllInvalid = false;
  NotePlaces();
  const QRect drawn = widget->rect().adjusted(0, mChromeHeight, 0, 0);
  QPainter painter(widget);
  const QTransform toDevice = painter.deviceTransform();
  painter.translate(-mContentOrigin.x, -mContentOrigin.y);
  const lumcore::utility::StScopedValue<bool> painting(EventGate::Get()->mPainting, true);
  EventGate::Get()->RunGuarded([&] {
    for (const QRect& rect : SplitDamage(inDamage & drawn)) {
      const QRectF bounds =
          WholePixels(toDevice, rect).translated(mContentOrigin.x, mContentOrigin.y);
      drawbot::QtDrawbot drawbot(painter, drawbot::FromQt(bounds));
      mNode->UI_Draw(&drawbot);
    }
  });
}

// The widgets of docks and bars that lie between a node and its window want to move the focus
// before the window has been asked. Controls of the window system keep Tab for themselves.
bool NodePeer::MoveFocusFromWidget(bool inForward) {
  const UI_Node* const focus = NodeOf(mWidget->focusWidget());
  const bool walks = IsTabPress(EventGate::Get()->GetCurrentKey());
  if (walks && focus && focus->GetPeer()->IsDrawn()) return false;
  return MoveFocus(inForward);
}

bool NodePeer::MoveFocus(bool inForward) {
  // Qt asks for the next focus also when the one that has it is hidden; then nobody shall have it.
  if (!IsTabPress(EventGate::Get()->GetCurrentKey())) {
    mWidget->setFocus(Qt::OtherFocusReason);
    return true;
  }
  std::vector<UI_Node*> stops;
  EventGate::Get()->RunGuarded([&] { CollectTabStops(*mNode, stops); });
  if (stops.empty()) return false;
  const UI_Node* const current = NodeOf(mWidget->focusWidget());
  std::size_t at = stops.size();
  for (std::size_t i = 0; i < stops.size(); ++i) {
    if (stops[i] == current) at = i;
  }
  const std::size_t count = stops.size();
  const std::size_t next =
      at == count ? (inForward ? 0 : count - 1) : (at + (inForward ? 1 : count - 1)) % count;
  stops[next]->GetPeer()->GetWidget()->setFocus(inForward ? Qt::TabFocusReason
                                                          : Qt::BacktabFocusReason);
  return true;
}

void NodePeer::FocusFirst() {
  const QWidget* const current = mWidget->focusWidget();
  if (current && current != mWidget) return;
  std::vector<UI_Node*> stops;
  EventGate::Get()->RunGuarded([&] { CollectTabStops(*mNode, stops); });
  if (!stops.empty()) stops[0]->GetPeer()->GetWidget()->setFocus(Qt::TabFocusReason);
}

bool NodePeer::WantsInputMethod() {
  bool wants = false;
  EventGate::Get()->RunGuarded([&] { wants = mNode->UI_WantsKeyboardFocus(); });
  return wants;
}

}  // namespace lumui::ui
