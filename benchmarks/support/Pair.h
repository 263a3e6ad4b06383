// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <benchmark/benchmark.h>

#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace bench {

// Runs the timed loop. SetItemsProcessed says how many operations the time is divided by; without
// it, that is the number of iterations.
using Body = std::function<void(benchmark::State&)>;

// What a row has to keep. Ratio is ours divided by peer, so less is better.
struct Goal {
  enum class Of { kRatio, kOurs };
  Of of;
  double atMost;
};
inline Goal RatioAtMost(double inLimit) {
  return {Goal::Of::kRatio, inLimit};
}
inline Goal OursAtMost(double inLimit) {
  return {Goal::Of::kOurs, inLimit};
}

// A time of ours and, beside it, the time of a peer that does the same work. Both run in one
// process, repeated and shuffled, and the medians are compared.
struct Pair {
  std::string name;
  std::string unit;  // ns, us or ms
  std::optional<Goal> goal;
  Body ours;
  Body peer;  // may be empty
  // Processor time bears a busy machine better; the wall's is for work that waits for a disk.
  bool wallClock = false;
};

// A figure that is counted once, not timed: allocations, bytes.
struct Count {
  std::string name;
  std::string unit;
  std::optional<Goal> goal;
  double ours;
  std::optional<double> peer;
};

// The main function of a topic: measures, prints the rows of the table, and appends them as JSON,
// one object a line, to the file that --rows=FILE names. Understands Google Benchmark's own
// arguments as well.
int Run(const std::string& inTopic, int argc, char** argv, const std::vector<Pair>& inPairs,
        const std::vector<Count>& inCounts = {});

}  // namespace bench
