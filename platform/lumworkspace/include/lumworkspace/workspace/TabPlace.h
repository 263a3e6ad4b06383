// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/geom/Rect.h"

namespace lumworkspace::workspace {

enum DockArea : int {
  kDockLeft = 0,
  kDockRight = 1,
  kDockTop = 2,
  kDockBottom = 3,
};
constexpr int kDockAreaCount = 4;

// Where a tab is to stand.
struct TabPlace {
  enum Where {
    kInArea,   // at the outer end of the area's row or column, as a group of its own
    kTabWith,  // behind the last tab of the group of besideType
    kLeftOf,   // as a group of its own, at that side of the group of besideType
    kRightOf,
    kAbove,
    kBelow,
    kFloating,  // in a window of its own
  };

  Where where = kInArea;
  DockArea area = kDockRight;      // also where besideType stands nowhere
  lumcore::UTF8String besideType;  // a tab type
  int size = 0;                    // how far it reaches in; 0 for what the platform finds good
  lumcore::geom::RectT<int> floatingRect;  // on the screen, without the frame
};

}  // namespace lumworkspace::workspace
