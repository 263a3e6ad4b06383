// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/PlainWalk.h"

#include <algorithm>
#include <iterator>

#include "vek/hierarchyview/TraverseSteps.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

using lumcore::geom::PointT;
using lumcore::geom::RectT;

namespace {

HierarchyEntryBase* FindNext(HierarchyEntryBase const* inEntry) {
  const auto& siblings = inEntry->GetParent()->GetChildren();
  const auto place = std::find(siblings.begin(), siblings.end(), inEntry);
  if (place == siblings.end() || std::next(place) == siblings.end()) return nullptr;
  return std::next(place)->get();
}

HierarchyEntryBase* FindPrevious(HierarchyEntryBase const* inEntry) {
  const auto& siblings = inEntry->GetParent()->GetChildren();
  const auto place = std::find(siblings.rbegin(), siblings.rend(), inEntry);
  if (place == siblings.rend() || std::next(place) == siblings.rend()) return nullptr;
  return std::next(place)->get();
}

struct PlainRules : AskedLevels {
  HierarchyEntryBase* GetRoot() const { return control->GetRootEntry(); }
  float GetHeight(HierarchyEntryBase const* inEntry) const {
    return geometry.EntryWidthHeight(inEntry).y;
  }
  static HierarchyEntryBase* GetNext(HierarchyEntryBase const* inEntry) {
    return FindNext(inEntry);
  }
  static HierarchyEntryBase* GetPrevious(HierarchyEntryBase const* inEntry) {
    return FindPrevious(inEntry);
  }

  TreeControlBase* control;
};

}  // namespace

void PlainWalk::NextEntry(HierarchyGeometry const& inGeometry, TraverseEntry& ioTraverse,
                          bool inSkipChildren) {
  StepForward(PlainRules{{inGeometry}, inGeometry.mTreeControl}, ioTraverse, inGeometry.mIndent,
              inSkipChildren);
}

void PlainWalk::PreviousEntry(HierarchyGeometry const& inGeometry, TraverseEntry& ioTraverse) {
  StepBack(PlainRules{{inGeometry}, inGeometry.mTreeControl}, ioTraverse, inGeometry.mIndent);
}

PlainWalk::TraverseEntry PlainWalk::Begin(HierarchyGeometry& ioGeometry, bool inDeep) {
  HierarchyEntryBase* const root = ioGeometry.mTreeControl->GetRootEntry();
  return TraverseEntry(&ioGeometry, root, inDeep, PointT<float>());
}

PlainWalk::TraverseEntry PlainWalk::End(HierarchyGeometry& ioGeometry, bool inDeep) {
  TraverseEntry traverse = Begin(ioGeometry, inDeep);
  NextEntry(ioGeometry, traverse, true);
  return traverse;
}

RectT<float> PlainWalk::Area(HierarchyGeometry& ioGeometry) {
  RectT<float> area;
  for (TraverseEntry row = Begin(ioGeometry, false); row.mEntry != End(ioGeometry, false).mEntry;
       NextEntry(ioGeometry, row, false)) {
    const PointT<float> size = ioGeometry.EntryWidthHeight(row.mEntry);
    area = area.Join(RectT<float>(row.mCookie.x, row.mCookie.y, size.x, size.y));
  }
  return area;
}

HierarchyGeometry::iterator PlainWalk::FindEntry(HierarchyGeometry& ioGeometry,
                                                 PointT<float> const& inPoint) {
  TraverseEntry row = Begin(ioGeometry, false);
  for (; row.mEntry != End(ioGeometry, false).mEntry; NextEntry(ioGeometry, row, false)) {
    const float height = ioGeometry.EntryWidthHeight(row.mEntry).y;
    if (height > 0 && row.mCookie.y + height >= inPoint.y) break;
  }
  return row.mEntry == End(ioGeometry, false).mEntry
             ? HierarchyGeometry::iterator(End(ioGeometry, false))
             : HierarchyGeometry::iterator(row);
}

}  // namespace vek::hierarchyview
