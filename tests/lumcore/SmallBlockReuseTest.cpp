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

TEST(SmallBlockReuse, ShortLivedThreadsLeaveTheirBlocksToOthers) {
  std::set<void*> addresses;
  for (int round = 0; round < 1000; ++round) {
    std::thread([&] {
      void* const first = AllocateBlock(kBytes);
      void* const second = AllocateBlock(kBytes);
      addresses.insert({first, second});
      FreeBlock(first, kBytes);
      FreeBlock(second, kBytes);
    }).join();
  }
  EXPECT_LT(addresses.size(), kMostAddresses);
}

}  // namespace
