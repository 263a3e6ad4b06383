// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/Export.h"
#include "lumui/drawbot/Path.h"

namespace lumui::drawbot {
class Drawbot;
}

namespace lumui {

// The outline of marquees and drop marks: one closed figure. See Path::AddRoundedRect for radii
// that are too large for the rectangle.
inline drawbot::Path GetRoundedRectPath(const drawbot::Path::Rect& inRect, float inRadius) {
  drawbot::Path path;
  path.AddRoundedRect(inRect, inRadius);
  return path;
}

// The shade that the frame of a list throws on its content, along the top and the left edge inside
// of the rectangle. In the theme's colour; without a theme it is black.
LUMUI_API void DrawListBoxShadow(const drawbot::Path::Rect& inRect, drawbot::Drawbot& inDrawbot);

}  // namespace lumui
