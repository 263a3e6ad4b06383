// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ui/CaptureState.h"

#include <QMouseEvent>
#include <QWidget>
#include <utility>

#include "lumcore/debug/Contract.h"
#include "lumui/ui/OS_Event.h"
#include "lumui/ui/PointerEvent.h"
#include "ui/EventGate.h"
#include "ui/NodePeer.h"
#include "ui/QtEvents.h"

namespace lumui::ui {

void CaptureState::Begin(const boost::intrusive_ptr<InputCapture>& inCapture) {
  LUM_INPUT_CONTRACT(inCapture && !inCapture->mRunning);
  End(true);
  const QWidget* const widget = inCapture->GetNode()->GetPeer()->GetWidget();
  const bool usable = widget && widget->isVisible() && widget->isEnabled();
  inCapture->mCancelled = false;
  inCapture->mRunning = true;
  mCapture = inCapture;
  mInside = true;
  inCapture->DoBegin();
  if (!usable && mCapture == inCapture) End(true);
}

void CaptureState::End(bool inCancelled) {
  const boost::intrusive_ptr<InputCapture> capture = std::exchange(mCapture, nullptr);
  if (!capture) return;
  capture->mRunning = false;
  capture->mCancelled = inCancelled;
  EventGate::Get()->RunGuarded([&] { capture->DoEnd(); });
}

void CaptureState::CancelFor(const UI_Node& inNode) {
  if (!mCapture) return;
  const UI_Node* const node = mCapture->GetNode();
  if (node == &inNode || inNode.UI_IsAncestorOf(*node)) End(true);
}

void CaptureState::Deliver(const QMouseEvent& inEvent, const OS_Event& inOSEvent) {
  const boost::intrusive_ptr<InputCapture> capture = mCapture;
  const NodePeer* const peer = capture->GetNode()->GetPeer();
  if (!peer->GetWidget()) return End(true);
  const QPointF local = peer->GetWidget()->mapFromGlobal(inEvent.globalPosition());
  const bool inside = QRectF(peer->GetWidget()->rect()).contains(local);
  const auto position = peer->WithContentOrigin(local);
  const bool left = mInside && !inside && inEvent.type() == QEvent::MouseMove;
  mInside = inside;
  if (left) {
    const OS_Event leave(inOSEvent.window, kMessageMouseLeave, 0, 0);
    Tell(*capture, MouseEvent(PointerEvent::kActionLeave, ButtonsFromQt(inEvent.buttons()),
                              ModifiersFromQt(inEvent.modifiers()), position, 1, leave));
  }
  // The leave may have ended it.
  if (mCapture == capture) Tell(*capture, PointerEventOf(inEvent, position, inOSEvent));
}

void CaptureState::Tell(InputCapture& inCapture, const MouseEvent& inEvent) {
  EventGate::Get()->RunGuarded([&] { inCapture.DoMouseEvent(inEvent); });
}

}  // namespace lumui::ui
