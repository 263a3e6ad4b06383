// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "vek/config/Export.h"

namespace vek::hierarchyview {

enum eChangeType : std::uint32_t {
  kColumnInserted = 0,
  kColumnMoved = 1,  // the column is told by the index that it had
  kColumnWidthChanged = 2,
  kColumnRemoved = 3,
  kColumnSortChanged = 4,  // the column or the direction
};

// A change of the columns of a MultiColumnView, sent when the columns are as they are now and
// before the rows follow.
class VEK_API ColumnStateChangeMessage {
 public:
  ColumnStateChangeMessage(eChangeType inType, unsigned short inColumn)
      : mType(inType), mColumn(inColumn) {}
  ColumnStateChangeMessage(ColumnStateChangeMessage const&) = default;
  ColumnStateChangeMessage& operator=(ColumnStateChangeMessage const&) = default;
  virtual ~ColumnStateChangeMessage();

  eChangeType GetChangeType() const { return mType; }
  unsigned short GetAffectedColumn() const { return mColumn; }

 private:
  eChangeType mType;
  std::uint16_t mColumn;
};

}  // namespace vek::hierarchyview
