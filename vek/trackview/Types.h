// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/geom/Point.h"
#include "lumcore/geom/Rect.h"
#include "lumcore/utility/Flags.h"

namespace vek::trackview {

// Positions are in one of three spaces. Data: the units of the content, in which overlays and
// trackers work. Local: the content as it is drawn inside the scrolled surface, so behind scale,
// factor and centring; the platform delivers the pointer in it. Global: the top-level window.
using Point = lumcore::geom::PointT<float>;
using Rect = lumcore::geom::RectT<float>;
// The modifier keys of lumui/ui/ModifierKeys.h.
using Modifiers = lumcore::utility::Flags<unsigned char>;

}  // namespace vek::trackview
