// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace vek::hierarchyview {

class HierarchyEntryBase;

// What the row index keeps of the children of one entry, which owns it: their order, how many rows
// each makes with what is open below it, and which of them have changed since somebody asked. As
// long as every child is one row nothing but the order is kept, 8 bytes a row.
//
// Notes of changes never fail: where there is no memory for one, everything is to be read again.
class RowBranch {
 public:
  // The children have to be read anew. What is kept may point to dead ones and is not followed.
  bool IsOutdated() const { return mIsOutdated; }
  void SetOutdated() noexcept;

  // Begins anew with no child; then they are appended, each as one row.
  bool Clear(std::size_t inExpected) noexcept;        // false: it is outdated still
  bool Append(HierarchyEntryBase* inChild) noexcept;  // false: it is outdated now
  void RemoveLast();

  bool NoteStale(HierarchyEntryBase* inChild) noexcept;  // false: it is outdated now
  bool HasStale() const { return !mStale.empty(); }
  HierarchyEntryBase* TakeStale();

  std::size_t GetCount() const { return mOrder.size(); }
  HierarchyEntryBase* GetChild(std::size_t inOrdinal) const { return mOrder[inOrdinal]; }
  std::uint32_t GetRows() const { return mRows; }  // of all children with what is below them
  std::uint32_t GetRowsBefore(std::size_t inOrdinal) const;
  bool SetRowsOf(std::size_t inOrdinal, std::uint32_t inRows) noexcept;  // false: outdated now
  // The child in whose rows the given one lies, and its number among those.
  std::size_t Locate(std::uint32_t& ioRow) const;

  // At least how many levels are open below the entry; it may be more than there are.
  std::uint32_t GetDepth() const { return mDepth; }
  void Deepen(std::uint32_t inDepth) { mDepth = inDepth > mDepth ? inDepth : mDepth; }

 private:
  std::vector<HierarchyEntryBase*> mOrder;
  std::vector<std::uint32_t> mSums;  // a Fenwick tree of row counts; empty: one row each
  std::vector<HierarchyEntryBase*> mStale;
  std::uint32_t mRows = 0;
  std::uint32_t mDepth = 1;
  bool mIsOutdated = true;
};

}  // namespace vek::hierarchyview
