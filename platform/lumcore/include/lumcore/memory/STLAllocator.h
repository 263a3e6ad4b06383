// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <limits>
#include <new>

#include "lumcore/Export.h"

namespace lumcore {

namespace memory {

// Blocks of up to kLargestSmallBlock bytes come from the process's small-block pool, larger ones
// from operator new. Both calls are safe from any thread, and a block may be given back on another
// thread than the one that took it. The size given back is the size that was asked for.
LUMCORE_API void* AllocateBlock(std::size_t inBytes);
LUMCORE_API void FreeBlock(void* inBlock, std::size_t inBytes) noexcept;

}  // namespace memory

// The allocator of the framework's strings. It is stateless: any instance frees what any other has
// allocated, so containers swap and splice without a copy.
template <class T>
class STLAllocator {
 public:
  using value_type = T;

  STLAllocator() noexcept = default;
  template <class U>
  STLAllocator(const STLAllocator<U>&) noexcept {}

  T* allocate(std::size_t inCount) {
    if (inCount > std::numeric_limits<std::size_t>::max() / sizeof(T)) throw std::bad_alloc();
    return static_cast<T*>(memory::AllocateBlock(inCount * sizeof(T)));
  }
  void deallocate(T* inBlock, std::size_t inCount) noexcept {
    memory::FreeBlock(inBlock, inCount * sizeof(T));
  }
};

template <class T, class U>
bool operator==(const STLAllocator<T>&, const STLAllocator<U>&) noexcept {
  return true;
}
template <class T, class U>
bool operator!=(const STLAllocator<T>&, const STLAllocator<U>&) noexcept {
  return false;
}

}  // namespace lumcore
