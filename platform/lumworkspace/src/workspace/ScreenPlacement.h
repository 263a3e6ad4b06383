// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Rect.h"

namespace lumworkspace::workspace {

// The rectangle itself where enough of its upper edge lies on a present screen to take hold of it;
// else the nearest place on the nearest screen, cut to that screen's size.
lumcore::geom::RectT<int> PlaceOnPresentScreen(const lumcore::geom::RectT<int>& inRect);

}  // namespace lumworkspace::workspace
