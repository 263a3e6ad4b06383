// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ForeignMarkup.h"

#include "OutlineTree.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

void TrimEnd(UTF16String& ioMarkup) {
  while (!ioMarkup.empty() && ioMarkup.back() <= ' ')
    ioMarkup.pop_back();
}

}  // namespace

void ForeignMarkup::StayBehind(OutlineTree& ioTree, OutlineRow& inParent, std::size_t inIndex,
                               std::size_t inCount) {
  mSaved.clear();
  UTF16String markup;
  for (std::size_t index = inIndex; index < inIndex + inCount; ++index) {
    OutlineRow& row = *inParent.GetChild(index);
    if (!ioTree.IsForeign(row.GetLeading())) continue;
    mSaved.push_back({row.GetId(), true, row.GetLeading()});
    markup += ioTree.GetMarkup().Get(row.GetLeading());
    TrimEnd(markup);
    ioTree.SetLeading(row, OutlineTree::kByLayout);
  }
  if (markup.empty()) return;
  const std::size_t depth = inParent.GetDepth();
  if (inIndex + inCount < inParent.GetChildCount()) {
    OutlineRow& next = *inParent.GetChild(inIndex + inCount);
    mSaved.push_back({next.GetId(), true, next.GetLeading()});
    ioTree.AppendLeading(next, depth + 1, markup);
    ioTree.SetLeading(next, ioTree.GetMarkup().Intern(markup));
  } else {
    mSaved.push_back({inParent.GetId(), false, inParent.GetTrailing()});
    ioTree.AppendTrailing(inParent, depth, markup);
    ioTree.SetTrailing(inParent, ioTree.GetMarkup().Intern(markup));
  }
}

void ForeignMarkup::Return(OutlineTree& ioTree) {
  for (const Saved& saved : mSaved) {
    OutlineRow& row = *ioTree.FindRow(saved.row);
    if (saved.isLeading) {
      ioTree.SetLeading(row, saved.markup);
    } else {
      ioTree.SetTrailing(row, saved.markup);
    }
  }
  mSaved.clear();
}

}  // namespace outliner
