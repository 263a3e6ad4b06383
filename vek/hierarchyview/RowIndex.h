// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>

#include "lumcore/geom/Rect.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/hierarchyview/UniformRows.h"

namespace vek::hierarchyview {

// The rows of a geometry by number, by entry and by height, each in a time that hardly grows with
// their number, and with the same answers as a walk. What it knows lies in the open entries
// themselves (RowBranch); they note their changes in it, and Of reads what has changed. It is for
// one question or a few: any change of the tree or of its columns ends its use.
//
// It exists only where its answers are the walk's: the geometry is one of the library's own, the
// root has no parent, all rows stand in regular places, and no entry answers for its state
// otherwise than the base does.
class VEK_API RowIndex {
 public:
  using Row = std::uint32_t;

  static std::optional<RowIndex> Of(HierarchyGeometry& ioGeometry);

  Row GetCount() const { return mCount; }  // at least 1, a hidden root is a row too
  std::optional<Row> Find(HierarchyEntryBase const* inEntry) const;  // nothing: it is no row
  HierarchyEntryBase* GetEntry(Row inRow) const;
  float GetTop(Row inRow) const;
  // Stands as if it had walked there.
  HierarchyGeometry::iterator GetIterator(Row inRow) const;
  // As HierarchyGeometry::FindEntry; GetCount() below the last one.
  Row FindAt(float inY) const;
  // Nothing where only a walk tells: rows are as wide as their texts, or may have no width.
  std::optional<lumcore::geom::RectT<float>> GetArea() const;

 private:
  friend class HierarchyEntryBase;

  // How many rows an entry makes has changed, or the order of its children.
  static void RowsChanged(HierarchyEntryBase& ioEntry) noexcept;
  static void OrderChanged(HierarchyEntryBase& ioEntry) noexcept;
  static void ChildAppended(HierarchyEntryBase& ioEntry, HierarchyEntryBase& ioChild) noexcept;
  // Before it leaves its owner's list.
  static void ChildLeaves(HierarchyEntryBase& ioEntry, HierarchyEntryBase& ioChild) noexcept;

  RowIndex(HierarchyGeometry& ioGeometry, UniformRows const& inRows, HierarchyEntryBase& inRoot);

  static bool Refresh(HierarchyEntryBase& ioRoot);
  static bool IsOpen(HierarchyEntryBase const& inEntry);
  static bool EnterBranch(HierarchyEntryBase& ioEntry);
  static bool ReadChildren(HierarchyEntryBase& ioEntry);

  HierarchyGeometry& mGeometry;
  UniformRows mRows;
  HierarchyEntryBase& mRoot;
  Row mCount;
};

}  // namespace vek::hierarchyview
