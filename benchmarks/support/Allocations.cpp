// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "support/Allocations.h"

#include <dlfcn.h>

#include <atomic>
#include <cstdlib>
#include <new>

#include "lumcore/memory/STLAllocator.h"

namespace {

std::atomic<std::size_t> gAllocations{0};

void* CountedMalloc(std::size_t inBytes) {
  gAllocations.fetch_add(1, std::memory_order_relaxed);
  if (void* const block = std::malloc(inBytes ? inBytes : 1)) return block;
  throw std::bad_alloc();
}

}  // namespace

void* operator new(std::size_t inBytes) {
  return CountedMalloc(inBytes);
}
void* operator new[](std::size_t inBytes) {
  return CountedMalloc(inBytes);
}
void operator delete(void* inBlock) noexcept {
  std::free(inBlock);
}
void operator delete[](void* inBlock) noexcept {
  std::free(inBlock);
}
void operator delete(void* inBlock, std::size_t) noexcept {
  std::free(inBlock);
}
void operator delete[](void* inBlock, std::size_t) noexcept {
  std::free(inBlock);
}

// A definition in the program goes before the library's own, for the library's callers as well.
namespace lumcore::memory {

void* AllocateBlock(std::size_t inBytes) {
  using Allocate = void* (*)(std::size_t);
  static const auto sAllocate =
      reinterpret_cast<Allocate>(dlsym(RTLD_NEXT, "_ZN7lumcore6memory13AllocateBlockEm"));
  if (!sAllocate) std::abort();
  gAllocations.fetch_add(1, std::memory_order_relaxed);
  return sAllocate(inBytes);
}

}  // namespace lumcore::memory

std::size_t bench::Allocations() {
  return gAllocations.load(std::memory_order_relaxed);
}
