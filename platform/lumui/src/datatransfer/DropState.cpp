// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "datatransfer/DropState.h"

#include <QDropEvent>
#include <QWidget>
#include <iterator>
#include <utility>

#include "datatransfer/ReceivedMimeData.h"
#include "lumui/ui/OS_Window.h"
#include "ui/EventGate.h"
#include "ui/NodePeer.h"

namespace lumui::ui {

using datatransfer::OS_ReceiveData;
using datatransfer::ReceivedMimeData;

UI_DragDropHandler::~UI_DragDropHandler() = default;

bool UI_DragDropHandler::UI_WantsDragDropEvents() const {
  return false;
}
bool UI_DragDropHandler::UI_HandleDragEnter(Position, OS_ReceiveData&, int&) {
  return false;
}
bool UI_DragDropHandler::UI_HandleDragOver(Position, OS_ReceiveData&, int&) {
  return false;
}
void UI_DragDropHandler::UI_HandleDragLeave(OS_ReceiveData&) {}
bool UI_DragDropHandler::UI_HandleDrop(Position, OS_ReceiveData&, int&) {
  return false;
}

UI_DragDropHandler* DropState::Handler::Get() const {
  return node ? node.get() : fallback.get();
}

UI_DragDropHandler::Position DropState::Handler::PositionOf(const QWidget& inWidget,
                                                            const QPointF& inAt) const {
  const UI_Node* asked = node.get();
  if (!asked) {
    const UI_Node* const start = NodePeer::NodeOf(&inWidget);
    asked = start ? start->UI_GetWindowNode() : nullptr;
  }
  const NodePeer* const peer = asked ? asked->GetPeer() : nullptr;
  if (!peer || !peer->GetWidget()) return {};
  return peer->WithContentOrigin(peer->GetWidget()->mapFromGlobal(inWidget.mapToGlobal(inAt)));
}

std::vector<DropState::Handler> DropState::FindWanting(QWidget& inWidget, const QPointF& inAt,
                                                       const Fallback& inFallback) {
  std::vector<Handler> wanting;
  const QWidget* const child = inWidget.childAt(inAt.toPoint());
  for (UI_Node* node = NodePeer::NodeOf(child ? child : &inWidget); node;
       node = node->UI_GetParentNode()) {
    const QWidget* const widget = node->GetPeer()->GetWidget();
    if (widget && widget->isEnabled() && node->UI_WantsDragDropEvents())
      wanting.push_back(Handler{node, {}});
  }
  if (inFallback && inFallback->UI_WantsDragDropEvents())
    wanting.push_back(Handler{{}, inFallback});
  return wanting;
}

// A refusal if it throws.
void DropState::Ask(Handler& ioHandler, Operation inOperation, const QWidget& inWidget,
                    const QPointF& inAt, ReceivedMimeData& inData) {
  const Handler held = ioHandler;
  bool serves = false;
  int effect = inData.GetProposedEffect();
  EventGate::Get()->RunGuarded([&] {
    serves = (held.Get()->*inOperation)(held.PositionOf(inWidget, inAt), inData, effect);
  });
  ioHandler.serves = serves;
  ioHandler.effect = serves ? datatransfer::PickEffect(effect & inData.GetAllowedEffects(),
                                                       inData.GetProposedEffect())
                            : kDropNone;
}

void DropState::Handle(QWidget& inWidget, const Fallback& inFallback, QDropEvent& ioEvent) {
  int effect = kDropNone;
  ReceivedMimeData data(ioEvent);
  // A source that has gone without a word never says that its drag has left.
  if (ioEvent.type() == QEvent::DragEnter || ioEvent.mimeData() != mSource) Leave();
  mSource = ioEvent.mimeData();
  EventGate::Get()->RunGuarded([&] {
    if (!AskAll(inWidget, inFallback, ioEvent, data)) return;
    effect =
        ioEvent.type() == QEvent::Drop ? Drop(inWidget, ioEvent.position(), data) : GetEffect();
  });
  ioEvent.setDropAction(effect == kDropNone
                            ? Qt::IgnoreAction
                            : static_cast<Qt::DropAction>(datatransfer::ActionsOf(effect).toInt()));
  ioEvent.setAccepted(effect != kDropNone);
  // The window wants to hear of moves also where nothing takes the drop.
  if (ioEvent.type() == QEvent::DragEnter) ioEvent.accept();
}

// From the innermost outward until one serves. False if the drag was taken over from within.
bool DropState::AskAll(QWidget& inWidget, const Fallback& inFallback, QDropEvent& ioEvent,
                       ReceivedMimeData& inData) {
  const unsigned turn = ++mTurn;
  const QPointF at = ioEvent.position();
  const std::vector<Handler> wanting = FindWanting(inWidget, at, inFallback);
  std::size_t next = 0;
  for (bool served = false; next < wanting.size() && !served; ++next) {
    Handler handler = wanting[next];
    const bool isIn = next < mEntered.size() && mEntered[next].Get() == handler.Get();
    if (isIn && ioEvent.type() == QEvent::Drop) {
      served = mEntered[next].serves;
      continue;
    }
    if (!isIn) {
      LeaveFrom(next);
      if (mTurn != turn) return false;
      mEntered.push_back(handler);
    }
    Ask(handler,
        isIn ? &UI_DragDropHandler::UI_HandleDragOver : &UI_DragDropHandler::UI_HandleDragEnter,
        inWidget, at, inData);
    if (mTurn != turn) return false;
    mEntered[next] = handler;
    served = handler.serves;
  }
  LeaveFrom(next);
  return mTurn == turn;
}

int DropState::GetEffect() const {
  return mEntered.empty() ? static_cast<int>(kDropNone) : mEntered.back().effect;
}

int DropState::Drop(QWidget& inWidget, const QPointF& inAt, ReceivedMimeData& inData) {
  if (GetEffect() == kDropNone) {
    Leave();
    return kDropNone;
  }
  Handler last = mEntered.back();
  mEntered.pop_back();
  const unsigned turn = mTurn;
  LeaveFrom(0);
  if (mTurn != turn) return kDropNone;
  EventGate::Get()->RunDrop(
      [&] { Ask(last, &UI_DragDropHandler::UI_HandleDrop, inWidget, inAt, inData); });
  return last.effect;
}

// From the outside inward. Each is out of the list before it is told.
void DropState::LeaveFrom(std::size_t inIndex) {
  if (inIndex >= mEntered.size()) return;
  const auto first = mEntered.begin() + static_cast<std::ptrdiff_t>(inIndex);
  const std::vector<Handler> left(std::make_move_iterator(first),
                                  std::make_move_iterator(mEntered.end()));
  mEntered.erase(first, mEntered.end());
  for (auto handler = left.rbegin(); handler != left.rend(); ++handler) {
    OS_ReceiveData none;
    EventGate::Get()->RunGuarded([&] { handler->Get()->UI_HandleDragLeave(none); });
  }
}

void DropState::Leave() {
  ++mTurn;
  LeaveFrom(0);
}

// All of them: those around the node are entered again if the drag goes on there.
void DropState::LeaveFor(const UI_Node& inNode) {
  for (const Handler& handler : mEntered) {
    if (!handler.node) continue;
    if (handler.node.get() == &inNode || inNode.UI_IsAncestorOf(*handler.node)) return Leave();
  }
}

}  // namespace lumui::ui
