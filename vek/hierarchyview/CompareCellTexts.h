// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"

namespace vek::hierarchyview {

class HierarchyEntryBase;

// The order that trees sort by unless somebody gives another: whose text of the attribute is the
// greater goes first. Texts are compared by their UTF-16 units; of two that begin alike the longer
// one is the greater.
struct VEK_API CompareCellTexts {
  bool operator()(unsigned int inAttribute, HierarchyEntryBase const* inLeft,
                  HierarchyEntryBase const* inRight) const;
};

}  // namespace vek::hierarchyview
