// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/HierarchyColumnInfo.h"

#include <utility>

namespace vek::hierarchyview {

HierarchyColumnInfo::HierarchyColumnInfo(unsigned int const& inAttributeID, float inWidth,
                                         float inMinWidth, lumcore::UTF16String const& inDescriptor,
                                         boost::shared_ptr<CompareFunction> inCompare)
    : mAttributeID(inAttributeID),
      mColumnWidth(inWidth),
      mMinColumnWidth(inMinWidth),
      mColumnDescriptor(inDescriptor),
      mCompareFunction(std::move(inCompare)) {}

HierarchyColumnInfo::HierarchyColumnInfo(HierarchyColumnInfo const& inOther) = default;

HierarchyColumnInfo& HierarchyColumnInfo::operator=(HierarchyColumnInfo const& inOther) = default;

HierarchyColumnInfo::~HierarchyColumnInfo() = default;

void HierarchyColumnInfo::GetColumnDescriptor(lumcore::UTF16String& outDescriptor) const {
  outDescriptor = mColumnDescriptor;
}

}  // namespace vek::hierarchyview
