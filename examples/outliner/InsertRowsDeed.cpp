// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "InsertRowsDeed.h"

#include <utility>

#include "OutlineDocument.h"

namespace outliner {

InsertRowsDeed::InsertRowsDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
                               const OutlineRow& inParent, std::size_t inIndex,
                               OutlineTree::Rows inRows)
    : Deed(true, false, inName),
      mDocument(inDocument),
      mParent(inParent.GetId()),
      mIndex(inIndex),
      mCount(inRows.size()),
      mRows(std::move(inRows)) {}

InsertRowsDeed::~InsertRowsDeed() = default;

void InsertRowsDeed::RedoSelf() {
  OutlineTree& tree = mDocument.GetTree();
  tree.InsertRows(*tree.FindRow(mParent), mIndex, std::exchange(mRows, {}));
}

void InsertRowsDeed::UndoSelf() {
  OutlineTree& tree = mDocument.GetTree();
  OutlineRow& parent = *tree.FindRow(mParent);
  mDocument.DeselectForRemoval(parent, mIndex, mCount);
  mRows = tree.RemoveRows(parent, mIndex, mCount);
}

}  // namespace outliner
