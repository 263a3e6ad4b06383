// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "lumcore/Export.h"

namespace lumcore::utility {

// Tells how much memory the process has taken since the tracker was made: for hosts that watch
// themselves. The framework owns the one that a host gives it and asks it nothing.
class LUMCORE_API MemoryTracker {
 public:
  MemoryTracker();
  virtual ~MemoryTracker();
  MemoryTracker(const MemoryTracker&) = delete;
  MemoryTracker& operator=(const MemoryTracker&) = delete;

  // Bytes that lie in memory now, less those at the start; 0 where the system does not say.
  virtual std::ptrdiff_t GetGrowth() const;

 private:
  std::size_t mAtStart;
};

}  // namespace lumcore::utility
