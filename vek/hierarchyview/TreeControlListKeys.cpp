// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The keys of lists, beyond those that every tree control has.

#include <algorithm>
#include <optional>

#include "lumui/ui/KeyboardEvent.h"
#include "vek/hierarchyview/HoldEntry.h"
#include "vek/hierarchyview/RowWalk.h"
#include "vek/hierarchyview/TreeControlBase.h"
#include "vek/trackview/TrackView.h"

namespace vek::hierarchyview {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;

// The rows that show, from the top, and where among them the keyboard is.
struct TreeControlBase::KeyRows {
  std::vector<HierarchyEntryBase*> entries;
  std::vector<std::size_t> selected;
  std::optional<std::size_t> from;  // none while nothing is selected

  bool IsOneBlock() const { return selected.back() - selected.front() + 1 == selected.size(); }

  // The end of a range that the keyboard has not moved: the other end of one block of rows.
  std::size_t FindAnchor() const {
    if (IsOneBlock() && *from == selected.front()) return selected.back();
    if (IsOneBlock() && *from == selected.back()) return selected.front();
    return *from;
  }
};

// Goes on from the row with the focus, or else from that end of the selected ones to which the key
// leads.
TreeControlBase::KeyRows TreeControlBase::FindKeyRows(bool inTowardsEnd) {
  KeyRows rows;
  for (RowWalk row(*mGeometry); !row.AtEnd(); row.Next()) {
    if (row.GetHeight() <= 0) continue;
    if (IsSelected(row.GetEntry())) {
      if (row.GetEntry() == mFocusItem) rows.from = rows.entries.size();
      rows.selected.push_back(rows.entries.size());
    }
    rows.entries.push_back(row.GetEntry());
  }
  if (!rows.from && !rows.selected.empty())
    rows.from = inTowardsEnd ? rows.selected.back() : rows.selected.front();
  return rows;
}

// A page leaves one row of the one before it in sight, and is one row at least.
std::size_t TreeControlBase::FindPageEnd(KeyRows const& inRows, bool inTowardsEnd) {
  const float page = mTrackView->DataArea().height;
  const auto heightOf = [&](std::size_t inRow) {
    return mGeometry->EntryWidthHeight(inRows.entries[inRow]).y;
  };
  const std::size_t from = *inRows.from;
  const std::size_t last = inTowardsEnd ? inRows.entries.size() - 1 : 0;
  std::size_t at = from;
  for (float height = heightOf(from); at != last;) {
    const std::size_t next = inTowardsEnd ? at + 1 : at - 1;
    height += heightOf(next);
    if (height > page && at != from) break;
    at = next;
  }
  return at;
}

std::size_t TreeControlBase::FindKeyTarget(unsigned int inCode, KeyRows const& inRows) {
  const std::size_t last = inRows.entries.size() - 1;
  switch (inCode) {
    case KeyboardCode::kHome:
      return 0;
    case KeyboardCode::kEnd:
      return last;
    case KeyboardCode::kUpArrow:
      if (!inRows.from) return last;
      return *inRows.from - std::min<std::size_t>(*inRows.from, 1);
    case KeyboardCode::kDownArrow:
      return inRows.from ? std::min(*inRows.from + 1, last) : 0;
    case KeyboardCode::kPageUp:
      return inRows.from ? FindPageEnd(inRows, false) : last;
    default:
      return inRows.from ? FindPageEnd(inRows, true) : 0;
  }
}

bool TreeControlBase::HandleListKey(const KeyboardEvent& inEvent) {
  const auto modifiers = inEvent.GetModKey();
  const unsigned int code = inEvent.GetCode().GetControlCode(false);
  if (!HasRows() || !inEvent.IsActionKeyDown() || modifiers.Has(lumui::ui::kModAlt)) return false;
  const bool isControl = modifiers.Has(lumui::ui::kModCommand);
  const bool isRange = modifiers.Has(lumui::ui::kModShift) && !mIsSingleSelect;
  switch (code) {
    case KeyboardCode::kLeftArrow:
    case KeyboardCode::kRightArrow:
      return modifiers.IsEmpty() && StepAcrossLevels(code == KeyboardCode::kRightArrow);
    case KeyboardCode::kUpArrow:
    case KeyboardCode::kDownArrow:
      if (isControl || !isRange) return false;
      break;
    case KeyboardCode::kPageUp:
    case KeyboardCode::kPageDown:
      if (isControl) return false;
      break;
    case KeyboardCode::kHome:
    case KeyboardCode::kEnd:
      break;
    default:
      return false;
  }
  GoByListKey(code, isRange);
  return true;
}

void TreeControlBase::GoByListKey(unsigned int inCode, bool inIsRange) {
  if (!HasRows()) return;
  const KeyRows rows =
      FindKeyRows(inCode == KeyboardCode::kDownArrow || inCode == KeyboardCode::kPageDown ||
                  inCode == KeyboardCode::kEnd);
  if (rows.entries.empty()) return;
  const std::size_t target = FindKeyTarget(inCode, rows);
  if (inIsRange && rows.from) {
    SelectKeyRange(rows, target);
  } else {
    GoToRow(rows.entries[target]);
  }
}

// From the one selected row to the row above it where it is closed or has none below it, and to its
// first one where it is open.
bool TreeControlBase::StepAcrossLevels(bool inDown) {
  HierarchyEntryBase* const entry = FindOnlySelectedRow();
  if (!entry) return false;
  const bool isOpen = entry->GetNodeState() != kNodeCollapsed && !entry->GetChildren().empty();
  HierarchyEntryBase* target = nullptr;
  if (inDown) {
    if (isOpen) target = entry->GetChildren().front().get();
  } else if (!isOpen || !CanCollapseNode(entry)) {
    if (entry != mRootEntry) target = entry->GetParent();
    if (target && mHideRoot && target == mRootEntry) target = nullptr;
  }
  if (target) GoToRow(target);
  return target != nullptr;
}

void TreeControlBase::GoToRow(HierarchyEntryBase* inEntry) {
  const auto held = HoldEntry(inEntry);
  DoSelectEntry(inEntry, false);
  ShowKeyTarget(inEntry);
}

// One change of the selection, unless rows that do not show have to leave it as well.
void TreeControlBase::SelectKeyRange(KeyRows const& inRows, std::size_t inTarget) {
  HierarchyEntryBase* const target = inRows.entries[inTarget];
  const auto held = HoldEntry(target);
  const std::size_t anchor = inRows.FindAnchor();
  const std::size_t first = std::min(anchor, inTarget);
  const std::size_t last = std::max(anchor, inTarget);
  const bool allShow = static_cast<std::size_t>(NumSelectedEntries()) == inRows.selected.size();
  EntryList toggle;
  auto nextSelected = inRows.selected.begin();
  for (const std::size_t row : inRows.selected) {
    if (allShow && (row < first || row > last)) toggle.push_back(inRows.entries[row]);
  }
  for (std::size_t row = first; row <= last; ++row) {
    nextSelected = std::lower_bound(nextSelected, inRows.selected.end(), row);
    const bool isSelected = nextSelected != inRows.selected.end() && *nextSelected == row;
    if (!isSelected || !allShow) toggle.push_back(inRows.entries[row]);
  }
  if (!allShow) DeselectAll();
  if (!toggle.empty()) ToggleEntrySelectionState(toggle);
  ShowKeyTarget(target);
}

void TreeControlBase::ShowKeyTarget(HierarchyEntryBase* inEntry) {
  // Who hears of the selection may have ended the row, and a host may not let it be selected.
  if (!*FindRow(inEntry)) return;
  if (IsSelected(inEntry)) SetFocusItem(inEntry, true);
  RevealIfNotVisible(inEntry);
  Invalidate(mTrackView->DataArea());
  SelectionChanged();
}

}  // namespace vek::hierarchyview
