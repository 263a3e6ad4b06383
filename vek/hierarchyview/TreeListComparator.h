// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

// A value that puts two entries in order by an attribute, a function and a direction. Descending
// asks the function the other way round, so that equal entries keep their order both ways.
class VEK_API TreeListComparator {
 public:
  TreeListComparator(unsigned int const& inAttribute, bool inAscending,
                     boost::shared_ptr<CompareFunction> inCompare);

  // Throws boost::bad_function_call where there is no function.
  bool operator()(boost::intrusive_ptr<HierarchyEntryBase> const& inA,
                  boost::intrusive_ptr<HierarchyEntryBase> const& inB) const;

  std::uint32_t GetAttribute() const { return mAttribute; }
  bool IsAscending() const { return mAscending; }
  boost::shared_ptr<CompareFunction> const& GetCompareFunction() const { return mCompareFunction; }

 private:
  std::uint32_t mAttribute;
  boost::shared_ptr<CompareFunction> mCompareFunction;
  bool mAscending;
};

}  // namespace vek::hierarchyview
