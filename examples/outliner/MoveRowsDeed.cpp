// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "MoveRowsDeed.h"

#include <utility>

#include "OutlineDocument.h"

namespace outliner {

MoveRowsDeed::MoveRowsDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
                           const OutlineRow& inFirst, std::size_t inCount, MoveTarget inTarget)
    : Deed(true, false, inName),
      mDocument(inDocument),
      mFirst(inFirst.GetId()),
      mCount(inCount),
      mTarget(inTarget) {}

MoveRowsDeed::~MoveRowsDeed() = default;

void MoveRowsDeed::RedoSelf() {
  OutlineTree& tree = mDocument.GetTree();
  const OutlineRow& first = *tree.FindRow(mFirst);
  OutlineRow& source = *first.GetParent();
  mParent = source.GetId();
  mIndex = first.GetIndex();
  mMarkup.StayBehind(tree, source, mIndex, mCount);
  mLeadings.clear();

  OutlineRow& anchor = *tree.FindRow(mTarget.row);
  const bool goesBelow = mTarget.place == MoveTarget::kLastBelow;
  OutlineRow& target = goesBelow ? anchor : *anchor.GetParent();
  std::size_t index = goesBelow ? anchor.GetChildCount() : anchor.GetIndex();
  if (mTarget.place == MoveTarget::kAfter) ++index;
  if (&target == &source) {
    // The rows themselves are counted in a place that lies behind them.
    tree.MoveRowsWithin(source, mIndex, mCount, index > mIndex ? index - mCount : index);
  } else {
    tree.InsertRows(target, index, tree.RemoveRows(source, mIndex, mCount));
    AdaptWhiteSpace(target, index);
  }
}

// White space of their own would leave the rows at the indentation of another level.
void MoveRowsDeed::AdaptWhiteSpace(OutlineRow& inParent, std::size_t inIndex) {
  for (std::size_t index = inIndex; index < inIndex + mCount; ++index) {
    OutlineRow& row = *inParent.GetChild(index);
    mLeadings.push_back(row.GetLeading());
    mDocument.GetTree().SetLeading(row, OutlineTree::kByLayout);
  }
}

void MoveRowsDeed::UndoSelf() {
  OutlineTree& tree = mDocument.GetTree();
  const OutlineRow& first = *tree.FindRow(mFirst);
  OutlineRow& source = *tree.FindRow(mParent);
  OutlineRow& target = *first.GetParent();
  if (&target == &source) {
    tree.MoveRowsWithin(source, first.GetIndex(), mCount, mIndex);
  } else {
    auto rows = tree.RemoveRows(target, first.GetIndex(), mCount);
    for (std::size_t row = 0; row < mLeadings.size(); ++row)
      tree.SetLeading(*rows[row], mLeadings[row]);
    tree.InsertRows(source, mIndex, std::move(rows));
  }
  mMarkup.Return(tree);
}

}  // namespace outliner
