// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "OutlineRow.h"
#include "OutlineTree.h"
#include "vek/undo/Deed.h"

namespace outliner {

class OutlineDocument;

// Brings new rows, with what is below them, into the tree. It owns them while they are out of it.
class InsertRowsDeed final : public vek::undo::Deed {
 public:
  InsertRowsDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
                 const OutlineRow& inParent, std::size_t inIndex, OutlineTree::Rows inRows);
  ~InsertRowsDeed() override;

 protected:
  void RedoSelf() override;
  void UndoSelf() override;

 private:
  OutlineDocument& mDocument;
  OutlineRow::Id mParent;
  std::size_t mIndex;
  std::size_t mCount;
  OutlineTree::Rows mRows;
};

}  // namespace outliner
