// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "RemoveRowsDeed.h"

#include <utility>

#include "OutlineDocument.h"

namespace outliner {

RemoveRowsDeed::RemoveRowsDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
                               const OutlineRow& inFirst, std::size_t inCount)
    : Deed(true, false, inName), mDocument(inDocument), mFirst(inFirst.GetId()), mCount(inCount) {}

RemoveRowsDeed::~RemoveRowsDeed() = default;

void RemoveRowsDeed::RedoSelf() {
  OutlineTree& tree = mDocument.GetTree();
  const OutlineRow& first = *tree.FindRow(mFirst);
  OutlineRow& parent = *first.GetParent();
  mParent = parent.GetId();
  mIndex = first.GetIndex();
  mDocument.DeselectForRemoval(parent, mIndex, mCount);
  mMarkup.StayBehind(tree, parent, mIndex, mCount);
  mRows = tree.RemoveRows(parent, mIndex, mCount);
}

void RemoveRowsDeed::UndoSelf() {
  OutlineTree& tree = mDocument.GetTree();
  tree.InsertRows(*tree.FindRow(mParent), mIndex, std::exchange(mRows, {}));
  mMarkup.Return(tree);
}

}  // namespace outliner
