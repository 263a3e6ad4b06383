// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/OSTypes.h"

namespace lumui::ui {

// One message to a top-level window, as the event gate passes it on. Whoever handles the message
// writes its answer into result.
//
// For kMessageClose and kMessageQueryEndSession the result is a permission: it starts as 1, and a
// handler that leaves 0 there refuses (or has done by itself what it wants done about it). For
// every other message it starts as 0 and nobody but the sender reads it.
struct OS_Event {
  OS_Event() = default;
  OS_Event(HWND inWindow, unsigned inMessage, WPARAM inWParam, LPARAM inLParam)
      : window(inWindow),
        message(inMessage),
        wParam(inWParam),
        lParam(inLParam),
        result(inMessage == kMessageClose || inMessage == kMessageQueryEndSession) {}

  HWND window = nullptr;  // null for what is addressed to no window
  unsigned message = 0;
  WPARAM wParam = 0;
  LPARAM lParam = 0;
  LRESULT result = 0;
};

// What a top-level window hands its messages to. Borrowed; plain, so that it may outlive
// everything.
using OSEventFunction = void (*)(OS_Event*);

}  // namespace lumui::ui
