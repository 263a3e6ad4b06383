// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapStamps.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <initializer_list>

#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/Path.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/drawbot/Surface.h"

namespace outliner {

using lumui::drawbot::Path;
using Point = lumcore::geom::PointT<float>;

namespace {

constexpr float kRound = 0.5523f;  // where the handles of a curve make it a quarter of a circle
// Pixels. A picture that is higher or wider fills more memory than it is worth: there are few of
// them on a screen.
constexpr float kLargestStamp = 96;
// Pixels, of 4 bytes. The pictures of ten or more scales.
constexpr double kMostPixels = 512 * 1024;

// With parts of pixels in a unit, a node may begin between two pixels of the screen.
bool MayStamp(const lumui::drawbot::Drawbot& inDrawbot, float inWidth, float inHeight) {
  const float scale = inDrawbot.GetScale();
  return scale == std::floor(scale) && std::max(inWidth, inHeight) <= kLargestStamp;
}

// Between the two circles of a line around the corner of its place that has no line at it.
Path RingOf(const MapStamps::Rect& inPlace, float inWidth, bool inUprightAtLeft,
            bool inLevelAtTop) {
  const Point centre(inUprightAtLeft ? inPlace.Right() : inPlace.x,
                     inLevelAtTop ? inPlace.Bottom() : inPlace.y);
  const float towardX = inUprightAtLeft ? -1.0f : 1.0f;
  const float towardY = inLevelAtTop ? -1.0f : 1.0f;
  Path path;
  for (const float inset : {0.0f, inWidth}) {
    const Point radius(towardX * (inPlace.width - inset), towardY * (inPlace.height - inset));
    const Point upright(centre.x + radius.x, centre.y);
    const Point level(centre.x, centre.y + radius.y);
    const Point uprightHandle(upright.x, upright.y + kRound * radius.y);
    const Point levelHandle(level.x + kRound * radius.x, level.y);
    if (inset == 0) {
      path.MoveTo(upright);
      path.BezierTo(uprightHandle, levelHandle, level);
    } else {
      path.LineTo(level);
      path.BezierTo(levelHandle, uprightHandle, upright);
    }
  }
  path.Close();
  return path;
}

void StrokeCurve(lumui::drawbot::Drawbot& inDrawbot, const MapStamps::Rect& inPlace, float inWidth,
                 bool inGoesDown, const lumui::drawbot::ColorRGBA& inColor) {
  const float middle = inPlace.x + inPlace.width / 2;
  const float top = inPlace.y + inWidth / 2;
  const float bottom = inPlace.Bottom() - inWidth / 2;
  const float start = inGoesDown ? top : bottom;
  const float end = inGoesDown ? bottom : top;
  Path path;
  path.MoveTo({inPlace.x, start});
  path.BezierTo({middle, start}, {middle, end}, {inPlace.Right(), end});
  inDrawbot.StrokePath(path, lumui::drawbot::Pen(inColor, inWidth));
}

}  // namespace

bool MapStamps::Key::operator==(const Key& inOther) const {
  return kind == inOther.kind && isUprightAtLeft == inOther.isUprightAtLeft &&
         isLevelAtTop == inOther.isLevelAtTop && width == inOther.width &&
         height == inOther.height && detail == inOther.detail && color == inOther.color;
}

std::size_t MapStamps::Hash::operator()(const Key& inKey) const {
  auto hash = static_cast<std::size_t>(inKey.kind) * 4 + inKey.isUprightAtLeft * 2 +
              static_cast<std::size_t>(inKey.isLevelAtTop);
  for (const float part : {inKey.width, inKey.height, inKey.detail, inKey.color.red,
                           inKey.color.green, inKey.color.blue, inKey.color.alpha}) {
    hash = hash * 31 + std::hash<float>()(part);
  }
  return hash;
}

void MapStamps::DrawBox(Drawbot& inDrawbot, const Rect& inBox, float inRadius,
                        const ColorRGBA& inColor) {
  const float radius = std::min(inRadius, std::min(inBox.width, inBox.height) / 2);
  const float end = std::ceil(radius);
  const float unit = 1 / inDrawbot.GetScale();
  if (inBox.width < 2 * end || !MayStamp(inDrawbot, end, inBox.height)) {
    Path path;
    path.AddRoundedRect(
        Rect(inBox.x * unit, inBox.y * unit, inBox.width * unit, inBox.height * unit),
        radius * unit);
    return inDrawbot.FillPath(path, inColor);
  }
  inDrawbot.FillRect(Rect((inBox.x + end) * unit, inBox.y * unit, (inBox.width - 2 * end) * unit,
                          inBox.height * unit),
                     inColor);
  Key key{Kind::kLeftEnd, false, false, end, inBox.height, radius, inColor};
  Stamp(inDrawbot, key, inBox.x, inBox.y);
  key.kind = Kind::kRightEnd;
  Stamp(inDrawbot, key, inBox.Right() - end, inBox.y);
}

void MapStamps::DrawBend(Drawbot& inDrawbot, const Bend& inBend, const ColorRGBA& inColor) {
  const Rect& place = inBend.place;
  if (!MayStamp(inDrawbot, place.width, place.height)) {
    const float unit = 1 / inDrawbot.GetScale();
    return inDrawbot.FillPath(
        RingOf(Rect(place.x * unit, place.y * unit, place.width * unit, place.height * unit),
               inBend.width * unit, inBend.isUprightAtLeft, inBend.isLevelAtTop),
        inColor);
  }
  Stamp(inDrawbot,
        {Kind::kBend, inBend.isUprightAtLeft, inBend.isLevelAtTop, place.width, place.height,
         inBend.width, inColor},
        place.x, place.y);
}

void MapStamps::DrawCurve(Drawbot& inDrawbot, const Rect& inPlace, float inWidth, bool inGoesDown,
                          const ColorRGBA& inColor) {
  if (!MayStamp(inDrawbot, inPlace.width, inPlace.height)) {
    const float unit = 1 / inDrawbot.GetScale();
    return StrokeCurve(
        inDrawbot,
        Rect(inPlace.x * unit, inPlace.y * unit, inPlace.width * unit, inPlace.height * unit),
        inWidth * unit, inGoesDown, inColor);
  }
  Stamp(inDrawbot,
        {Kind::kCurve, false, inGoesDown, inPlace.width, inPlace.height, inWidth, inColor},
        inPlace.x, inPlace.y);
}

void MapStamps::Stamp(Drawbot& inDrawbot, const Key& inKey, float inX, float inY) {
  auto found = mImages.find(inKey);
  if (found == mImages.end()) {
    if (mPixels > kMostPixels) {
      mImages.clear();
      mPixels = 0;
    }
    const auto surface =
        lumui::drawbot::GetDefaultSupplier()->NewSurface(inKey.width, inKey.height);
    DrawShape(surface->GetDrawbot(), inKey);
    found = mImages.emplace(inKey, surface->MakeImage()).first;
    mPixels += static_cast<double>(inKey.width) * inKey.height;
  }
  const float unit = 1 / inDrawbot.GetScale();
  inDrawbot.DrawImage(*found->second,
                      Rect(inX * unit, inY * unit, inKey.width * unit, inKey.height * unit));
}

void MapStamps::DrawShape(Drawbot& inDrawbot, const Key& inKey) {
  const Rect place(0, 0, inKey.width, inKey.height);
  if (inKey.kind == Kind::kBend) {
    return inDrawbot.FillPath(
        RingOf(place, inKey.detail, inKey.isUprightAtLeft, inKey.isLevelAtTop), inKey.color);
  }
  if (inKey.kind == Kind::kCurve) {
    return StrokeCurve(inDrawbot, place, inKey.detail, inKey.isLevelAtTop, inKey.color);
  }
  // The other end lies outside of the picture.
  const float left = inKey.kind == Kind::kLeftEnd ? 0 : -inKey.width;
  Path path;
  path.AddRoundedRect(Rect(left, 0, 2 * inKey.width, inKey.height), inKey.detail);
  inDrawbot.FillPath(path, inKey.color);
}

}  // namespace outliner
