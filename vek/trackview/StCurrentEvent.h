// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/utility/ScopedValue.h"
#include "lumui/ui/PointerEvent.h"
#include "vek/trackview/LUMPlatformView.h"

namespace vek::trackview {

// Tells the view which event is being handled, and on every way out which one was before: events
// nest where a handler opens a loop of its own.
class LUMPlatformView::StCurrentEvent {
 public:
  StCurrentEvent(LUMPlatformView& ioView, const lumui::ui::MouseEvent& inEvent)
      : mMouseEvent(ioView.mCurrentMouseEvent, &inEvent),
        mOSEvent(ioView.mCurrentOSEvent, inEvent.GetOSEvent()) {}

 private:
  lumcore::utility::StScopedValue<const lumui::ui::MouseEvent*> mMouseEvent;
  lumcore::utility::StScopedValue<const lumui::ui::OS_Event*> mOSEvent;
};

}  // namespace vek::trackview
