// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include "OutlineRow.h"
#include "TextPool.h"

namespace outliner {

class OutlineTree;

// Comments and elements of others that stand in front of a row belong to the parent and not to the
// row. When rows leave their place this gives such markup to what follows them, and takes it back
// when they return. A deed keeps one for each removal.
class ForeignMarkup {
 public:
  // Before the rows leave, and after they are back in the same place.
  void StayBehind(OutlineTree& ioTree, OutlineRow& inParent, std::size_t inIndex,
                  std::size_t inCount);
  void Return(OutlineTree& ioTree);

 private:
  struct Saved {
    OutlineRow::Id row;
    bool isLeading;
    TextPool::Id markup;
  };

  std::vector<Saved> mSaved;
};

}  // namespace outliner
