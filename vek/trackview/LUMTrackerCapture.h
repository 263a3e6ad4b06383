// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/InputCapture.h"
#include "lumui/ui/PointerEvent.h"
#include "vek/trackview/Types.h"

namespace vek::trackview {

class LUMPlatformView;

// Follows the pointer for a platform view from a press to the release of the left or right button.
// Whatever ends it, its end is the end of the gesture, where the pointer was seen last.
class LUMTrackerCapture : public lumui::ui::InputCapture {
 public:
  LUMTrackerCapture(LUMPlatformView& inView, const lumui::ui::MouseEvent& inPress,
                    bool inRouteRightButton);
  ~LUMTrackerCapture() override;

  void DoEnd() override;
  bool DoMouseEvent(const lumui::ui::MouseEvent& inEvent) override;

 private:
  bool Release(const lumui::ui::MouseEvent& inEvent);

  LUMPlatformView* const mView;  // held by the base
  lumui::ui::MouseEvent mLastEvent;
  const Point mPressPosition;  // local
  [[maybe_unused]] const bool mRouteRightButton;
  [[maybe_unused]] const bool mRightButtonPending;
};

}  // namespace vek::trackview
