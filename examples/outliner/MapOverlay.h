// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>

#include "MapScene.h"
#include "OutlineRow.h"
#include "lumcore/geom/Point.h"
#include "vek/trackview/Overlay.h"
#include "vek/trackview/TrackView.h"

namespace vek::sharedui {
class MarqeeOverlay;
}

namespace outliner {

// The layers of a map: events go down this list, and drawing goes up.
namespace maplayers {
constexpr auto kTool = vek::trackview::Overlay::LayerType(1);
constexpr auto kBand = vek::trackview::Overlay::LayerType(2);
constexpr auto kMap = vek::trackview::Overlay::LayerType(3);
}  // namespace maplayers

// The map itself as an overlay: it draws the scene, and is the select tool, since it gets what the
// tools before it leave. A press on a box selects, a drag from there moves the selected branches; a
// drag from beside the boxes is a rubber band.
class MapOverlay final : public vek::trackview::Overlay {
 public:
  using Point = vek::trackview::Point;
  using Modifiers = vek::trackview::Modifiers;

  struct Functions {
    std::function<void()> goToRow;  // to the selected row in the outline
    std::function<void(const Point& inLocalPoint)> openRowMenu;
  };

  // The rubber band is an overlay of the same track view, which outlives both.
  MapOverlay(vek::trackview::TrackView& inTrackView, vek::sharedui::MarqeeOverlay& inBand,
             Functions inFunctions);
  ~MapOverlay() override;

  MapScene& GetScene() { return mScene; }

  void DoImageRect(const vek::trackview::Rect& inDataRect, lumui::drawbot::Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme> inTheme) const override;
  bool DoDoubleClick(Modifiers inModifiers, const Point& inDataPoint) override;
  bool DoContextMenu(const Point& inLocalPoint, lumui::ui::UI_Node& inNode) override;
  std::auto_ptr<vek::trackview::Tracker> DoAcquireTracker(
      const Point& inDataPoint, bool inHover,
      vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) override;
  bool DoWantsDragDropEvents() const override;
  // Escape gives up the gesture that runs; the arrows go from box to box.
  bool DoKeyEvent(const lumui::ui::KeyboardEvent& inEvent) override;

  // For its trackers.

  // As in the outline: Shift from the last row so selected, Ctrl more or less of one.
  void SelectWithPointer(OutlineRow& inRow, Modifiers inModifiers);
  // A gesture that was given up does nothing more, and looks as if it had ended.
  void BeginGesture() { mIsGivenUp = false; }
  void GiveUpGesture();
  bool IsGivenUp() const { return mIsGivenUp; }
  void ShowBand(const vek::trackview::Rect& inDataRect);  // empty for none
  vek::trackview::TrackView& GetTrackView() { return mTrackView; }

 private:
  bool StepSideways(bool inToChild);
  void InvalidateBand();

  vek::trackview::TrackView& mTrackView;
  vek::sharedui::MarqeeOverlay& mBand;
  vek::trackview::Rect mBandRect;
  Functions mFunctions;
  MapScene mScene;
  OutlineRow::Id mAnchor = 0;
  bool mIsGivenUp = false;
};

}  // namespace outliner
