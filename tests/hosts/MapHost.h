// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "hosts/OutlineText.h"
#include "hosts/RunningOutliner.h"
#include "outliner/MapPane.h"
#include "vek/trackview/TrackView.h"

namespace tests {

// The outliner with the map in front and the keyboard in it.
class MapHost : public RunningOutliner {
 public:
  using Position = lumui::testing::Position;
  using Point = vek::trackview::Point;
  using Rect = vek::trackview::Rect;

  explicit MapHost(const std::string& inOutline) : RunningOutliner(inOutline) {
    GetWindow().UI_SetSize(1800, 1100);
    Keys("Ctrl+4");
  }

  outliner::MapPane& Map() { return *GetApp().FindMap(); }
  vek::trackview::TrackView& Track() { return Map().GetTrackView(); }
  const outliner::MapLayout& Layout() { return Map().GetScene().GetLayout(); }
  Rect Box(const std::string& inText) {
    const auto* const row = FindRow(GetDocument(), inText);
    return Layout().GetBox(row ? Layout().FindRow(row->GetId()) : outliner::MapLayout::kRoot);
  }
  // A point of the map, in the window.
  Position Place(Point inDataPoint) {
    Track().DataToLocal(inDataPoint);
    const Point origin = Track().LocalArea().Origin();
    return PlaceIn("map", inDataPoint.x - origin.x, inDataPoint.y - origin.y);
  }
  Position Of(const std::string& inText) {
    const Rect box = Box(inText);
    return Place(Point(box.x + box.width / 2, box.y + box.height / 2));
  }
  void ClickOn(const std::string& inText, unsigned char inModifiers = 0) {
    lumui::testing::ClickMouse(GetWindow(), Of(inText), lumui::ui::PointerEvent::kLeftButton,
                               lumui::ui::ModifierKeys(inModifiers));
    lumui::testing::ProcessEvents();
  }
  void Drag(const Position& inFrom, const Position& inTo, unsigned char inModifiers = 0,
            const std::string& inKeysBefore = "") {
    using lumui::ui::PointerEvent;
    const lumui::ui::ModifierKeys keys(inModifiers);
    const Position between((inFrom.x + inTo.x) / 2, (inFrom.y + inTo.y) / 2);
    lumui::testing::PressMouse(GetWindow(), inFrom, PointerEvent::kLeftButton, keys);
    lumui::testing::MoveMouse(GetWindow(), between, keys);
    lumui::testing::MoveMouse(GetWindow(), inTo, keys);
    Keys(inKeysBefore);
    lumui::testing::ReleaseMouse(GetWindow(), inTo, PointerEvent::kLeftButton, keys);
    lumui::testing::ProcessEvents();
  }
  bool IsInView(const std::string& inText) {
    const Rect box = Box(inText);
    return Track().DataArea().Intersection(box) == box;
  }
};

}  // namespace tests
