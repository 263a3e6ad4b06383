// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MapLook.h"

#include <algorithm>

#include "Palette.h"

namespace outliner::maplook {

using lumui::drawbot::ColorRGBA;

namespace {

ColorRGBA Mixed(const ColorRGBA& inGround, const ColorRGBA& inColor, float inShare) {
  const auto mix = [inShare](float inA, float inB) { return inA + (inB - inA) * inShare; };
  return ColorRGBA(mix(inGround.red, inColor.red), mix(inGround.green, inColor.green),
                   mix(inGround.blue, inColor.blue));
}

}  // namespace

std::size_t LevelOf(std::size_t inDepth) {
  return std::min(inDepth, kLevels - 1);
}

ColorRGBA FillOf(std::size_t inLevel) {
  switch (inLevel) {
    case 0:
      return palette::Selection();
    case 1:
      return Mixed(palette::Paper(), palette::Accent(), 0.3f);
    case 2:
      return Mixed(palette::Paper(), palette::Accent(), 0.14f);
    default:
      return Mixed(palette::Paper(), palette::Ink(), 0.07f);
  }
}

ColorRGBA LineColorOf(std::size_t inLevel) {
  constexpr float kShares[kLevels] = {0.75f, 0.5f, 0.32f, 0.32f};
  return Mixed(palette::Paper(), palette::Accent(), kShares[inLevel]);
}

ColorRGBA SpeckColorOf(std::size_t inLevel) {
  return Mixed(palette::Paper(), LineColorOf(inLevel), 0.8f);
}

}  // namespace outliner::maplook
