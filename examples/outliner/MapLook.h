// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "MapLayout.h"
#include "lumui/drawbot/Color.h"

// How the boxes and lines of a map look, by their level. Lengths are units of the map.
namespace outliner::maplook {

constexpr std::size_t kLevels = 4;  // that look different: the root and three more
constexpr float kTextSizes[kLevels] = {17, 14, 13, 13};
constexpr float kPadding = 12;  // beside the text
constexpr float kRootPadding = 20;
constexpr float kLeastWidth = 44;
constexpr float kMostWidth = 340;
constexpr float kRadius = 8;
constexpr float kRing = 2;  // the width of a mark around a box
constexpr float kLineWidth = 2;
// A line turns from level to upright and back on quarters of a circle of this radius.
constexpr float kBend = MapLayout::kColumnGap / 2;

std::size_t LevelOf(std::size_t inDepth);
lumui::drawbot::ColorRGBA FillOf(std::size_t inLevel);
// By the level that the line comes from.
lumui::drawbot::ColorRGBA LineColorOf(std::size_t inLevel);
// Of boxes and branches that are too small for pale colours.
lumui::drawbot::ColorRGBA SpeckColorOf(std::size_t inLevel);

}  // namespace outliner::maplook
