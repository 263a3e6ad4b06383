// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/utility/MemoryTracker.h"

#include <unistd.h>

#include <fstream>

namespace lumcore::utility {

namespace {

// The second number of the system's table of this process: pages that lie in memory.
std::size_t GetResidentBytes() {
  std::ifstream table("/proc/self/statm");
  std::size_t all = 0;
  std::size_t resident = 0;
  if (!(table >> all >> resident)) return 0;
  return resident * static_cast<std::size_t>(::sysconf(_SC_PAGESIZE));
}

}  // namespace

MemoryTracker::MemoryTracker() : mAtStart(GetResidentBytes()) {}

MemoryTracker::~MemoryTracker() = default;

std::ptrdiff_t MemoryTracker::GetGrowth() const {
  return static_cast<std::ptrdiff_t>(GetResidentBytes()) - static_cast<std::ptrdiff_t>(mAtStart);
}

}  // namespace lumcore::utility
