// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineHeader.h"

#include "OutlineTreeList.h"
#include "vek/trackview/PlatformView.h"
#include "vek/trackview/TrackView.h"

namespace outliner {

OutlineHeader::OutlineHeader(vek::trackview::TrackView* inTrackView, OutlineTreeList& inList)
    : MultiColumnHeaderView(inTrackView, true), mList(inList) {
  SetKeepsRightPressesForMenu(true);
}

OutlineHeader::~OutlineHeader() = default;

void OutlineHeader::HandleClickInColumn(unsigned short inColumn) {
  if (!GetMultiColumnView()) return;
  if (inColumn != mList.GetSortColumn()) {
    mList.SortIsAscending(true);
    mList.SetSortColumn(inColumn);
  } else if (mList.GetSortIsAscending()) {
    mList.SortIsAscending(false);
  } else {
    mList.UnsortRows();
  }
  GetTrackView()->GetPlatformView().InvalidateDataRect(GetTrackView()->DataArea());
}

}  // namespace outliner
