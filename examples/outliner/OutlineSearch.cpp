// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineSearch.h"

#include "AttributeEdits.h"
#include "OutlineDocument.h"
#include "Texts.h"

namespace outliner::search {

using lumcore::UTF16String;

bool IsInRow(const OutlineDocument& inDocument, const OutlineRow& inRow,
             const TextSearch& inSearch) {
  if (inSearch.IsIn(inRow.GetText())) return true;
  const UTF16String* const note = inDocument.GetTree().FindAttribute(inRow, attributes::Note());
  return note && inSearch.IsIn(*note);
}

std::vector<OutlineRow::Id> FindRows(const OutlineDocument& inDocument,
                                     const TextSearch& inSearch) {
  std::vector<OutlineRow::Id> rows;
  if (inSearch.IsEmpty()) return rows;
  for (const OutlineRow* row : inDocument.GetTree().GetLines()) {
    if (IsInRow(inDocument, *row, inSearch)) rows.push_back(row->GetId());
  }
  return rows;
}

OutlineRow* FindNext(const OutlineDocument& inDocument, const TextSearch& inSearch,
                     bool inForward) {
  const auto& lines = inDocument.GetTree().GetLines();
  const auto selected = inDocument.GetSelectedRows();
  if (inSearch.IsEmpty() || lines.empty()) return nullptr;
  const std::size_t count = lines.size();
  std::size_t line = inForward ? count - 1 : 0;  // where nothing is selected, from the end
  if (!selected.empty()) {
    line = inDocument.GetTree().GetLine(inForward ? *selected.back() : *selected.front());
  }
  for (std::size_t step = 0; step < count; ++step) {
    line = (line + (inForward ? 1 : count - 1)) % count;
    if (IsInRow(inDocument, *lines[line], inSearch)) return lines[line];
  }
  return nullptr;
}

std::size_t Replace(OutlineDocument& ioDocument, const std::vector<OutlineRow::Id>& inRows,
                    const TextSearch& inSearch, const UTF16String& inReplacement) {
  std::vector<edits::NewTexts> changes;
  for (const OutlineRow::Id id : inRows) {
    const OutlineRow* const row = ioDocument.GetTree().FindRow(id);
    if (!row) continue;
    edits::NewTexts change{id, {}, {}};
    if (inSearch.IsIn(row->GetText())) {
      change.text = inSearch.Replace(row->GetText(), inReplacement);
    }
    if (const UTF16String note = edits::GetNote(ioDocument, *row); inSearch.IsIn(note)) {
      change.note = inSearch.Replace(note, inReplacement);
    }
    if (change.text || change.note) changes.push_back(std::move(change));
  }
  edits::SetTexts(ioDocument, changes,
                  Localized(inRows.size() == 1 ? "$$$/outliner/Edit/Replace=Replace"
                                               : "$$$/outliner/Edit/ReplaceAll=Replace All"));
  return changes.size();
}

}  // namespace outliner::search
