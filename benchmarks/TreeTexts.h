// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <cstdio>
#include <string>

namespace bench {

constexpr int kTreeWidth = 600;
constexpr int kTreeHeight = 800;

// The three cells of a row: in order, scattered, and one of a few. No cell begins as the last row's
// first one does, but that.
inline std::string TextOf(int inRow, int inColumn) {
  char text[32];
  const std::uint32_t scattered = static_cast<std::uint32_t>(inRow) * 2654435761U;
  if (inColumn == 0) std::snprintf(text, sizeof(text), "row %06d", inRow);
  if (inColumn == 1) std::snprintf(text, sizeof(text), "%010u", scattered);
  if (inColumn == 2) std::snprintf(text, sizeof(text), "kind %u", scattered % 7);
  return text;
}

}  // namespace bench
