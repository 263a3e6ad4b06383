// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/MultiColumnHeaderView.h"

namespace outliner {

class OutlineTreeList;

// The titles over the outline's columns. Clicks on one sort by it, then the other way round, and
// then bring back the order of the outline.
class OutlineHeader final : public vek::hierarchyview::MultiColumnHeaderView {
 public:
  OutlineHeader(vek::trackview::TrackView* inTrackView, OutlineTreeList& inList);
  ~OutlineHeader() override;

  void HandleClickInColumn(unsigned short inColumn) override;

 private:
  OutlineTreeList& mList;
};

}  // namespace outliner
