// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <random>
#include <string>
#include <vector>

namespace test_support {

// What it does to whom goes by its own number alone, so that others can be left out before it.
struct RandomStep {
  int act;
  unsigned int number;
};
using RandomSteps = std::vector<RandomStep>;

// inFirst times act 0, so that there is something to change, and then any.
inline RandomSteps NewSteps(unsigned int inSeed, int inFirst, int inCount, int inActs) {
  std::mt19937 random(inSeed);
  RandomSteps steps;
  for (int step = 0; step < inCount; ++step) {
    const int act = static_cast<int>(random() % static_cast<unsigned int>(inActs));
    steps.push_back({step < inFirst ? 0 : act, static_cast<unsigned int>(random())});
  }
  return steps;
}

// The least that still fails, found by leaving out shorter and shorter pieces, and how. A run
// answers with what failed first, or with nothing.
inline std::string Shortened(RandomSteps inSteps,
                             const std::function<std::string(const RandomSteps&)>& inRun,
                             const std::vector<const char*>& inNames) {
  for (std::size_t piece = inSteps.size() / 2; piece > 0; piece /= 2) {
    for (std::size_t first = 0; first + piece <= inSteps.size();) {
      RandomSteps fewer = inSteps;
      const auto from = fewer.begin() + static_cast<std::ptrdiff_t>(first);
      fewer.erase(from, from + static_cast<std::ptrdiff_t>(piece));
      if (inRun(fewer).empty()) {
        first += piece;
      } else {
        inSteps.swap(fewer);
      }
    }
  }
  std::string text;
  for (const RandomStep& step : inSteps)
    text +=
        inNames[static_cast<std::size_t>(step.act)] + (" " + std::to_string(step.number)) + "\n";
  return text + inRun(inSteps);
}

}  // namespace test_support
