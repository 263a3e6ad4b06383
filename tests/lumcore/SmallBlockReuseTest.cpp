// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <set>
#include <thread>
#include <vector>

#include "lumcore/memory/STLAllocator.h"

// Tells by the addresses whether blocks come back, so it has a meaning only with the pool itself.
namespace {

using lumcore::memory::AllocateBlock;
using lumcore::memory::FreeBlock;

constexpr std::size_t kBytes = 208;  // a size that nothing else in the program uses much
constexpr std::size_t kAtOnce = 500;
// Those in use, and what each thread may hold back.
constexpr std::size_t kMostAddresses = kAtOnce + 1000;

// What one thread takes, another gives back, again and again.
TEST(SmallBlockReuse, ProducerAndConsumerDoNotGrowWithoutBound) {
  std::set<void*> addresses;
  std::vector<void*> blocks;
  for (int round = 0; round < 40; ++round) {
    std::thread([&] {
      for (std::size_t at = 0; at < kAtOnce; ++at)
        blocks.push_back(AllocateBlock(kBytes));
    }).join();
    addresses.insert(blocks.begin(), blocks.end());
    for (void* block : blocks)
      FreeBlock(block, kBytes);
    blocks.clear();
  }
  EXPECT_LT(addresses.size(), kMostAddresses);
}

// Made before the thread's first block is taken, so it gives its own back after the thread has
// handed over all others.
struct LateOwner {
  ~LateOwner() {
    if (block) FreeBlock(block, kBytes);
  }
  void* block = nullptr;
};
thread_local LateOwner tLateOwner;

TEST(SmallBlockReuse, ShortLivedThreadsLeaveTheirBlocksToOthers) {
  std::set<void*> addresses;
  for (int round = 0; round < 2000; ++round) {
    std::thread([&] {
      LateOwner& late = tLateOwner;
      std::vector<void*> blocks;
      // One batch and more in every tenth thread, a few in the others.
      for (int at = 0; at < (round % 10 ? 2 : 200); ++at)
        blocks.push_back(AllocateBlock(kBytes));
      addresses.insert(blocks.begin(), blocks.end());
      late.block = blocks.back();
      blocks.pop_back();
      for (void* block : blocks)
        FreeBlock(block, kBytes);
    }).join();
  }
  EXPECT_LT(addresses.size(), kMostAddresses);
}

}  // namespace
