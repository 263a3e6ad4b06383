// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdlib>
#include <numeric>
#include <vector>

namespace test_support {

// The seeds of a random test: 1 to inCount, or, for a longer search, as many from VEK_FIRST_SEED on
// as VEK_SEEDS says, both in the environment.
inline std::vector<unsigned> Seeds(unsigned inCount) {
  const auto asked = [](const char* inName, unsigned inElse) {
    const char* const text = std::getenv(inName);
    return text ? static_cast<unsigned>(std::strtoul(text, nullptr, 10)) : inElse;
  };
  std::vector<unsigned> seeds(asked("VEK_SEEDS", inCount));
  std::iota(seeds.begin(), seeds.end(), asked("VEK_FIRST_SEED", 1));
  return seeds;
}

}  // namespace test_support
