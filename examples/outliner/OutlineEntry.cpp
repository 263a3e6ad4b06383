// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineEntry.h"

#include "OutlineEntries.h"
#include "lumui/drawbot/Image.h"

namespace outliner {

using vek::hierarchyview::ENodeState;

OutlineEntry::OutlineEntry(OutlineEntries& inEntries, OutlineRow::Id inRow, ENodeState inState)
    : HierarchyEntry(inState, nullptr), mEntries(inEntries), mRow(inRow) {}

OutlineEntry::~OutlineEntry() = default;

OutlineRow* OutlineEntry::FindRow() const {
  return mEntries.GetTree().FindRow(mRow);
}

void OutlineEntry::SetNodeState(ENodeState inState) {
  HierarchyEntry::SetNodeState(inState);
  mEntries.NoteState(mRow, inState);
}

boost::intrusive_ptr<lumui::drawbot::ImageInterface> OutlineEntry::GetNodeIcon() {
  return nullptr;
}

void OutlineEntry::GetCellText(unsigned int const& inAttribute,
                               lumcore::UTF16String& outText) const {
  outText.clear();
  if (const OutlineRow* const row = FindRow())
    mEntries.GetColumns().GetText(*row, inAttribute, outText);
  // Who draws or reads out a cell measures all of its text.
  if (outText.size() > kMostShown) outText.resize(kMostShown);
}

bool OutlineEntry::CanExpand() const {
  return !GetChildren().empty();
}

bool OutlineEntry::CanCollapse() const {
  return !GetChildren().empty();
}

vek::selection::Node* OutlineEntry::GetDataAsSelNode() const {
  return GetParent() ? FindRow() : nullptr;
}

}  // namespace outliner
