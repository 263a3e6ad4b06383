// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/RowWalk.h"

#include <iterator>

#include "vek/hierarchyview/TextWidths.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/hierarchyview/TreeListControlBase.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;

// An iterator goes on behind the subtree where the root has a parent, so that is left to it.
RowWalk::RowWalk(HierarchyGeometry& ioGeometry)
    : mGeometry(ioGeometry), mRow(ioGeometry.GetTraverse(ioGeometry.begin())) {
  if (mRow.mEntry && !mRow.mEntry->GetParent()) mRows = UniformRows::Of(ioGeometry);
  if (mRows && mRows->columns) mColumnWidth = mRows->columns->GetTotalColumnWidth();
  mShape = HierarchyEntryBase::GetShapeVersion();
}

bool RowWalk::AtEnd() const {
  return mRows ? mRow.mEntry == nullptr : mRow.mEntry == *mGeometry.end();
}

void RowWalk::Next() {
  if (mRows && mShape != HierarchyEntryBase::GetShapeVersion()) mRows = nullptr;
  if (!mRows) return mGeometry.NextEntry(&mRow, false);
  if (!mRow.mEntry) return;
  mRow.MoveBy(mRows->GetHeight(mRow.mEntry));
  mRow.mCookie.x = static_cast<float>(GetLevel()) * mGeometry.GetIndent();
  if (mRow.mEntry->GetNodeState() != kNodeCollapsed && !mRow.mEntry->GetChildren().empty()) {
    EnterChildren();
  } else {
    LeaveUpward();
  }
}

void RowWalk::EnterChildren() {
  HierarchyEntryBase* const owner = mRow.mEntry;
  mPath.emplace_back();
  StandAt(owner, owner->GetChildren().begin());
}

void RowWalk::LeaveUpward() {
  for (HierarchyEntryBase* entry = mRow.mEntry; !mPath.empty(); mPath.pop_back()) {
    HierarchyEntryBase* const owner = entry->GetParent();
    const Place next = std::next(mPath.back());
    if (next != owner->GetChildren().end() && *next) {
      StandAt(owner, next);
      const int level = mRows ? GetLevel() : mGeometry.EntryLevel(mRow.mEntry);
      mRow.mCookie.x = static_cast<float>(level - 1) * mGeometry.GetIndent();
      // A root that stands below itself ends the walk.
      const bool isRoot = mRow.mEntry == mGeometry.GetTreeControl()->GetRootEntry();
      if (isRoot && !mRow.mEntry->GetParent()) mRow.mEntry = nullptr;
      return;
    }
    entry = owner;
  }
  mRow.mEntry = nullptr;
}

// From an entry that looking for it would find elsewhere, or nowhere, an iterator goes on.
void RowWalk::StandAt(HierarchyEntryBase* inOwner, Place inPlace) {
  mRow.mEntry = inPlace->get();
  mPath.back() = inPlace;
  if (!mRow.mEntry || !mRow.mEntry->StandsOnlyUnder(inOwner)) mRows = nullptr;
}

int RowWalk::GetLevel() const {
  return mRows->GetLevel(static_cast<unsigned short>(mPath.size() + 1));
}

float RowWalk::GetHeight() const {
  return mRows ? mRows->GetHeight(mRow.mEntry) : mGeometry.EntryWidthHeight(mRow.mEntry).y;
}

PointT<float> RowWalk::GetSize() const {
  if (!mRows) return mGeometry.EntryWidthHeight(mRow.mEntry);
  if (mRows->IsHidden(mRow.mEntry)) return PointT<float>();
  if (!mRows->widths) {
    const int indent = (GetLevel() - 1) * static_cast<int>(mGeometry.GetIndent());
    return PointT<float>(mColumnWidth - static_cast<float>(indent), mRows->rowHeight);
  }
  lumcore::UTF16String text;
  mRow.mEntry->GetCellText(0, text);
  const float width = mRows->widths->Get(mGeometry.GetTreeControl()->GetFont(), text);
  return PointT<float>(width, mRows->rowHeight);
}

RectT<float> RowWalk::GetArea() const {
  const PointT<float> size = GetSize();
  return RectT<float>(mRow.mCookie.x, mRow.mCookie.y, size.x, size.y);
}

}  // namespace vek::hierarchyview
