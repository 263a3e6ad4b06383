// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapView.h"

#include <utility>

#include "vek/trackview/TrackView.h"

namespace outliner {

MapView::MapView(Functions inFunctions) : mFunctions(std::move(inFunctions)) {}

MapView::~MapView() = default;

bool MapView::UI_DoMouseWheel(lumui::ui::UI_Node*, const lumui::ui::WheelEvent& inEvent) {
  if (!inEvent.GetModKey().Has(lumui::ui::kModCommand) || !mFunctions.zoomAt) return false;
  Point point = inEvent.GetPosition();
  GetTrackView()->LocalToData(point);
  mFunctions.zoomAt(-inEvent.GetNotches().y, point);
  return true;
}

void MapView::UI_FocusChanged(int inReason) {
  LUMPlatformView::UI_FocusChanged(inReason);
  if (mFunctions.focusChanged) mFunctions.focusChanged();
}

void MapView::UI_SetLocalRectF(const vek::trackview::Rect& inRect) {
  LUMPlatformView::UI_SetLocalRectF(inRect);
  if (mFunctions.resized) mFunctions.resized();
}

}  // namespace outliner
