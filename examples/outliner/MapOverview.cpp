// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapOverview.h"

#include <algorithm>
#include <cmath>

#include "Palette.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"
#include "vek/trackview/Overlay.h"
#include "vek/trackview/TrackView.h"
#include "vek/trackview/Tracker.h"

namespace outliner {

using lumui::drawbot::Drawbot;
using vek::trackview::Point;
using vek::trackview::Rect;
using vek::trackview::Tracker;
using vek::trackview::TrackView;

namespace {

constexpr float kLeastFrame = 6;   // units of the overview; a smaller frame could not be seen
constexpr float kMostStretch = 1;  // small maps are not drawn larger than they are

class OverviewTracker final : public Tracker {
 public:
  OverviewTracker(TrackView& inOverview, TrackView& inMap)
      : Tracker(&inOverview, false, false), mMap(inMap) {}

  // Where the frame is gripped it stays under the pointer.
  void BeginTracking(vek::trackview::Modifiers, const Point& inDataPoint, bool inHover) override {
    if (inHover) return;
    const Rect area = mMap.DataArea();
    mGrip = area.Contains(inDataPoint) ? inDataPoint - area.Origin()
                                       : Point(area.width / 2, area.height / 2);
    Follow(inDataPoint);
  }
  void ContinueTracking(vek::trackview::Modifiers, const Point& inDataPoint) override {
    Follow(inDataPoint);
  }

 private:
  void Follow(const Point& inDataPoint) {
    mMap.GetPlatformView().DataPos(inDataPoint - mGrip, false);
  }

  TrackView& mMap;
  Point mGrip;
};

}  // namespace

// The data of the overview's own track view is the map's, so that points need no translation.
class MapOverviewOverlay final : public vek::trackview::Overlay {
 public:
  MapOverviewOverlay(TrackView& inOverview, const MapScene& inScene, TrackView& inMap)
      : Overlay(kLayerDefault, kStateActive),
        mOverview(inOverview),
        mScene(&inScene),
        mMap(&inMap) {}

  void Detach() {
    mScene = nullptr;
    mMap = nullptr;
    mPicture.reset();
  }
  void DropPicture() { mPicture.reset(); }

  std::auto_ptr<Tracker> DoAcquireTracker(
      const Point&, bool, vek::trackview::TrackerDragAndDropInterface* inDragAndDrop) override {
    if (inDragAndDrop || !mMap) return std::auto_ptr<Tracker>();
    return std::auto_ptr<Tracker>(new OverviewTracker(mOverview, *mMap));
  }

  void DoImageRect(const Rect&, Drawbot& inDrawbot,
                   boost::intrusive_ptr<lumui::ui::Theme>) const override {
    const Point end = mOverview.LocalSize();
    const Point size = mOverview.GetPlatformView().DataSize();
    Rect area(0, 0, size.x, size.y);
    mOverview.DataToLocal(area);
    area.x = area.y = 0;
    inDrawbot.FillRect(inDrawbot.GetClipBounds(), palette::Strip());
    if (mScene) {
      NeedPicture(inDrawbot.GetScale(), end);
      inDrawbot.DrawImage(*mPicture, Point());
      DrawFrame(inDrawbot, area);
    }
    inDrawbot.StrokeRect({0.5f, 0.5f, area.width - 1, area.height - 1},
                         lumui::drawbot::Pen(palette::Line()));
  }

 private:
  // Colours are the theme's of the moment, and the screen may have another scale now.
  void NeedPicture(float inScale, const Point& inSize) const {
    const auto ground = palette::Strip();
    const auto accent = palette::Accent();
    if (mPicture && inScale == mScale && ground == mGround && accent == mAccent) return;
    mScale = inScale;
    mGround = ground;
    mAccent = accent;
    const auto surface = lumui::drawbot::GetDefaultSupplier()->NewSurface(
        std::max(1.0f, inSize.x), std::max(1.0f, inSize.y), inScale);
    const Point& data = mOverview.DataSize();
    mScene->GetPainter().DrawFromFar(surface->GetDrawbot(), mScene->GetLayout(),
                                     Rect(0, 0, data.x, data.y), mOverview.GetCoordFactor());
    mPicture = surface->MakeImage();
  }

  void DrawFrame(Drawbot& inDrawbot, const Rect& inArea) const {
    Rect frame = mMap->DataArea();
    mOverview.DataToLocal(frame);
    const auto grown = [](float& ioStart, float& ioSize) {
      const float missing = std::max(0.0f, kLeastFrame - ioSize);
      ioStart -= missing / 2;
      ioSize += missing;
    };
    grown(frame.x, frame.width);
    grown(frame.y, frame.height);
    frame = frame.Intersection(Rect(1, 1, inArea.width - 2, inArea.height - 2));
    inDrawbot.FillRect(frame, palette::Accent().WithAlpha(0.14f));
    frame = Rect(std::round(frame.x) + 0.5f, std::round(frame.y) + 0.5f,
                 std::round(frame.width) - 1, std::round(frame.height) - 1);
    inDrawbot.StrokeRect(frame, lumui::drawbot::Pen(palette::Accent()));
  }

  TrackView& mOverview;
  const MapScene* mScene;
  TrackView* mMap;
  mutable boost::intrusive_ptr<lumui::drawbot::ImageInterface> mPicture;
  mutable float mScale = 0;
  mutable lumui::drawbot::ColorRGBA mGround;
  mutable lumui::drawbot::ColorRGBA mAccent;
};

MapOverview::MapOverview(const MapScene& inScene, TrackView& inMap) : mMap(&inMap) {
  std::auto_ptr<TrackView> trackView(new TrackView(*this, false, 1, 1));
  mOverlay = new MapOverviewOverlay(*trackView, inScene, inMap);
  std::auto_ptr<vek::trackview::Overlay> overlay(mOverlay);
  trackView->InstallOverlay(overlay, false);
  SetTrackView(trackView);
  UI_SetNodeID("overview");
  UI_SetOpaque(true);
  SetWantsKeyboardFocus(false);
}

MapOverview::~MapOverview() = default;

void MapOverview::Detach() {
  mOverlay->Detach();
  mMap = nullptr;
}

void MapOverview::MapChanged() {
  if (mMap) Fit();
}

void MapOverview::FrameChanged() {
  UI_InvalidateAll();
}

void MapOverview::UI_SetLocalRectF(const Rect& inRect) {
  const Rect& old = UI_GetLocalRectF();
  const bool isOfOtherSize = inRect.width != old.width || inRect.height != old.height;
  LUMPlatformView::UI_SetLocalRectF(inRect);
  if (mMap && isOfOtherSize) Fit();
}

void MapOverview::Fit() {
  const Point& map = mMap->DataSize();
  const Rect& area = UI_GetLocalRectF();
  const Point factor(std::min(kMostStretch, area.width / std::max(1.0f, map.x)),
                     std::min(kMostStretch, area.height / std::max(1.0f, map.y)));
  if (area.IsEmpty()) return;
  GetTrackView()->ResizeDataSize(map, true);
  GetTrackView()->SetCoordFactor(factor, true, Point(-1, -1));
  mOverlay->DropPicture();
  UI_InvalidateAll();
}

}  // namespace outliner
