// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/hierarchyview/TreeControlBase.h"

#include "lumui/drawbot/SupplierInterface.h"
#include "lumui/ui/Fonts.h"
#include "vek/hierarchyview/HierarchyEntryBase.h"

namespace vek::hierarchyview {

TreeControlBase::TreeControlBase() = default;

TreeControlBase::~TreeControlBase() = default;

lumui::drawbot::FontP TreeControlBase::GetFont() {
  if (!mFont) {
    mFont = lumui::drawbot::GetDefaultSupplier()->NewFont(lumui::ui::GetFontName(0),
                                                          lumui::ui::GetFontSize(0));
  }
  return mFont;
}

void TreeControlBase::SetCustomTextColor(lumui::drawbot::ColorRGBA const& inColor) {
  mCustomTextColor = inColor;
  mHasCustomTextColor = true;
}

void TreeControlBase::SetRootEntry(boost::intrusive_ptr<HierarchyEntryBase> const& inRoot) {
  mRootEntry = inRoot;
}

}  // namespace vek::hierarchyview
