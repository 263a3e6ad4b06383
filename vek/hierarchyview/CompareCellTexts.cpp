// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/CompareCellTexts.h"

#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

bool CompareCellTexts::operator()(unsigned int inAttribute, HierarchyEntryBase const* inLeft,
                                  HierarchyEntryBase const* inRight) const {
  lumcore::UTF16String left, right;
  inLeft->GetCellText(inAttribute, left);
  inRight->GetCellText(inAttribute, right);
  return left > right;
}

}  // namespace vek::hierarchyview
