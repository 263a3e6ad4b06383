// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <vector>

#include "lumui/Export.h"
#include "lumui/ui/UI_DragDropHandler.h"
#include "lumui/ui/UI_Node.h"

class QDropEvent;
class QWidget;

namespace lumui::datatransfer {
class ReceivedMimeData;
}

namespace lumui::ui {

// The drag that is over a window of ours, if any, and the handlers that have had their enter: the
// innermost first, and the one that serves it, if any, last. They are held until they have had
// their end. A handler may open a loop of its own in which the drag goes on or ends; what its call
// brings then belongs to nobody.
class LUMUI_API DropState {
 public:
  using Fallback = boost::shared_ptr<UI_DragDropHandler>;

  // An enter, a move or a drop at inWidget. Answers through the event.
  void Handle(QWidget& inWidget, const Fallback& inFallback, QDropEvent& ioEvent);
  void Leave();
  // The node, and those below it, are no more to be seen, or disabled.
  void LeaveFor(const UI_Node& inNode);

 private:
  struct Handler {
    boost::intrusive_ptr<UI_Node> node;
    Fallback fallback;
    bool serves = false;
    int effect = kDropNone;  // of a drop, by the last answer

    UI_DragDropHandler* Get() const;
    UI_DragDropHandler::Position PositionOf(const QWidget& inWidget, const QPointF& inAt) const;
  };
  using Operation = bool (UI_DragDropHandler::*)(UI_DragDropHandler::Position,
                                                 datatransfer::OS_ReceiveData&, int&);

  static std::vector<Handler> FindWanting(QWidget& inWidget, const QPointF& inAt,
                                          const Fallback& inFallback);
  static void Ask(Handler& ioHandler, Operation inOperation, const QWidget& inWidget,
                  const QPointF& inAt, datatransfer::ReceivedMimeData& inData);
  bool AskAll(QWidget& inWidget, const Fallback& inFallback, QDropEvent& ioEvent,
              datatransfer::ReceivedMimeData& inData);
  int Drop(QWidget& inWidget, const QPointF& inAt, datatransfer::ReceivedMimeData& inData);
  void LeaveFrom(std::size_t inIndex);
  int GetEffect() const;

  std::vector<Handler> mEntered;
  const void* mSource = nullptr;  // of the drag's data; only compared
  unsigned mTurn = 0;             // of the last step
};

}  // namespace lumui::ui
