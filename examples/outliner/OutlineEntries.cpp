// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineEntries.h"

#include <algorithm>
#include <utility>

#include "AttributeEdits.h"
#include "lumui/drawbot/Image.h"

namespace outliner {

using vek::hierarchyview::CompareFunction;
using vek::hierarchyview::ENodeState;
using vek::hierarchyview::kNodeCollapsed;
using vek::hierarchyview::kNodeExpanded;

namespace {

constexpr OutlineRow::Id kRootId = 0;

OutlineRow::Id RowOf(const OutlineEntries::Entry* inEntry) {
  return static_cast<const OutlineEntry*>(inEntry)->GetRowId();
}

}  // namespace

OutlineEntries::OutlineEntries(OutlineTree& ioTree)
    : mTree(ioTree),
      mColumns(ioTree),
      mRoot(new OutlineEntry(*this, kRootId, kNodeExpanded)),
      mOrder(new CompareFunction([this](unsigned int, const Entry* inLeft, const Entry* inRight) {
        const auto rank = [this](const Entry* inEntry) {
          const OutlineRow::Id row = RowOf(inEntry);
          return row < mRanks.size() ? mRanks[row] : 0;
        };
        return rank(inLeft) < rank(inRight);
      })) {
  Rebuild();
  mTree.SetChangeFunction([this](const OutlineRow& inParent) { mStale.insert(inParent.GetId()); });
}

OutlineEntries::~OutlineEntries() {
  mTree.SetChangeFunction(nullptr);
}

OutlineEntry* OutlineEntries::Find(OutlineRow::Id inRow) const {
  return inRow < mByRow.size() ? mByRow[inRow] : nullptr;
}

void OutlineEntries::NoteState(OutlineRow::Id inRow, ENodeState inState) {
  if (!mFilter.IsEmpty()) return;
  if (inState == kNodeCollapsed) {
    mClosed.insert(inRow);
  } else {
    mClosed.erase(inRow);
  }
}

bool OutlineEntries::Update(bool inTextsChanged) {
  const bool hasOrder = mSortedBy != 0;
  if (mStale.empty() && !(inTextsChanged && (hasOrder || !mFilter.IsEmpty()))) return false;
  if (!mFilter.IsEmpty()) {
    Rebuild();
  } else {
    std::vector<OutlineEntry*> parents;
    for (const OutlineRow::Id row : mStale) {
      if (OutlineEntry* const entry = Find(row)) parents.push_back(entry);
    }
    RebuildBelow(parents);
  }
  mStale.clear();
  SortAgain();
  return true;
}

void OutlineEntries::Rebuild() {
  auto& root = static_cast<OutlineEntry&>(*mRoot);
  root.RemoveAllChildren();
  mByRow.clear();
  mStale.clear();
  if (!mFilter.IsEmpty()) FindShown();
  mByRow.resize(1, &root);
  Fill({&root});
}

// Entries wait apart until all rows that have changed are gone through, since a row may have gone
// from one of them to another.
void OutlineEntries::RebuildBelow(const std::vector<OutlineEntry*>& inParents) {
  Entry::List apart;
  for (OutlineEntry* const parent : inParents) {
    for (const EntryP& child : parent->GetChildren()) {
      child->SetParent(nullptr);
      apart.push_back(child);
    }
    parent->RemoveAllChildren();
  }
  Fill(inParents);
  Entry::List leaving;
  for (const EntryP& entry : apart) {
    if (!entry->GetParent()) leaving.push_back(entry);
  }
  Forget(leaving);
}

// With all that is below them, but for what entries that are reused have below them already.
void OutlineEntries::Fill(std::vector<OutlineEntry*> inWaiting) {
  while (!inWaiting.empty()) {
    OutlineEntry& parent = *inWaiting.back();
    inWaiting.pop_back();
    const OutlineRow* const row = parent.FindRow();
    for (std::size_t child = 0; row && child < row->GetChildCount(); ++child) {
      if (!Shows(*row->GetChild(child))) continue;
      bool isNew = false;
      OutlineEntry& entry = AppendEntry(parent, *row->GetChild(child), isNew);
      if (isNew && row->GetChild(child)->GetChildCount() > 0) inWaiting.push_back(&entry);
    }
  }
}

OutlineEntry& OutlineEntries::AppendEntry(OutlineEntry& ioParent, const OutlineRow& inRow,
                                          bool& outIsNew) {
  const OutlineRow::Id id = inRow.GetId();
  if (mByRow.size() <= id) mByRow.resize(id + 1);
  outIsNew = !mByRow[id];
  boost::intrusive_ptr<OutlineEntry> entry(mByRow[id]);
  if (outIsNew) {
    const bool isClosed = mFilter.IsEmpty() && mClosed.count(id) != 0;
    entry.reset(new OutlineEntry(*this, id, isClosed ? kNodeCollapsed : kNodeExpanded));
    mByRow[id] = entry.get();
  }
  entry->SetParent(&ioParent);
  ioParent.AddChild(entry, false);
  return *entry;
}

void OutlineEntries::Forget(const Entry::List& inLeaving) {
  std::vector<const Entry*> waiting;
  for (const EntryP& entry : inLeaving)
    waiting.push_back(entry.get());
  while (!waiting.empty()) {
    const Entry* const entry = waiting.back();
    waiting.pop_back();
    if (Find(RowOf(entry)) == entry) mByRow[RowOf(entry)] = nullptr;
    for (const EntryP& child : entry->GetChildren())
      waiting.push_back(child.get());
  }
}

void OutlineEntries::SetFilter(const TextSearch& inFilter,
                               std::vector<OutlineColumns::Attribute> inColumns) {
  mFilter = inFilter;
  mFilterColumns = std::move(inColumns);
  mLetIn.clear();
  Rebuild();
  SortAgain();
}

bool OutlineEntries::LetIn(const std::vector<OutlineRow*>& inRows) {
  if (mFilter.IsEmpty()) return false;
  bool isNew = false;
  for (const OutlineRow* const row : inRows) {
    if (!Shows(*row)) isNew = mLetIn.insert(row->GetId()).second || isNew;
  }
  if (!isNew) return false;
  Rebuild();
  SortAgain();
  return true;
}

bool OutlineEntries::Shows(const OutlineRow& inRow) const {
  if (mFilter.IsEmpty()) return true;
  return inRow.GetId() < mShown.size() && mShown[inRow.GetId()];
}

void OutlineEntries::FindShown() {
  mShown.clear();
  for (const OutlineRow* line : mTree.GetLines()) {
    if (!Matches(*line) && mLetIn.count(line->GetId()) == 0) continue;
    for (const OutlineRow* row = line; row && !Shows(*row); row = row->GetParent()) {
      if (mShown.size() <= row->GetId()) mShown.resize(row->GetId() + 1);
      mShown[row->GetId()] = true;
    }
  }
}

bool OutlineEntries::Matches(const OutlineRow& inRow) const {
  if (mFilter.IsIn(inRow.GetText())) return true;
  if (inRow.GetAttributeCount() == 0) return false;
  const lumcore::UTF16String* const note = mTree.FindAttribute(inRow, attributes::Note());
  if (note && mFilter.IsIn(*note)) return true;
  lumcore::UTF16String text;
  return std::any_of(mFilterColumns.begin(), mFilterColumns.end(), [&](auto inAttribute) {
    mColumns.GetText(inRow, inAttribute, text);
    return mFilter.IsIn(text);
  });
}

void OutlineEntries::PrepareSort(OutlineColumns::Attribute inAttribute) {
  mSortedBy = inAttribute;
  mRanks = mColumns.RankRows(inAttribute);
}

void OutlineEntries::SortAgain() {
  if (mSortedBy == 0) return;
  PrepareSort(mSortedBy);
  mRoot->ResortChildren();
}

// Sorting by no attribute leaves entries without an order of their own.
void OutlineEntries::Unsort() {
  if (mSortedBy == 0) return;
  mSortedBy = 0;
  const auto& lines = mTree.GetLines();
  mRanks.assign(mByRow.size(), 0);
  for (std::uint32_t line = 0; line < lines.size(); ++line) {
    const OutlineRow::Id row = lines[line]->GetId();
    if (row < mRanks.size()) mRanks[row] = line;
  }
  mRoot->SortChildren(0, true, mOrder);
}

}  // namespace outliner
