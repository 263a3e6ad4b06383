// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <unordered_set>
#include <vector>

#include "OutlineColumns.h"
#include "OutlineEntry.h"
#include "OutlineTree.h"
#include "TextSearch.h"

namespace outliner {

// The entries of a list for the rows of an outline: which there are, in which order, and which are
// open. It learns from the tree which rows have others below them than before, and then makes the
// entries below those anew, reusing those of rows that were only moved. Rows that were closed are
// remembered by their numbers, also while they are out of the tree.
//
// Where a filter is on there are entries only for the rows that match, those that were let in all
// the same, and what is above them; all are open at first, and what is closed meanwhile is
// forgotten with the filter. An order by a column is one of the entries: the outline keeps its own.
//
// The tree is borrowed, and no entry is used once this has gone.
class OutlineEntries {
 public:
  using Entry = vek::hierarchyview::HierarchyEntryBase;
  using EntryP = boost::intrusive_ptr<Entry>;

  explicit OutlineEntries(OutlineTree& ioTree);
  ~OutlineEntries();
  OutlineEntries(const OutlineEntries&) = delete;
  OutlineEntries& operator=(const OutlineEntries&) = delete;

  const OutlineTree& GetTree() const { return mTree; }
  OutlineColumns& GetColumns() { return mColumns; }
  const EntryP& GetRoot() const { return mRoot; }  // stays the same; it stands for no row
  OutlineEntry* Find(OutlineRow::Id inRow) const;  // null where it has none

  // Brings the entries in line with the tree. False where their shape stays as it was. Where texts
  // may be others, rows match and sort otherwise as well.
  bool Update(bool inTextsChanged);

  const TextSearch& GetFilter() const { return mFilter; }
  // Looks into the texts, the notes and the columns that are named.
  void SetFilter(const TextSearch& inFilter, std::vector<OutlineColumns::Attribute> inColumns);
  // Lets rows in that the filter keeps out. False where all of them are in.
  bool LetIn(const std::vector<OutlineRow*>& inRows);

  // To be called before entries are sorted by a column, which they are by this function.
  void PrepareSort(OutlineColumns::Attribute inAttribute);
  const boost::shared_ptr<vek::hierarchyview::CompareFunction>& GetOrder() const { return mOrder; }
  // Back to the order of the outline.
  void Unsort();

  void NoteState(OutlineRow::Id inRow, vek::hierarchyview::ENodeState inState);

 private:
  void Rebuild();
  void RebuildBelow(const std::vector<OutlineEntry*>& inParents);
  void Fill(std::vector<OutlineEntry*> inWaiting);
  OutlineEntry& AppendEntry(OutlineEntry& ioParent, const OutlineRow& inRow, bool& outIsNew);
  void Forget(const Entry::List& inLeaving);
  void FindShown();
  bool Shows(const OutlineRow& inRow) const;
  bool Matches(const OutlineRow& inRow) const;
  void SortAgain();

  OutlineTree& mTree;
  OutlineColumns mColumns;
  EntryP mRoot;
  std::vector<OutlineEntry*> mByRow;           // null for a row without an entry
  std::unordered_set<OutlineRow::Id> mStale;   // rows with others below them than their entries
  std::unordered_set<OutlineRow::Id> mClosed;  // while no filter is on
  TextSearch mFilter;
  std::vector<OutlineColumns::Attribute> mFilterColumns;
  std::unordered_set<OutlineRow::Id> mLetIn;
  std::vector<bool> mShown;  // by row, while a filter is on
  OutlineColumns::Attribute mSortedBy = 0;
  std::vector<std::uint32_t> mRanks;  // by row, while there is an order
  boost::shared_ptr<vek::hierarchyview::CompareFunction> mOrder;
};

}  // namespace outliner
