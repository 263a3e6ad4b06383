// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/selection/KnowingJunction.h"

namespace vek::hierarchyview {

class HierarchyEntryBase;

// A junction of a tree in which each entry has a node of its own, and which can say whose one is.
// Then a control asks it for the few entries that are selected and need not ask every row.
class VEK_API EntryJunction : public selection::KnowingJunction {
 public:
  // For a node that Knows has just found. Null where it can not tell: then the rows are asked.
  virtual HierarchyEntryBase* FindEntry(const selection::Node* inNode) = 0;
};

}  // namespace vek::hierarchyview
