// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/RowIndex.h"

#include <algorithm>
#include <cmath>
#include <new>

#include "vek/hierarchyview/NodeStateSlot.h"
#include "vek/hierarchyview/RowBranch.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/hierarchyview/TreeListControlBase.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;

namespace {

// A sum of so many equal floats is exact in a double, so it is a product.
constexpr RowIndex::Row kMaxRows = RowIndex::Row{1} << 29;
// A tree that allowed no index is tried again after some questions, so that a walk that is asked
// for often does not pay for both.
constexpr std::uint32_t kMaxPause = 256;

}  // namespace

std::optional<RowIndex> RowIndex::Of(HierarchyGeometry& ioGeometry) {
  HierarchyEntryBase* const root = ioGeometry.mTreeControl->GetRootEntry();
  if (!root || root->GetParent()) return std::nullopt;
  UniformRows const* const rows = UniformRows::Of(ioGeometry);
  if (!rows || !(rows->rowHeight > 0) || !std::isfinite(rows->rowHeight)) return std::nullopt;
  if (ioGeometry.mIndexPause > 0) {
    --ioGeometry.mIndexPause;
    return std::nullopt;
  }
  if (!Refresh(*root)) {
    ioGeometry.mLastPause = std::min(ioGeometry.mLastPause * 2 + 1, kMaxPause);
    ioGeometry.mIndexPause = ioGeometry.mLastPause;
    return std::nullopt;
  }
  ioGeometry.mLastPause = 0;
  const RowIndex index(ioGeometry, *rows, *root);
  if (index.mCount > kMaxRows) return std::nullopt;
  return index;
}

RowIndex::RowIndex(HierarchyGeometry& ioGeometry, UniformRows const& inRows,
                   HierarchyEntryBase& inRoot)
    : mGeometry(ioGeometry),
      mRows(inRows),
      mRoot(inRoot),
      mCount(1 + (IsOpen(inRoot) ? inRoot.mBranch->GetRows() : 0)) {}

std::optional<RowIndex::Row> RowIndex::Find(HierarchyEntryBase const* inEntry) const {
  if (!inEntry) return std::nullopt;
  Row row = 0;
  for (HierarchyEntryBase const* entry = inEntry; entry != &mRoot; entry = entry->mParent) {
    if (!entry->mIsPlaced) return std::nullopt;
    HierarchyEntryBase const& owner = *entry->mParent;
    if (!owner.mBranch || owner.mBranch->IsOutdated() || !IsOpen(owner)) return std::nullopt;
    row += 1 + owner.mBranch->GetRowsBefore(entry->mOrdinal);
    // Elsewhere, in a tree without an end.
    if (row >= mCount) return std::nullopt;
  }
  return row;
}

HierarchyEntryBase* RowIndex::GetEntry(Row inRow) const {
  HierarchyEntryBase* entry = &mRoot;
  for (Row row = inRow; row > 0;) {
    --row;
    RowBranch const& branch = *entry->mBranch;
    entry = branch.GetChild(branch.Locate(row));
  }
  return entry;
}

float RowIndex::GetTop(Row inRow) const {
  const Row before = mRows.hideRoot && inRow > 0 ? inRow - 1 : inRow;
  return static_cast<float>(before * static_cast<double>(mRows.rowHeight));
}

HierarchyGeometry::iterator RowIndex::GetIterator(Row inRow) const {
  HierarchyEntryBase* const entry = GetEntry(inRow);
  HierarchyGeometry::TraverseEntry traverse(&mGeometry, entry, false, PointT<float>());
  if (inRow > 0) {
    // As the walk steps in to a first child. Levels are 16 bits wide, so that far down a child may
    // have a smaller one than its parent.
    HierarchyEntryBase const* const parent = entry->mParent;
    const bool isFirst = parent->mChildren.front().get() == entry;
    const int steps = isFirst ? mGeometry.EntryLevel(parent) : mGeometry.EntryLevel(entry) - 1;
    const Row before = mRows.hideRoot ? inRow - 1 : inRow;
    traverse.mCookie =
        PointT<float>(static_cast<float>(steps) * mGeometry.GetIndent(), GetTop(inRow));
    traverse.mExactY = before * static_cast<double>(mRows.rowHeight);
  }
  return HierarchyGeometry::iterator(traverse);
}

RowIndex::Row RowIndex::FindAt(float inY) const {
  Row first = mRows.hideRoot ? 1 : 0;
  for (Row left = mCount - first; left > 0;) {
    const Row half = left / 2;
    if (GetTop(first + half) + mRows.rowHeight >= inY) {
      left = half;
    } else {
      first += half + 1;
      left -= half + 1;
    }
  }
  return first;
}

std::optional<RectT<float>> RowIndex::GetArea() const {
  if (!mRows.columns) return std::nullopt;
  const Row first = mRows.hideRoot ? 1 : 0;
  if (mCount == first) return RectT<float>();
  const float width = mRows.columns->GetTotalColumnWidth();
  const auto levels = static_cast<int>(IsOpen(mRoot) ? mRoot.mBranch->GetDepth() : 0) + 1;
  const float indent = mGeometry.GetIndent();
  // On every level a row has to end exactly where the columns do.
  for (int level = 0; level < levels; ++level) {
    const float left = static_cast<float>(level) * indent;
    if (!(width - left > 0) || left + (width - left) != width) return std::nullopt;
  }
  return RectT<float>(0, 0, width, GetTop(mCount - 1) + mRows.rowHeight);
}

bool RowIndex::IsOpen(HierarchyEntryBase const& inEntry) {
  return inEntry.mState != kNodeCollapsed && !inEntry.mChildren.empty();
}

// Goes down to what is stale and up again by the parents, which are right for every row that has
// been entered: trees may be too deep for a recursion. Where it gives up, the way back to the root
// is outdated, so nothing on it is believed before it has been read again.
bool RowIndex::Refresh(HierarchyEntryBase& ioRoot) {
  if (!ioRoot.mChildren.empty() && !AnswersItsOwnState(ioRoot)) return false;
  if (!IsOpen(ioRoot)) return true;
  if (!EnterBranch(ioRoot)) return false;
  HierarchyEntryBase* entry = &ioRoot;
  bool isRegular = true;
  while (isRegular && (entry != &ioRoot || ioRoot.mBranch->HasStale())) {
    RowBranch& branch = *entry->mBranch;
    if (branch.HasStale()) {
      HierarchyEntryBase* const child = branch.TakeStale();
      child->mIsStale = false;
      isRegular = child->mChildren.empty() || AnswersItsOwnState(*child);
      if (isRegular && IsOpen(*child)) {
        isRegular = EnterBranch(*child);
        if (isRegular) entry = child;
      } else if (isRegular) {
        isRegular = branch.SetRowsOf(child->mOrdinal, 1);
      }
    } else {
      RowBranch& above = *entry->mParent->mBranch;
      isRegular = above.SetRowsOf(entry->mOrdinal, branch.GetRows() + 1);
      above.Deepen(branch.GetDepth() + 1);
      entry = entry->mParent;
    }
  }
  if (isRegular) return true;
  for (; entry != &ioRoot; entry = entry->mParent)
    entry->mBranch->SetOutdated();
  ioRoot.mBranch->SetOutdated();
  return false;
}

bool RowIndex::EnterBranch(HierarchyEntryBase& ioEntry) {
  if (ioEntry.mHandedOut) return false;
  if (!ioEntry.mBranch) ioEntry.mBranch.reset(new (std::nothrow) RowBranch);
  return ioEntry.mBranch && (!ioEntry.mBranch->IsOutdated() || ReadChildren(ioEntry));
}

bool RowIndex::ReadChildren(HierarchyEntryBase& ioEntry) {
  RowBranch& branch = *ioEntry.mBranch;
  if (!branch.Clear(ioEntry.mChildren.size())) return false;
  for (const auto& child : ioEntry.mChildren) {
    const bool isRegular = child && child->StandsOnlyUnder(&ioEntry);
    if (!isRegular || !branch.Append(child.get())) {
      branch.SetOutdated();
      return false;
    }
    child->mOrdinal = static_cast<std::uint32_t>(branch.GetCount() - 1);
    child->mIsStale = !child->mChildren.empty();
    if (child->mIsStale && !branch.NoteStale(child.get())) return false;
  }
  return true;
}

// As far up as somebody may not know it yet. What is outdated has told its owners, unless it is
// closed; opening it tells them.
void RowIndex::RowsChanged(HierarchyEntryBase& ioEntry) noexcept {
  for (HierarchyEntryBase* entry = &ioEntry; entry->mIsPlaced && !entry->mIsStale;
       entry = entry->mParent) {
    RowBranch* const branch = entry->mParent->mBranch.get();
    if (!branch || branch->IsOutdated()) return;
    entry->mIsStale = branch->NoteStale(entry);
  }
}

void RowIndex::OrderChanged(HierarchyEntryBase& ioEntry) noexcept {
  if (ioEntry.mChildren.empty()) ioEntry.mBranch.reset();
  if (ioEntry.mBranch) ioEntry.mBranch->SetOutdated();
  RowsChanged(ioEntry);
}

void RowIndex::ChildAppended(HierarchyEntryBase& ioEntry, HierarchyEntryBase& ioChild) noexcept {
  RowBranch* const branch = ioEntry.mBranch.get();
  if (branch && !branch->IsOutdated()) {
    if (!ioChild.mIsPlaced) {
      branch->SetOutdated();
    } else if (branch->Append(&ioChild)) {
      ioChild.mOrdinal = static_cast<std::uint32_t>(branch->GetCount() - 1);
      ioChild.mIsStale = !ioChild.mChildren.empty() && branch->NoteStale(&ioChild);
    }
  }
  RowsChanged(ioEntry);
}

void RowIndex::ChildLeaves(HierarchyEntryBase& ioEntry, HierarchyEntryBase& ioChild) noexcept {
  RowBranch* const branch = ioEntry.mBranch.get();
  if (branch && !branch->IsOutdated()) {
    const bool isLast = !ioChild.mIsStale && branch->GetCount() > 0 &&
                        branch->GetChild(branch->GetCount() - 1) == &ioChild;
    if (isLast) {
      branch->RemoveLast();
    } else {
      branch->SetOutdated();
    }
  }
  RowsChanged(ioEntry);
}

}  // namespace vek::hierarchyview
