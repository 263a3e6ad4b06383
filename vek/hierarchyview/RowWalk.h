// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include "vek/hierarchyview/UniformRows.h"

namespace vek::hierarchyview {

// The rows of a geometry from the first to the last, for loops that leave the tree's shape and the
// control's columns and font alone. It answers as iterators do and is several times as quick in a
// regular tree with one of the library's geometries, where it keeps the way down to the row instead
// of climbing for levels and looking for siblings. At the first entry that another list holds too,
// or whose parent is not its list's owner, it goes on as an iterator.
//
// Opening or closing the current entry is no change of shape above it, and is allowed.
class VEK_API RowWalk {
 public:
  explicit RowWalk(HierarchyGeometry& ioGeometry);

  bool AtEnd() const;
  void Next();

  HierarchyEntryBase* GetEntry() const { return mRow.mEntry; }
  float GetTop() const { return mRow.mCookie.y; }
  float GetHeight() const;
  lumcore::geom::RectT<float> GetArea() const;
  HierarchyGeometry::iterator GetIterator() const { return HierarchyGeometry::iterator(mRow); }

 private:
  using Place = HierarchyEntryBase::List::const_iterator;

  void EnterChildren();
  void LeaveUpward();
  void StandAt(HierarchyEntryBase* inOwner, Place inPlace);
  int GetLevel() const;
  lumcore::geom::PointT<float> GetSize() const;

  HierarchyGeometry& mGeometry;
  HierarchyGeometry::TraverseEntry mRow;
  std::optional<UniformRows> mRows;  // empty: steps as an iterator
  float mColumnWidth = 0;
  std::vector<Place> mPath;  // where the row and its ancestors below the root stand
};

}  // namespace vek::hierarchyview
