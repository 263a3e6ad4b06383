// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumui/drawbot/Color.h"

namespace outliner::palette {

using lumui::drawbot::ColorRGBA;

constexpr ColorRGBA FromBytes(int inRed, int inGreen, int inBlue) {
  return ColorRGBA(static_cast<float>(inRed) / 255, static_cast<float>(inGreen) / 255,
                   static_cast<float>(inBlue) / 255);
}

// Paper and ink, with one accent.
constexpr ColorRGBA kPaper = FromBytes(253, 252, 249);
constexpr ColorRGBA kStrip = FromBytes(244, 241, 234);
constexpr ColorRGBA kLine = FromBytes(226, 221, 210);
constexpr ColorRGBA kGuide = FromBytes(235, 231, 222);
constexpr ColorRGBA kInk = FromBytes(43, 47, 54);
constexpr ColorRGBA kFaintInk = FromBytes(140, 142, 146);
constexpr ColorRGBA kAccent = FromBytes(46, 110, 150);
constexpr ColorRGBA kLeafBullet = FromBytes(176, 178, 178);
constexpr ColorRGBA kSelection = FromBytes(215, 230, 240);
constexpr ColorRGBA kIdleSelection = FromBytes(233, 232, 226);
constexpr ColorRGBA kEditField = FromBytes(255, 255, 255);

}  // namespace outliner::palette
