// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineRow.h"
#include "vek/hierarchyview/HierarchyEntry.h"

namespace outliner {

class OutlineEntries;

// A row of an outline as a list shows it. It knows the row by its number, so it may outlive it: it
// is empty then, and can neither be selected nor opened.
class OutlineEntry final : public vek::hierarchyview::HierarchyEntry {
 public:
  OutlineEntry(OutlineEntries& inEntries, OutlineRow::Id inRow,
               vek::hierarchyview::ENodeState inState);
  ~OutlineEntry() override;

  // As many units of a text are shown, which is wider than any screen.
  static constexpr std::size_t kMostShown = 4000;

  OutlineRow::Id GetRowId() const { return mRow; }
  OutlineRow* FindRow() const;  // null once it has gone

  void SetNodeState(vek::hierarchyview::ENodeState inState) override;
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;
  bool CanExpand() const override;
  bool CanCollapse() const override;
  vek::selection::Node* GetDataAsSelNode() const override;  // null for the root

 private:
  friend class OutlineEntries;  // gives an entry others below it

  OutlineEntries& mEntries;
  const OutlineRow::Id mRow;
};

}  // namespace outliner
