// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"

namespace lumui::ui {

// The cursors that tracked views ask for, by their numbers.
enum CursorID : int {
  kCursorDefault = 0,
  kCursorBusy = 2,
  kCursorColumnResize = 10,
  kCursorColumnMove = 13,
  kCursorColumnEdge = 15,  // over what would be dragged
};

// Over our windows until the next move of the pointer asks anew. Another number is the default
// cursor; without an application nothing happens.
LUMUI_API void SetCursorByID(int inCursor);

// While one lives, the cursor is the busy one over all our windows, whatever is asked for
// meanwhile. They nest. For work that keeps the loop from running.
class LUMUI_API StBusyCursor {
 public:
  StBusyCursor();
  ~StBusyCursor();
  StBusyCursor(const StBusyCursor&) = delete;
  StBusyCursor& operator=(const StBusyCursor&) = delete;

 private:
  const bool mIsShown;  // not without an application
};

}  // namespace lumui::ui
