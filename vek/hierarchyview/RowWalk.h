// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

#include "vek/hierarchyview/UniformRows.h"

namespace vek::hierarchyview {

// The rows of a geometry from the first to the last, for loops that leave the control's columns and
// font alone. It answers as iterators do and is several times as quick in a regular tree with one
// of the library's geometries, where it keeps the way down to the row instead of climbing for
// levels and looking for siblings. At the first entry that another list holds too, or whose parent
// is not its list's owner, and when any tree changes its shape, it goes on as an iterator.
class VEK_API RowWalk {
 public:
  explicit RowWalk(HierarchyGeometry& ioGeometry);

  bool AtEnd() const;
  void Next();
  // What has changed is that the current entry was opened or closed, and nothing above it.
  void FollowChange() { mShape = HierarchyEntryBase::GetShapeVersion(); }

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
  UniformRows const* mRows = nullptr;  // null: steps as an iterator
  float mColumnWidth = 0;
  std::uint64_t mShape = 0;
  std::vector<Place> mPath;  // where the row and its ancestors below the root stand
};

}  // namespace vek::hierarchyview
