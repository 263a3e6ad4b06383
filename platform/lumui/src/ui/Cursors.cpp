// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumui/ui/Cursors.h"

#include "lumui/ui/UI_NodeManager.h"

namespace lumui::ui {

namespace {

CursorShape ShapeOf(int inCursor) {
  switch (inCursor) {
    case kCursorBusy:
      return CursorShape::kWait;
    case kCursorColumnResize:
    case kCursorColumnEdge:
      return CursorShape::kResizeHorizontal;
    case kCursorColumnMove:
      return CursorShape::kClosedHand;
    default:
      return CursorShape::kArrow;
  }
}

}  // namespace

void SetCursorByID(int inCursor) {
  if (UI_NodeManager* const manager = UI_NodeManager::Get(false))
    manager->SetCursor(ShapeOf(inCursor));
}

}  // namespace lumui::ui
