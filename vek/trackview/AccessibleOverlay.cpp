// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/AccessibleOverlay.h"

#include "vek/trackview/LUMPlatformView.h"

namespace vek::trackview {

AccessibleOverlay::~AccessibleOverlay() = default;

AccessibleOverlay::ID AccessibleOverlay::GetAccessibleFocus() const {
  return kRoot;
}

bool AccessibleOverlay::PerformAccessible(ID, lumui::ui::AccessibleAction) {
  return false;
}

// Views that have no part in the window system have no readers.
void AccessibleOverlay::NotifyAccessible(const TrackView& inView,
                                         lumui::ui::AccessibleChange inChange, ID inItem) const {
  auto* const view = dynamic_cast<LUMPlatformView*>(&inView.GetPlatformView());
  if (!view) return;
  lumui::ui::AccessibleID item;
  if (inItem != kRoot) item = lumui::ui::AccessibleID{this, inItem};
  lumui::ui::NotifyAccessibleChange(*view, inChange, item);
}

}  // namespace vek::trackview
