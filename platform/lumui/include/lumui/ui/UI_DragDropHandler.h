// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Point.h"
#include "lumui/Export.h"

namespace lumui::datatransfer {
class OS_ReceiveData;
}

namespace lumui::ui {

// What a drop does to what is dragged. They are summed where several are allowed.
enum DropEffect : int {
  kDropNone = 0,
  kDropCopy = 1,
  kDropMove = 2,
  kDropLink = 4,
};

// Takes what is dragged over it, from this program or another one. Every node is one, and the
// fallback of a window another; the base operations take nothing.
//
// Of the handlers under the pointer that want drags the innermost is asked first, and the ones
// around it as long as none serves the drag. To each the order is kept: an enter first, then overs,
// and at last one leave or one drop, also where a node comes under the pointer or goes in the
// middle of a drag. A drop that nobody serves, or that would do nothing, is a leave.
//
// Positions are those of UI_Node::UI_DoMouseEvent, of a fallback those of the window. ioEffect is
// what the source and the held keys propose, and becomes what a drop here would do, or what it has
// done: one DropEffect that the source allows, else nothing is done. The result says whether the
// handler serves the drag; if it does not, ioEffect says nothing. What a handler throws goes to the
// application's error function and refuses the drag.
//
// The data is there for the length of the call. Reading it may take a while: see OS_ReceiveData.
class LUMUI_API UI_DragDropHandler {
 public:
  using Position = lumcore::geom::PointT<float>;

  virtual ~UI_DragDropHandler();

  virtual bool UI_WantsDragDropEvents() const;
  virtual bool UI_HandleDragEnter(Position inPosition, datatransfer::OS_ReceiveData& inData,
                                  int& ioEffect);
  virtual bool UI_HandleDragOver(Position inPosition, datatransfer::OS_ReceiveData& inData,
                                 int& ioEffect);
  // The data has gone: none is offered any more.
  virtual void UI_HandleDragLeave(datatransfer::OS_ReceiveData& inData);
  virtual bool UI_HandleDrop(Position inPosition, datatransfer::OS_ReceiveData& inData,
                             int& ioEffect);

 protected:
  UI_DragDropHandler() = default;
  UI_DragDropHandler(const UI_DragDropHandler&) = default;
  UI_DragDropHandler& operator=(const UI_DragDropHandler&) = default;
};

}  // namespace lumui::ui
