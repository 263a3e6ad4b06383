// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/drawbot/Path.h"

namespace lumui {

// The outline of marquees and drop marks: one closed figure. See Path::AddRoundedRect for radii
// that are too large for the rectangle.
inline drawbot::Path GetRoundedRectPath(const drawbot::Path::Rect& inRect, float inRadius) {
  drawbot::Path path;
  path.AddRoundedRect(inRect, inRadius);
  return path;
}

}  // namespace lumui
