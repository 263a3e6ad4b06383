// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineRow.h"

#include <iterator>
#include <utility>

namespace outliner {

OutlineRow::~OutlineRow() {
  auto doomed = std::move(mChildren);
  while (!doomed.empty()) {
    const std::unique_ptr<OutlineRow> row = std::move(doomed.back());
    doomed.pop_back();
    doomed.insert(doomed.end(), std::make_move_iterator(row->mChildren.begin()),
                  std::make_move_iterator(row->mChildren.end()));
    row->mChildren.clear();
  }
}

std::size_t OutlineRow::GetIndex() const {
  if (!mParent) return 0;
  const auto& siblings = mParent->mChildren;
  if (mIndex >= siblings.size() || siblings[mIndex].get() != this) {
    for (std::size_t index = 0; index < siblings.size(); ++index) {
      siblings[index]->mIndex = static_cast<std::uint32_t>(index);
    }
  }
  return mIndex;
}

std::size_t OutlineRow::GetDepth() const {
  std::size_t depth = 0;
  for (const OutlineRow* row = mParent; row; row = row->mParent)
    ++depth;
  return depth;
}

bool OutlineRow::IsBelow(const OutlineRow& inAncestor) const {
  const OutlineRow* row = mParent;
  while (row && row != &inAncestor)
    row = row->mParent;
  return row != nullptr;
}

}  // namespace outliner
