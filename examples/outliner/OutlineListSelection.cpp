// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The part of the outline's list that knows what is selected.

#include <algorithm>
#include <list>
#include <unordered_set>
#include <utility>

#include "OutlineDocument.h"
#include "OutlineEntries.h"
#include "OutlineTreeList.h"
#include "lumui/ui/KeyboardCode.h"
#include "vek/selection/ActiveManager.h"

namespace outliner {

using lumui::ui::KeyboardCode;
using vek::selection::Node;

int OutlineTreeList::NumSelectedEntries() {
  return mDocument ? static_cast<int>(mDocument->CountSelectedRows()) : 0;
}

vek::selection::Manager* OutlineTreeList::GetSelectionManager() const {
  return mDocument ? &mDocument->GetSelection() : nullptr;
}

vek::selection::Manager* OutlineTreeList::GetSelectionManager() {
  return std::as_const(*this).GetSelectionManager();
}

void OutlineTreeList::DoViewActivation() {
  if (mDocument) vek::selection::SetActiveManager(GetSelectionManager());
}

void OutlineTreeList::DoDeselectAll() {
  if (mDocument) mDocument->SelectRows({});
}

void OutlineTreeList::DoSelectEntry(Entry* inEntry, bool inExtend) {
  const OutlineRow::Id id = static_cast<OutlineEntry*>(inEntry)->GetRowId();
  // Before the selection changes: what is committed selects its own row. It may end the entry.
  mDocument->CommitTyping();
  OutlineRow* const row = mDocument->GetTree().FindRow(id);
  if (!row || !row->GetParent()) return;
  if (inExtend) {
    mDocument->GetSelection().ToggleSelectables({row}, vek::selection::eSendMessages);
  } else {
    mDocument->SelectRows({row});
  }
  if (!mDocument || !mDocument->IsSelected(*row)) return;
  if (Entry* const entry = mEntries->Find(id)) SetFocusItem(entry, true);
}

void OutlineTreeList::DoToggleEntrySelectionState(EntryList& ioEntries) {
  std::list<Node*> nodes;
  for (Entry* const entry : ioEntries) {
    if (Node* const node = entry->GetDataAsSelNode()) nodes.push_back(node);
  }
  mDocument->GetSelection().ToggleSelectables(nodes, vek::selection::eSendMessages);
}

// The keyboard goes on from the one selected row.
void OutlineTreeList::FollowSelection() {
  Entry* const focus = GetFocusItem();
  if (const OutlineRow* const row = mDocument->GetOnlySelectedRow()) {
    Entry* const entry = mEntries->Find(row->GetId());
    if (entry != focus) SetFocusItem(entry, true);
  } else if (focus && !focus->Selected(GetSelectionManager())) {
    SetFocusItem(nullptr, true);
  }
}

void OutlineTreeList::Step(bool inDown) {
  if (!mDocument) return;
  mDocument->CommitTyping();
  // Of many selected rows the tree's own step would have each drawn anew, whether it shows or not.
  if (NumSelectedEntries() != 1) {
    GoByListKey(inDown ? KeyboardCode::kDownArrow : KeyboardCode::kUpArrow, false);
  } else {
    inDown ? SelectNext() : SelectPrevious();
  }
}

void OutlineTreeList::SelectAllShown() {
  if (!mDocument) return;
  if (mEntries->GetFilter().IsEmpty()) return mDocument->GetSelection().SelectAll();
  std::vector<OutlineRow*> rows;
  for (OutlineRow* const row : mDocument->GetTree().GetLines()) {
    if (mEntries->Find(row->GetId())) rows.push_back(row);
  }
  mDocument->SelectRows(rows);
}

// The topmost of the closed rows stands for what is selected below it.
void OutlineTreeList::TakePlaceOfSelection(const std::vector<Entry*>& inClosed) {
  const std::unordered_set<const Entry*> closed(inClosed.begin(), inClosed.end());
  std::vector<OutlineRow*> rows;
  bool isOther = false;
  for (OutlineRow* const selected : mDocument->GetSelectedRows()) {
    OutlineRow* row = selected;
    const Entry* const entry = mEntries->Find(selected->GetId());
    for (const Entry* above = entry ? entry->GetParent() : nullptr; above;
         above = above->GetParent()) {
      if (closed.count(above) != 0) row = static_cast<const OutlineEntry*>(above)->FindRow();
    }
    isOther = isOther || row != selected;
    if (std::find(rows.rbegin(), rows.rend(), row) == rows.rend()) rows.push_back(row);
  }
  if (isOther) mDocument->SelectRows(rows);
}

}  // namespace outliner
