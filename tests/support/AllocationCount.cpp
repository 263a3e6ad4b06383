// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/AllocationCount.h"

#include <cstdlib>
#include <new>

namespace {
std::size_t sCount = 0;
}

void* operator new(std::size_t inBytes) {
  ++sCount;
  if (void* const block = std::malloc(inBytes ? inBytes : 1)) return block;
  throw std::bad_alloc();
}
void operator delete(void* inBlock) noexcept {
  std::free(inBlock);
}
void operator delete(void* inBlock, std::size_t) noexcept {
  std::free(inBlock);
}

std::size_t test_support::AllocationCount() {
  return sCount;
}
