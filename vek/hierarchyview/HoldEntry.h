// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>

#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

// Keeps an entry alive through calls into a host. Null for one that nobody holds by reference (on
// the stack, or a member): a last reference of ours would delete what its owner deletes.
inline boost::intrusive_ptr<HierarchyEntryBase> HoldEntry(HierarchyEntryBase* inEntry) {
  const bool isCounted = inEntry && inEntry->GetRefCount() > 0;
  return boost::intrusive_ptr<HierarchyEntryBase>(isCounted ? inEntry : nullptr);
}

}  // namespace vek::hierarchyview
