// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

namespace lumui::drawbot {

// A colour, not premultiplied: each part from 0 to 1. Values outside are cut off when drawing.
struct ColorRGBA {
  float red = 0.0f;
  float green = 0.0f;
  float blue = 0.0f;
  float alpha = 1.0f;

  constexpr ColorRGBA() = default;
  constexpr ColorRGBA(float inRed, float inGreen, float inBlue, float inAlpha = 1.0f)
      : red(inRed), green(inGreen), blue(inBlue), alpha(inAlpha) {}

  constexpr ColorRGBA WithAlpha(float inAlpha) const {
    return ColorRGBA(red, green, blue, inAlpha);
  }

  friend constexpr bool operator==(const ColorRGBA& inA, const ColorRGBA& inB) {
    return inA.red == inB.red && inA.green == inB.green && inA.blue == inB.blue &&
           inA.alpha == inB.alpha;
  }
  friend constexpr bool operator!=(const ColorRGBA& inA, const ColorRGBA& inB) {
    return !(inA == inB);
  }
};

}  // namespace lumui::drawbot
