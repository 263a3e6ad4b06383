// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/RowBranch.h"

#include <new>

namespace vek::hierarchyview {

namespace {

// A Fenwick tree in a vector: the element at index i - 1 holds the sum of the lowest bit of i many
// elements that end there.
constexpr std::size_t LowestBit(std::size_t inNumber) {
  return inNumber & (~inNumber + 1);
}

// Both swallow that there is no memory, for the notes of changes, which must not fail.
template <class Element>
bool TryReserve(std::vector<Element>& ioElements, std::size_t inCount) noexcept {
  try {
    ioElements.reserve(inCount);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

template <class Element>
bool TryAppend(std::vector<Element>& ioElements, Element inElement) noexcept {
  try {
    ioElements.push_back(inElement);
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  }
}

}  // namespace

void RowBranch::SetOutdated() noexcept {
  mIsOutdated = true;
  mStale.clear();
}

bool RowBranch::Clear(std::size_t inExpected) noexcept {
  SetOutdated();
  mOrder.clear();
  mSums.clear();
  if (!TryReserve(mOrder, inExpected)) return false;
  mRows = 0;
  mDepth = 1;
  mIsOutdated = false;
  return true;
}

bool RowBranch::Append(HierarchyEntryBase* inChild) noexcept {
  const std::size_t number = mOrder.size() + 1;
  // What the new element sums up that stands before it.
  const std::uint32_t before =
      mSums.empty() ? 0 : mRows - GetRowsBefore(number - LowestBit(number));
  if (!TryAppend(mOrder, inChild) || (!mSums.empty() && !TryAppend(mSums, before + 1))) {
    SetOutdated();
    return false;
  }
  ++mRows;
  return true;
}

void RowBranch::RemoveLast() {
  mRows = GetRowsBefore(mOrder.size() - 1);
  mOrder.pop_back();
  if (!mSums.empty()) mSums.pop_back();
}

bool RowBranch::NoteStale(HierarchyEntryBase* inChild) noexcept {
  if (TryAppend(mStale, inChild)) return true;
  SetOutdated();
  return false;
}

HierarchyEntryBase* RowBranch::TakeStale() {
  HierarchyEntryBase* const child = mStale.back();
  mStale.pop_back();
  return child;
}

std::uint32_t RowBranch::GetRowsBefore(std::size_t inOrdinal) const {
  if (mSums.empty()) return static_cast<std::uint32_t>(inOrdinal);
  std::uint32_t rows = 0;
  for (std::size_t number = inOrdinal; number > 0; number -= LowestBit(number))
    rows += mSums[number - 1];
  return rows;
}

bool RowBranch::SetRowsOf(std::size_t inOrdinal, std::uint32_t inRows) noexcept {
  const std::uint32_t old = GetRowsBefore(inOrdinal + 1) - GetRowsBefore(inOrdinal);
  if (old == inRows) return true;
  if (mSums.empty()) {
    if (!TryReserve(mSums, mOrder.size())) {
      SetOutdated();
      return false;
    }
    for (std::size_t number = 1; number <= mOrder.size(); ++number)
      mSums.push_back(static_cast<std::uint32_t>(LowestBit(number)));
  }
  // Unsigned, so that a change for less wraps round to the right sum.
  const std::uint32_t change = inRows - old;
  for (std::size_t number = inOrdinal + 1; number <= mSums.size(); number += LowestBit(number))
    mSums[number - 1] += change;
  mRows += change;
  return true;
}

std::size_t RowBranch::Locate(std::uint32_t& ioRow) const {
  if (mSums.empty()) {
    const std::size_t ordinal = ioRow;
    ioRow = 0;
    return ordinal;
  }
  std::size_t bit = 1;
  while (bit * 2 <= mSums.size())
    bit *= 2;
  std::size_t ordinal = 0;
  for (; bit > 0; bit /= 2) {
    if (ordinal + bit > mSums.size() || mSums[ordinal + bit - 1] > ioRow) continue;
    ordinal += bit;
    ioRow -= mSums[ordinal - 1];
  }
  return ordinal;
}

}  // namespace vek::hierarchyview
