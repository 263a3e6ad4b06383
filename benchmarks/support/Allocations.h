// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

namespace bench {

// How often operator new, or the small-block allocator of the strings, has been called in this
// process, the calls from shared libraries included. Linked into topics that count.
std::size_t Allocations();

// The allocations of a call, after one that warms up.
template <class Call>
double AllocationsOf(Call inCall) {
  inCall();
  const std::size_t before = Allocations();
  inCall();
  return static_cast<double>(Allocations() - before);
}

}  // namespace bench
