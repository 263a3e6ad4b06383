// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineRestorer.h"

#include <utility>

#include "OutlineDocument.h"

namespace outliner {

OutlineRestorer::OutlineRestorer(OutlineDocument& inDocument) : mDocument(inDocument) {
  for (const OutlineRow* row : inDocument.GetSelectedRows())
    mRows.push_back(row->GetId());
}

OutlineRestorer::OutlineRestorer(OutlineDocument& inDocument, std::vector<OutlineRow::Id> inRows)
    : mDocument(inDocument), mRows(std::move(inRows)) {}

void OutlineRestorer::Restore() {
  std::vector<OutlineRow*> rows;
  for (const OutlineRow::Id id : mRows) {
    if (OutlineRow* row = mDocument.GetTree().FindRow(id)) rows.push_back(row);
  }
  mDocument.SelectRows(rows);
}

}  // namespace outliner
