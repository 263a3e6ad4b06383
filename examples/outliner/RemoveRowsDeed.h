// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "ForeignMarkup.h"
#include "OutlineRow.h"
#include "OutlineTree.h"
#include "vek/undo/Deed.h"

namespace outliner {

class OutlineDocument;

// Takes neighbouring rows, with what is below them, out of the tree, and owns them until it is
// undone. They come back as the same objects.
class RemoveRowsDeed final : public vek::undo::Deed {
 public:
  RemoveRowsDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
                 const OutlineRow& inFirst, std::size_t inCount);
  ~RemoveRowsDeed() override;

 protected:
  void RedoSelf() override;
  void UndoSelf() override;

 private:
  OutlineDocument& mDocument;
  OutlineRow::Id mFirst;
  std::size_t mCount;
  OutlineRow::Id mParent = 0;  // from here on: where they were
  std::size_t mIndex = 0;
  OutlineTree::Rows mRows;
  ForeignMarkup mMarkup;
};

}  // namespace outliner
