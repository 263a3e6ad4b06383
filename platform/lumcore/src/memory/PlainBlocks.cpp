// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <new>

#include "lumcore/memory/STLAllocator.h"

// Stands in for SmallBlockPool.cpp where a sanitizer is to see each block for itself.
namespace lumcore::memory {

void* AllocateBlock(std::size_t inBytes) {
  return ::operator new(inBytes);
}

void FreeBlock(void* inBlock, std::size_t) noexcept {
  ::operator delete(inBlock);
}

}  // namespace lumcore::memory
