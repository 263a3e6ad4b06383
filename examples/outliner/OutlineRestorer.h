// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "OutlineRow.h"
#include "vek/selection/Restorer.h"

namespace outliner {

class OutlineDocument;

// Brings a selection back by the numbers of its rows. Rows that are not in the tree at that moment
// are passed over. The document is borrowed and outlives the deed that owns this.
class OutlineRestorer final : public vek::selection::Restorer {
 public:
  // What is selected now.
  explicit OutlineRestorer(OutlineDocument& inDocument);
  OutlineRestorer(OutlineDocument& inDocument, std::vector<OutlineRow::Id> inRows);

  void Restore() override;

 private:
  OutlineDocument& mDocument;
  std::vector<OutlineRow::Id> mRows;
};

}  // namespace outliner
