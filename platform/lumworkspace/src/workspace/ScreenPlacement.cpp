// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "workspace/ScreenPlacement.h"

#include <QGuiApplication>
#include <QScreen>
#include <algorithm>

namespace lumworkspace::workspace {

namespace {

using Rect = lumcore::geom::RectT<int>;

// About a title bar's height and the width of what a pointer can grab.
constexpr int kHandleHeight = 24;
constexpr int kHandleWidth = 100;

Rect AvailableArea(const QScreen& inScreen) {
  const QRect area = inScreen.availableGeometry();
  return Rect(area.x(), area.y(), area.width(), area.height());
}

bool CanBeGrabbed(const Rect& inWindow, const Rect& inScreen) {
  const Rect handle(inWindow.x, inWindow.y, inWindow.width,
                    std::min(kHandleHeight, inWindow.height));
  const Rect seen = handle.Intersection(inScreen);
  return seen.width >= std::min(kHandleWidth, inWindow.width) && seen.height == handle.height;
}

// 0 where the two meet, else the sum of the gaps on both axes.
int Distance(const Rect& inWindow, const Rect& inScreen) {
  const int across = std::max({0, inScreen.x - inWindow.Right(), inWindow.x - inScreen.Right()});
  const int down = std::max({0, inScreen.y - inWindow.Bottom(), inWindow.y - inScreen.Bottom()});
  return across + down;
}

Rect MoveInto(Rect inWindow, const Rect& inScreen) {
  inWindow.width = std::min(inWindow.width, inScreen.width);
  inWindow.height = std::min(inWindow.height, inScreen.height);
  inWindow.x = std::clamp(inWindow.x, inScreen.x, inScreen.Right() - inWindow.width);
  inWindow.y = std::clamp(inWindow.y, inScreen.y, inScreen.Bottom() - inWindow.height);
  return inWindow;
}

}  // namespace

Rect PlaceOnPresentScreen(const Rect& inRect) {
  const auto screens = QGuiApplication::screens();
  if (screens.isEmpty()) return inRect;
  Rect nearest = AvailableArea(*screens.front());
  for (const QScreen* screen : screens) {
    const Rect area = AvailableArea(*screen);
    if (CanBeGrabbed(inRect, area)) return inRect;
    if (Distance(inRect, area) < Distance(inRect, nearest)) nearest = area;
  }
  return MoveInto(inRect, nearest);
}

}  // namespace lumworkspace::workspace
