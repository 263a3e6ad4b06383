// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/hierarchyview/HierarchyEntry.h"

namespace vek::hierarchyview {

// The root of a ready-made list: open, and mostly hidden. It has no text and can not be selected.
class VEK_API BasicMultiColRootNode : public HierarchyEntry {
 public:
  BasicMultiColRootNode();

  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetNodeIcon() override;
  void GetCellText(unsigned int const& inAttribute, lumcore::UTF16String& outText) const override;
  bool CanExpand() const override;
  bool CanCollapse() const override;
};

}  // namespace vek::hierarchyview
