// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeListComparator.h"

#include <utility>

namespace vek::hierarchyview {

TreeListComparator::TreeListComparator(unsigned int const& inAttribute, bool inAscending,
                                       boost::shared_ptr<CompareFunction> inCompare)
    : mAttribute(inAttribute), mCompareFunction(std::move(inCompare)), mAscending(inAscending) {}

bool TreeListComparator::operator()(boost::intrusive_ptr<HierarchyEntryBase> const& inA,
                                    boost::intrusive_ptr<HierarchyEntryBase> const& inB) const {
  if (!mCompareFunction) boost::throw_exception(boost::bad_function_call());
  return mAscending ? (*mCompareFunction)(mAttribute, inA.get(), inB.get())
                    : (*mCompareFunction)(mAttribute, inB.get(), inA.get());
}

}  // namespace vek::hierarchyview
