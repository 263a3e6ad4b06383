// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>
#include <cstdint>
#include <list>

#include "vek/hierarchyview/HierarchyColumnInfo.h"
#include "vek/hierarchyview/MultiColumnView.h"
#include "vek/hierarchyview/TreeControlBase.h"

namespace vek::hierarchyview {

// A tree whose rows have cells in columns. A header in a view of its own shows and changes the
// columns (MultiColumnHeaderView); it hears of changes by the noter, and listeners always see the
// new columns, before the rows are laid out anew. A listener may take the control away.
//
// Sorting covers the whole tree, open or not. It goes by the function of the column, or by the
// control's default, which says that the greater text comes first.
class VEK_API TreeListControlBase : public MultiColumnView, public TreeControlBase {
 public:
  // The indent is that of trees; lists have a fixed one.
  TreeListControlBase(trackview::TrackView* inTrackView, bool inHideRoot, unsigned short inIndent,
                      bool inIsSingleSelect, bool inAllowsDragOut);
  ~TreeListControlBase() override;

  void InsertColumn(unsigned int const& inAttribute, float inWidth, float inMinWidth,
                    unsigned short const* inDescriptor,
                    boost::shared_ptr<CompareFunction> inCompare) override;
  void RemoveColumn(unsigned short inColumn) override;
  unsigned short GetNumberOfColumns() const override;
  void SetColumnWidth(unsigned short inColumn, float inWidth) override;
  float GetColumnWidth(unsigned short inColumn) const override;
  float GetColumnStartLoc(unsigned short inColumn) const override;
  float GetMinColumnWidth(unsigned short inColumn) const override;
  // With a column that is none nothing is sorted; the rest is done. What the compare function
  // throws reaches the caller, with the new sort column in place and nobody told.
  void SetSortColumn(unsigned short inColumn) override;
  unsigned short GetSortColumn() const override { return mSortColumn; }
  void SortIsAscending(bool inAscending) override;
  bool GetSortIsAscending() const override { return mSortAscending; }
  void GetColumnDescriptor(unsigned short inColumn,
                           lumcore::UTF16String& outDescriptor) const override;
  bool HasColumnForAttr(unsigned int const& inAttribute, unsigned short& outColumn) const override;
  unsigned int GetColumnAttr(unsigned short inColumn) const override;
  void MoveColumn(unsigned short inFrom, unsigned short inTo) override;
  bool GetColumnHitByPoint(Point const& inDataPoint, unsigned short& outColumn) const override;
  void SizeColumnToMaxStringLength(unsigned short inColumn) override;
  messaging::Broadcaster<ColumnStateChangeMessage const>* GetColumnStateChangedNoter() override;
  Point GetTopLeftOfDisplayedArea() override;

  float GetTotalColumnWidth() const;
  // Around the text of a cell, as far as its column shows it. With a column that is none it is the
  // row's own text.
  Rect GetTextBoundingRect(HierarchyGeometry::iterator const& inRow, unsigned short inColumn);
  Rect GetTextBoundingRect(TreeRowGeometry const* inRow, HierarchyEntryBase const* inEntry,
                           unsigned short inColumn);

 protected:
  std::auto_ptr<HierarchyGeometry> CreateGeometry() override;
  unsigned int GetTypeAheadID() const override;  // what the first column shows

 private:
  using Noter = messaging::Broadcaster<ColumnStateChangeMessage const>;

  HierarchyColumnInfo* FindColumn(unsigned short inColumn);
  HierarchyColumnInfo const* FindColumn(unsigned short inColumn) const;
  float WidthOf(std::list<HierarchyColumnInfo>::const_iterator inColumn) const;
  void SortRows();
  bool Tell(eChangeType inType, unsigned short inColumn);
  float GetWidestCell(unsigned short inColumn);

  std::list<HierarchyColumnInfo> mColumns;  // from left to right
  std::uint16_t mSortColumn = 0;
  bool mSortAscending = true;
  float mFirstColumnExtra = 0;            // of what a reader sees of column 0
  boost::shared_ptr<Noter> mColumnNoter;  // shared with the call that is telling
};

}  // namespace vek::hierarchyview
