// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/ui/PointerEvent.h"
#include "lumui/ui/UI_NodeManager.h"
#include "vek/sharedui/PanOverlay.h"
#include "vek/sharedui/ZoomOverlay.h"
#include "vek/trackview/LUMPlatformView.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

// The tools of a map that lie over it while they are chosen; without one the map itself selects.
enum class MapTool { kSelect, kHand, kZoom };

// Right presses are for the menu that their release opens, so no gesture begins with them.
inline bool IsLeftPress(const vek::trackview::TrackView& inTrackView) {
  const auto& view =
      static_cast<const vek::trackview::LUMPlatformView&>(inTrackView.GetPlatformView());
  const lumui::ui::MouseEvent* const event = view.GetCurrentMouseEvent();
  return event && event->IsButton(lumui::ui::PointerEvent::kLeftButton);
}

// One of the framework's tools, with a cursor that tells of it.
template <class Base>
class MapToolOverlay final : public Base {
 public:
  using CursorShape = lumui::ui::CursorShape;

  MapToolOverlay(vek::trackview::TrackView* inTrackView, vek::trackview::Overlay::LayerType inLayer,
                 CursorShape inHovering, CursorShape inPressed)
      : Base(inTrackView, inLayer, vek::trackview::Overlay::kStateActive),
        mMap(inTrackView),
        mHovering(inHovering),
        mPressed(inPressed) {}

  // Drags of files and text are for the map.
  std::auto_ptr<vek::trackview::Tracker> DoAcquireTracker(
      const vek::trackview::Point& inDataPoint, bool inHover,
      vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) override {
    if (inDragAndDrop || (!inHover && !IsLeftPress(*mMap))) {
      return std::auto_ptr<vek::trackview::Tracker>();
    }
    lumui::ui::UI_NodeManager::Get(true)->SetCursor(inHover ? mHovering : mPressed);
    return Base::DoAcquireTracker(inDataPoint, inHover, inDragAndDrop);
  }

 private:
  vek::trackview::TrackView* const mMap;
  const CursorShape mHovering;
  const CursorShape mPressed;
};

using MapHand = MapToolOverlay<vek::sharedui::PanOverlay>;
using MapZoom = MapToolOverlay<vek::sharedui::ZoomOverlay>;

}  // namespace outliner
