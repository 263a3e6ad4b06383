// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumui/ui/PointerEvent.h"
#include "vek/trackview/LUMPlatformView.h"

namespace outliner {

// The view that a map is drawn in. With Ctrl the wheel zooms at the pointer; without it the scroll
// view around scrolls.
class MapView final : public vek::trackview::LUMPlatformView {
 public:
  using Point = vek::trackview::Point;

  struct Functions {
    std::function<void()> focusChanged;
    std::function<void(float inNotches, const Point& inDataPoint)> zoomAt;  // upward is positive
    std::function<void()> resized;
  };

  explicit MapView(Functions inFunctions);
  ~MapView() override;
  // The owner of the functions goes; the view may stay for the event that runs.
  void Detach() { mFunctions = Functions(); }

  bool UI_DoMouseWheel(lumui::ui::UI_Node* inNode, const lumui::ui::WheelEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;
  void UI_SetLocalRectF(const vek::trackview::Rect& inRect) override;

 private:
  Functions mFunctions;
};

}  // namespace outliner
