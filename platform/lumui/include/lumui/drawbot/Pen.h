// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <utility>
#include <vector>

#include "lumui/drawbot/Color.h"

namespace lumui::drawbot {

// How an outline is stroked: a value that callers copy. The stroke lies with its middle on the
// outline, so a line of width 1 is crisp at coordinates that end in .5. Ends are flat, corners
// mitred. Widths and dashes are in the drawbot's units and scale with it.
struct Pen {
  ColorRGBA color;
  float width = 1.0f;
  // The lengths of dash, gap, dash, ...; empty for a solid line. An odd count is run through twice.
  std::vector<float> dashes;

  Pen() = default;
  explicit Pen(const ColorRGBA& inColor, float inWidth = 1.0f) : color(inColor), width(inWidth) {}
  Pen(const ColorRGBA& inColor, float inWidth, std::vector<float> inDashes)
      : color(inColor), width(inWidth), dashes(std::move(inDashes)) {}
};

}  // namespace lumui::drawbot
