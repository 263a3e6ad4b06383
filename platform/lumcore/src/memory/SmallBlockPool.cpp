// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <cstdint>
#include <mutex>
#include <new>

#include "lumcore/memory/STLAllocator.h"

// Each thread keeps up to two batches of free blocks a size and asks nobody for most calls. Whole
// batches move between the threads through one depot behind a lock, so that a thread that only
// frees feeds one that only allocates, and no thread holds more than its two batches. Memory is
// taken from operator new in large regions and stays with the pool until the process ends.
namespace lumcore::memory {

namespace {

constexpr std::size_t kGranularity = 16;
constexpr std::size_t kLargestSmallBlock = 256;
constexpr std::size_t kSizes = kLargestSmallBlock / kGranularity;
constexpr std::uint32_t kBatchBlocks = 64;
constexpr std::size_t kRegionBytes = 256 * 1024;

// What a free block holds. The smallest block has room for both links.
struct FreeBlockLinks {
  FreeBlockLinks* next;
  FreeBlockLinks* nextBatch;  // of the first block of a batch in the depot
};
static_assert(sizeof(FreeBlockLinks) <= kGranularity);

std::size_t SizeIndex(std::size_t inBytes) {
  return (inBytes - (inBytes != 0)) / kGranularity;
}

// The free blocks of one size in one thread. The count starts full, and there is nothing to take,
// so that the first call of a thread goes the long way and registers the thread.
struct Magazine {
  FreeBlockLinks* active = nullptr;
  std::uint32_t activeCount = kBatchBlocks;
  FreeBlockLinks* reserve = nullptr;  // a full batch or nothing
};

class Depot {
 public:
  // It is never destroyed: objects that die at the very end of the process still free their blocks.
  static Depot& Get() {
    static Depot* const sDepot = new Depot;
    return *sDepot;
  }

  // A full batch, or a smaller one where a region comes to its end.
  FreeBlockLinks* TakeBatch(std::size_t inIndex, std::uint32_t& outCount) {
    const std::lock_guard<std::mutex> lock(mMutex);
    if (FreeBlockLinks* const batch = mBatches[inIndex]) {
      mBatches[inIndex] = batch->nextBatch;
      outCount = kBatchBlocks;
      return batch;
    }
    FreeBlockLinks* batch = nullptr;
    for (outCount = 0; outCount < kBatchBlocks; ++outCount) {
      FreeBlockLinks* const block = TakeLoose(inIndex, outCount == 0);
      if (!block) break;
      block->next = batch;
      batch = block;
    }
    return batch;
  }
  void GiveBatch(std::size_t inIndex, FreeBlockLinks* inBatch) noexcept {
    const std::lock_guard<std::mutex> lock(mMutex);
    inBatch->nextBatch = mBatches[inIndex];
    mBatches[inIndex] = inBatch;
  }

  FreeBlockLinks* TakeOne(std::size_t inIndex) {
    const std::lock_guard<std::mutex> lock(mMutex);
    if (FreeBlockLinks* const block = TakeLoose(inIndex, false)) return block;
    FreeBlockLinks* const batch = mBatches[inIndex];
    if (!batch) return TakeLoose(inIndex, true);
    mBatches[inIndex] = batch->nextBatch;
    mLoose[inIndex] = batch->next;
    return batch;
  }
  void GiveOne(std::size_t inIndex, FreeBlockLinks* inBlock) noexcept {
    const std::lock_guard<std::mutex> lock(mMutex);
    inBlock->next = mLoose[inIndex];
    mLoose[inIndex] = inBlock;
  }

 private:
  // A single free block, or one from the region, or null where a new region would have to be taken.
  FreeBlockLinks* TakeLoose(std::size_t inIndex, bool inMayGrow) {
    if (FreeBlockLinks* const block = mLoose[inIndex]) {
      mLoose[inIndex] = block->next;
      return block;
    }
    const std::size_t bytes = (inIndex + 1) * kGranularity;
    if (mRegionLeft < bytes) {
      if (!inMayGrow) return nullptr;
      mRegion = static_cast<char*>(::operator new(kRegionBytes));
      mRegionLeft = kRegionBytes;
    }
    mRegionLeft -= bytes;
    return reinterpret_cast<FreeBlockLinks*>(mRegion + mRegionLeft);
  }

  std::mutex mMutex;
  FreeBlockLinks* mBatches[kSizes] = {};
  FreeBlockLinks* mLoose[kSizes] = {};
  char* mRegion = nullptr;
  std::size_t mRegionLeft = 0;
};

enum class Stage { kFresh, kOpen, kClosed };

// Without a destructor, so that it can still be used while the thread's other objects die.
thread_local Magazine tMagazines[kSizes];
thread_local Stage tStage = Stage::kFresh;

// Hands the thread's free blocks over at its end. From then on each block goes to the depot itself.
struct HandOver {
  ~HandOver() {
    tStage = Stage::kClosed;
    for (std::size_t index = 0; index < kSizes; ++index) {
      Magazine& magazine = tMagazines[index];
      if (magazine.reserve) Depot::Get().GiveBatch(index, magazine.reserve);
      while (FreeBlockLinks* const block = magazine.active) {
        magazine.active = block->next;
        Depot::Get().GiveOne(index, block);
      }
      magazine = Magazine();
    }
  }
  void Touch() {}
};
thread_local HandOver tHandOver;

void OpenIfFresh() {
  if (tStage != Stage::kFresh) return;
  tHandOver.Touch();  // its first use has its destructor registered
  tStage = Stage::kOpen;
  for (Magazine& magazine : tMagazines)
    magazine.activeCount = 0;
}

void* AllocateSlowly(std::size_t inIndex) {
  OpenIfFresh();
  if (tStage == Stage::kClosed) return Depot::Get().TakeOne(inIndex);
  Magazine& magazine = tMagazines[inIndex];
  if (magazine.reserve) {
    magazine.active = magazine.reserve;
    magazine.reserve = nullptr;
    magazine.activeCount = kBatchBlocks;
  } else {
    magazine.active = Depot::Get().TakeBatch(inIndex, magazine.activeCount);
  }
  FreeBlockLinks* const block = magazine.active;
  magazine.active = block->next;
  --magazine.activeCount;
  return block;
}

void FreeSlowly(FreeBlockLinks* inBlock, std::size_t inIndex) noexcept {
  OpenIfFresh();
  if (tStage == Stage::kClosed) return Depot::Get().GiveOne(inIndex, inBlock);
  Magazine& magazine = tMagazines[inIndex];
  if (magazine.activeCount == kBatchBlocks) {
    if (magazine.reserve) Depot::Get().GiveBatch(inIndex, magazine.reserve);
    magazine.reserve = magazine.active;
    magazine.active = nullptr;
    magazine.activeCount = 0;
  }
  inBlock->next = magazine.active;
  magazine.active = inBlock;
  ++magazine.activeCount;
}

}  // namespace

void* AllocateBlock(std::size_t inBytes) {
  if (inBytes > kLargestSmallBlock) return ::operator new(inBytes);
  Magazine& magazine = tMagazines[SizeIndex(inBytes)];
  FreeBlockLinks* const block = magazine.active;
  if (!block) return AllocateSlowly(SizeIndex(inBytes));
  magazine.active = block->next;
  --magazine.activeCount;
  return block;
}

void FreeBlock(void* inBlock, std::size_t inBytes) noexcept {
  if (inBytes > kLargestSmallBlock) return ::operator delete(inBlock);
  Magazine& magazine = tMagazines[SizeIndex(inBytes)];
  FreeBlockLinks* const block = static_cast<FreeBlockLinks*>(inBlock);
  if (magazine.activeCount == kBatchBlocks) return FreeSlowly(block, SizeIndex(inBytes));
  block->next = magazine.active;
  magazine.active = block;
  ++magazine.activeCount;
}

}  // namespace lumcore::memory
