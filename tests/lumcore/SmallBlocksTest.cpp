// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

#include "lumcore/Strings.h"

namespace {

using lumcore::UTF16String;
using lumcore::memory::AllocateBlock;
using lumcore::memory::FreeBlock;

constexpr std::size_t kSizes[] = {0, 1, 15, 16, 17, 32, 33, 100, 240, 241, 256, 257, 5000};

struct Block {
  unsigned char* bytes;
  std::size_t size;
  unsigned char mark;
};

Block Take(std::size_t inSize, unsigned inMark) {
  const Block block = {static_cast<unsigned char*>(AllocateBlock(inSize)), inSize,
                       static_cast<unsigned char>(inMark)};
  EXPECT_EQ(reinterpret_cast<std::uintptr_t>(block.bytes) % alignof(std::max_align_t), 0u);
  std::fill_n(block.bytes, inSize, block.mark);
  return block;
}

// False when another block has written into this one.
bool GiveBack(const Block& inBlock) {
  const bool whole = std::all_of(inBlock.bytes, inBlock.bytes + inBlock.size,
                                 [&](unsigned char byte) { return byte == inBlock.mark; });
  FreeBlock(inBlock.bytes, inBlock.size);
  return whole;
}

TEST(SmallBlocks, NeverOverlapWhateverTheirSizeAndOrder) {
  std::vector<Block> blocks;
  unsigned mark = 0;
  for (int round = 0; round < 300; ++round) {
    for (const std::size_t size : kSizes)
      blocks.push_back(Take(size, ++mark));
    // Every third of the older half goes, so that the free ones are scattered.
    for (std::size_t at = 0; round % 2 && at < blocks.size() / 2; at += 2) {
      EXPECT_TRUE(GiveBack(blocks[at]));
      blocks.erase(blocks.begin() + static_cast<std::ptrdiff_t>(at));
    }
  }
  for (const Block& block : blocks)
    EXPECT_TRUE(GiveBack(block));
}

// Each thread takes blocks and passes all of them to its neighbour, which gives them back.
TEST(SmallBlocks, MayBeGivenBackOnAnotherThread) {
  struct Mailbox {
    std::mutex mutex;
    std::condition_variable changed;
    std::deque<Block> blocks;
  };
  constexpr int kThreads = 4;
  constexpr int kBlocks = 5000;
  Mailbox mailboxes[kThreads];
  std::atomic<int> damaged{0};
  std::vector<std::thread> threads;
  for (int thread = 0; thread < kThreads; ++thread) {
    threads.emplace_back([&, thread] {
      Mailbox& mine = mailboxes[thread];
      Mailbox& next = mailboxes[(thread + 1) % kThreads];
      for (int count = 0; count < kBlocks; ++count) {
        const Block block = Take(kSizes[count % std::size(kSizes)],
                                 static_cast<unsigned>(count * kThreads + thread));
        {
          const std::lock_guard<std::mutex> lock(next.mutex);
          next.blocks.push_back(block);
        }
        next.changed.notify_one();
        std::unique_lock<std::mutex> lock(mine.mutex);
        mine.changed.wait(lock, [&] { return !mine.blocks.empty(); });
        const Block received = mine.blocks.front();
        mine.blocks.pop_front();
        lock.unlock();
        if (!GiveBack(received)) ++damaged;
      }
    });
  }
  for (std::thread& thread : threads)
    thread.join();
  EXPECT_EQ(damaged, 0);
}

// Made before the thread's first block is taken, so destroyed after the thread has handed over.
struct LateUser {
  ~LateUser() {
    if (text.empty()) return;
    const UTF16String copy = text + text;
    *result = copy.size();
  }
  UTF16String text;
  std::atomic<std::size_t>* result = nullptr;
};
thread_local LateUser tLateUser;

TEST(SmallBlocks, CanBeUsedWhileAThreadEnds) {
  for (int round = 0; round < 20; ++round) {
    std::atomic<std::size_t> result{0};
    std::thread([&] {
      tLateUser.result = &result;
      tLateUser.text.assign(60, 'x');
    }).join();
    EXPECT_EQ(result, 120u);
  }
}

// The end of the process is the test: objects outside all functions die after the main thread's
// own.
struct LastUser {
  ~LastUser() { text.assign(100, 'y'); }
  UTF16String text;
} gLastUser;

TEST(SmallBlocks, CanBeUsedWhileTheProcessEnds) {
  gLastUser.text.assign(20, 'x');
  EXPECT_EQ(gLastUser.text.size(), 20u);
}

}  // namespace
