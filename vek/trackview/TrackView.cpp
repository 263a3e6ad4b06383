// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/trackview/TrackView.h"

#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackViewRecord.h"

namespace vek::trackview {

namespace {

const Point kNoAnchor(-1, -1);

// The position along one axis at which an extent is in view, the near edge first.
float Revealed(float inPosition, float inViewed, float inStart, float inSize) {
  if (inPosition > inStart) return inStart;
  if (inStart + inSize > inPosition + inViewed) return inStart + inSize - inViewed;
  return inPosition;
}

}  // namespace

TrackView::TrackView(PlatformView& inPlatformView, bool inCentering, float inScaleMin,
                     float inScaleMax)
    : mRecord(new Record(inPlatformView, inCentering, inScaleMin, inScaleMax)) {}

TrackView::~TrackView() {
  // While the record is whole: what an overlay still asks in its destructor is answered.
  mRecord->overlays.DeleteAll();
  delete mRecord;
}

// Computed on each use; an inverse that was kept would round differently.
Point TrackView::GetMultiplier() const {
  return Point(mRecord->coordFactor.x * mRecord->coordScale,
               mRecord->coordFactor.y * mRecord->coordScale);
}

void TrackView::DataToLocal(Point& ioPoint) const {
  const Point multiplier = GetMultiplier();
  ioPoint.x = ioPoint.x * multiplier.x + mRecord->coordOffset.x;
  ioPoint.y = ioPoint.y * multiplier.y + mRecord->coordOffset.y;
}

void TrackView::DataToLocal(Rect& ioRect) const {
  const Point multiplier = GetMultiplier();
  Point origin = ioRect.Origin();
  DataToLocal(origin);
  ioRect = Rect(origin.x, origin.y, ioRect.width * multiplier.x, ioRect.height * multiplier.y);
}

void TrackView::LocalToData(Point& ioPoint) const {
  const Point multiplier = GetMultiplier();
  ioPoint.x = (ioPoint.x - mRecord->coordOffset.x) / multiplier.x;
  ioPoint.y = (ioPoint.y - mRecord->coordOffset.y) / multiplier.y;
}

void TrackView::LocalToData(Rect& ioRect) const {
  const Point multiplier = GetMultiplier();
  Point origin = ioRect.Origin();
  LocalToData(origin);
  ioRect = Rect(origin.x, origin.y, ioRect.width / multiplier.x, ioRect.height / multiplier.y);
}

void TrackView::DataToGlobal(Point& ioPoint) const {
  DataToLocal(ioPoint);
  mRecord->platformView->LocalToGlobal(ioPoint);
}

const Point& TrackView::DataSize() const {
  return mRecord->dataSize;
}

Rect TrackView::DataArea() const {
  const Point position = mRecord->platformView->DataPos();
  const Point size = mRecord->platformView->DataSize();
  return Rect(position.x, position.y, size.x, size.y);
}

Rect TrackView::LocalArea() const {
  Rect area = DataArea();
  DataToLocal(area);
  return area;
}

Point TrackView::LocalSize() const {
  Point size = mRecord->dataSize;
  DataToLocal(size);
  return size;
}

const Point& TrackView::GetCoordOffset() const {
  return mRecord->coordOffset;
}

const Point& TrackView::GetCoordFactor() const {
  return mRecord->coordFactor;
}

float TrackView::GetCoordScale() const {
  return mRecord->coordScale;
}

float TrackView::CoordinateScaleMin() const {
  return mRecord->scaleMin;
}

float TrackView::CoordinateScaleMax() const {
  return mRecord->scaleMax;
}

void TrackView::CalculateCoordOffset(Point& outOffset) const {
  outOffset = Point();
  if (!mRecord->centering) return;
  const Point view = mRecord->platformView->DataSize();
  const Point size = mRecord->dataSize;
  const float spareX = view.x > size.x ? (view.x - size.x) * 0.5f : 0;
  const float spareY = view.y > size.y ? (view.y - size.y) * 0.5f : 0;
  outOffset = Point(spareX * mRecord->coordScale * mRecord->coordFactor.x,
                    spareY * mRecord->coordScale * mRecord->coordFactor.y);
}

void TrackView::MappingChanged(bool inRedraw) {
  CalculateCoordOffset(mRecord->coordOffset);
  mRecord->platformView->DisplayResized(inRedraw);
}

void TrackView::ResizeDataSize(const Point& inSize, bool inRedraw) {
  mRecord->dataSize = inSize;
  MappingChanged(inRedraw);
}

void TrackView::SetCentering(bool inCentering) {
  if (inCentering == mRecord->centering) return;
  mRecord->centering = inCentering;
  MappingChanged(true);
}

void TrackView::SetCoordScaleRange(float inMin, float inMax) {
  mRecord->scaleMin = inMin;
  mRecord->scaleMax = inMax;
}

// The comparisons let a scale pass that is not a number.
void TrackView::SetCoordScale(float inScale, bool inRedraw, const Point& inAnchor) {
  const float below = inScale > mRecord->scaleMax ? mRecord->scaleMax : inScale;
  const float scale = mRecord->scaleMin > below ? mRecord->scaleMin : below;
  if (scale == mRecord->coordScale) return;
  mRecord->coordScale = scale;
  MappingChanged(inRedraw);
  CenterOn(inAnchor);
}

void TrackView::SetCoordFactor(const Point& inFactor, bool inRedraw, const Point& inAnchor) {
  if (inFactor == mRecord->coordFactor) return;
  mRecord->coordFactor = inFactor;
  MappingChanged(inRedraw);
  CenterOn(inAnchor);
}

void TrackView::CenterOn(const Point& inAnchor) {
  if (inAnchor == kNoAnchor) return;
  PlatformView& view = *mRecord->platformView;
  const Point size = view.DataSize();
  view.DataPos(Point(inAnchor.x - size.x * 0.5f, inAnchor.y - size.y * 0.5f), false);
  view.InvalidateDataRect(DataArea());
}

bool TrackView::RevealPointIfNotInView(const Point& inDataPoint, bool inScrollFlag) {
  const Rect area = DataArea();
  if (area.Contains(inDataPoint)) return false;
  Point position = area.Origin();
  if (inDataPoint.x > area.Right()) position.x += inDataPoint.x - area.Right();
  if (inDataPoint.y > area.Bottom()) position.y += inDataPoint.y - area.Bottom();
  if (area.x > inDataPoint.x) position.x += inDataPoint.x - area.x;
  if (area.y > inDataPoint.y) position.y += inDataPoint.y - area.y;
  mRecord->platformView->DataPos(position, inScrollFlag);
  return true;
}

bool TrackView::RevealRectIfNotInView(const Rect& inDataRect, bool inScrollFlag) {
  const Rect area = DataArea();
  // An end exactly at the far edge is out of view.
  if (!area.IsEmpty() && inDataRect.x >= area.x && inDataRect.y >= area.y &&
      area.Right() > inDataRect.Right() && area.Bottom() > inDataRect.Bottom()) {
    return false;
  }
  const Point position(Revealed(area.x, area.width, inDataRect.x, inDataRect.width),
                       Revealed(area.y, area.height, inDataRect.y, inDataRect.height));
  mRecord->platformView->DataPos(position, inScrollFlag);
  return true;
}

PlatformView& TrackView::GetPlatformView() const {
  return *mRecord->platformView;
}

messaging::Broadcaster<TrackerChangeMessage>* TrackView::GetTrackerBroadcaster() {
  return &mRecord->trackerBroadcaster;
}

}  // namespace vek::trackview
