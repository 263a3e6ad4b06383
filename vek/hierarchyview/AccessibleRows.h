// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/hierarchyview/HierarchyGeometry.h"
#include "vek/trackview/AccessibleOverlay.h"

namespace vek::hierarchyview {

class MultiColumnView;

// A tree control, which derives from it, for those who do not see it. Each row that is open is an
// item of the view, scrolled away or not, from top to bottom and with its level; where the control
// has columns, each row's cells are its items. Readers can open, close, select and show a row.
//
// An item goes by its entry, and so means the same row wherever that moves to, and none while it is
// closed away or has gone. Rows are looked for when they are asked about: with one of the library's
// geometries that costs little, otherwise a walk each time.
class VEK_API AccessibleRows : public trackview::AccessibleOverlay {
 public:
  ~AccessibleRows() override;

  int GetAccessibleChildCount(ID inParent) const override;
  ID GetAccessibleChild(ID inParent, int inIndex) const override;
  ID GetAccessibleParent(ID inItem) const override;
  int GetAccessibleIndex(ID inItem) const override;
  bool DescribeAccessible(ID inItem, lumui::ui::AccessibleItem& outItem) const override;
  ID GetAccessibleAt(const trackview::Point& inDataPoint) const override;
  ID GetAccessibleFocus() const override;
  bool PerformAccessible(ID inItem, lumui::ui::AccessibleAction inAction) override;

 protected:
  AccessibleRows() = default;

  // Null stands for all rows.
  void AnnounceRow(lumui::ui::AccessibleChange inChange, HierarchyEntryBase const* inEntry) const;
  // Who gives the control its selection calls this whenever that has changed, as the ready-made
  // controls do.
  void AnnounceSelection() const;

 private:
  TreeControlBase& GetControl() const;
  MultiColumnView const* GetColumns() const;  // null for a tree without
  bool IsHidden(HierarchyEntryBase const* inEntry) const;
  int CountHidden() const;
  int CountRowsTo(HierarchyEntryBase const* inEntry) const;
  HierarchyGeometry::iterator FindRow(ID inItem) const;  // on null for none
  trackview::Rect GetRowRect(HierarchyGeometry::iterator const& inRow) const;
  void DescribeRow(HierarchyGeometry::iterator const& inRow,
                   lumui::ui::AccessibleItem& outItem) const;
  void DescribeCell(HierarchyGeometry::iterator const& inRow, unsigned short inColumn,
                    lumui::ui::AccessibleItem& outItem) const;
};

}  // namespace vek::hierarchyview
