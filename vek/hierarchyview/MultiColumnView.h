// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>

#include "lumcore/Strings.h"
#include "vek/config/Export.h"
#include "vek/hierarchyview/ColumnStateChangeMessage.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"
#include "vek/messaging/Broadcaster.h"
#include "vek/trackview/Types.h"

namespace vek::hierarchyview {

// The columns of a list, from left to right, by index from 0. It is all that a header knows of the
// list below it. With an index that is too high a getter answers 0 or nothing, and whatever would
// change something changes nothing. Widths and positions are in data units of the list.
class VEK_API MultiColumnView {
 public:
  // Appends a column. A null descriptor is an empty title. Throws boost::bad_numeric_cast, with
  // nothing changed, where the index would not fit 16 bits.
  virtual void InsertColumn(unsigned int const& inAttribute, float inWidth, float inMinWidth,
                            unsigned short const* inDescriptor,
                            boost::shared_ptr<CompareFunction> inCompare) = 0;
  // Where it was the sort column, the one before it is that now; nothing is sorted.
  virtual void RemoveColumn(unsigned short inColumn) = 0;
  virtual unsigned short GetNumberOfColumns() const = 0;
  // Also below the column's minimum, which binds only who drags it.
  virtual void SetColumnWidth(unsigned short inColumn, float inWidth) = 0;
  virtual float GetColumnWidth(unsigned short inColumn) const = 0;
  virtual float GetColumnStartLoc(unsigned short inColumn) const = 0;
  virtual float GetMinColumnWidth(unsigned short inColumn) const = 0;
  // Sorts the whole tree, open or not.
  virtual void SetSortColumn(unsigned short inColumn) = 0;
  virtual unsigned short GetSortColumn() const = 0;  // may be none of the columns
  virtual void SortIsAscending(bool inAscending) = 0;
  virtual bool GetSortIsAscending() const = 0;
  virtual void GetColumnDescriptor(unsigned short inColumn,
                                   lumcore::UTF16String& outDescriptor) const = 0;
  virtual bool HasColumnForAttr(unsigned int const& inAttribute,
                                unsigned short& outColumn) const = 0;
  virtual unsigned int GetColumnAttr(unsigned short inColumn) const = 0;
  // Before the column that has the index inTo now, which may be the number of columns: a move to
  // the right takes the index behind the target.
  virtual void MoveColumn(unsigned short inFrom, unsigned short inTo) = 0;
  // Only x decides; a point on a border belongs to the column left of it.
  virtual bool GetColumnHitByPoint(trackview::Point const& inDataPoint,
                                   unsigned short& outColumn) const = 0;
  // As wide as the widest cell of the rows that show, and not below the minimum.
  virtual void SizeColumnToMaxStringLength(unsigned short inColumn) = 0;
  virtual messaging::Broadcaster<ColumnStateChangeMessage const>* GetColumnStateChangedNoter() = 0;
  virtual trackview::Point GetTopLeftOfDisplayedArea() = 0;

 protected:
  MultiColumnView() = default;
  ~MultiColumnView() = default;  // nobody owns a list by this
  MultiColumnView(MultiColumnView const&) = default;
  MultiColumnView& operator=(MultiColumnView const&) = default;
};

}  // namespace vek::hierarchyview
