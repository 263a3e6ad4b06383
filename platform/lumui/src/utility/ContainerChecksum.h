// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

namespace lumui::utility {

// FNV-1a. It tells a container that was damaged after the build; it is no protection from malice.
inline std::uint64_t ContainerChecksum(const unsigned char* inBytes, std::size_t inSize) {
  std::uint64_t sum = 0xcbf29ce484222325u;
  for (std::size_t i = 0; i < inSize; ++i)
    sum = (sum ^ inBytes[i]) * 0x100000001b3u;
  return sum;
}

}  // namespace lumui::utility
