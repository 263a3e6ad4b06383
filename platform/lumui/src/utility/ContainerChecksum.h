// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace lumui::utility {

// FNV-1a over words of eight bytes, as the machine has them, and over the bytes behind the last of
// them. A program sums up all its resources as it starts, and byte by byte that would take longer
// than to find any of them. It tells a container that was damaged after the build; it is no
// protection from malice.
inline std::uint64_t ContainerChecksum(const unsigned char* inBytes, std::size_t inSize) {
  constexpr std::uint64_t kPrime = 0x100000001b3u;
  std::uint64_t sum = 0xcbf29ce484222325u;
  const unsigned char* const end = inBytes + inSize;
  std::uint64_t word = 0;
  for (; static_cast<std::size_t>(end - inBytes) >= sizeof word; inBytes += sizeof word) {
    std::memcpy(&word, inBytes, sizeof word);
    sum = (sum ^ word) * kPrime;
  }
  for (; inBytes != end; ++inBytes)
    sum = (sum ^ *inBytes) * kPrime;
  return sum;
}

}  // namespace lumui::utility
