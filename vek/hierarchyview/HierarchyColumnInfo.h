// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

// A column of a tree list: what its cells show, how wide it is and how it sorts. Widths are taken
// as given; the minimum binds only who drags the column.
class VEK_API HierarchyColumnInfo {
 public:
  HierarchyColumnInfo(unsigned int const& inAttributeID, float inWidth, float inMinWidth,
                      lumcore::UTF16String const& inDescriptor,
                      boost::shared_ptr<CompareFunction> inCompare);
  HierarchyColumnInfo(HierarchyColumnInfo const& inOther);
  HierarchyColumnInfo& operator=(HierarchyColumnInfo const& inOther);
  virtual ~HierarchyColumnInfo();

  unsigned int GetAttributeID() const { return mAttributeID; }
  void GetColumnDescriptor(lumcore::UTF16String& outDescriptor) const;
  float GetColumnWidth() const { return mColumnWidth; }
  void SetColumnWidth(float inWidth) { mColumnWidth = inWidth; }
  float GetMinColumnWidth() const { return mMinColumnWidth; }
  boost::shared_ptr<CompareFunction> GetCompareFxn() const { return mCompareFunction; }

 private:
  std::uint32_t mAttributeID;
  float mColumnWidth;
  float mMinColumnWidth;
  lumcore::UTF16String mColumnDescriptor;
  boost::shared_ptr<CompareFunction> mCompareFunction;  // may be empty
};

}  // namespace vek::hierarchyview
