// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <vector>

#include "ForeignMarkup.h"
#include "OutlineRow.h"
#include "TextPool.h"
#include "vek/undo/Deed.h"

namespace outliner {

class OutlineDocument;

// Where rows go: in front of a row, behind it, or below it as its last children.
struct MoveTarget {
  enum Place { kBefore, kAfter, kLastBelow };

  Place place;
  OutlineRow::Id row;
};

// Moves neighbouring rows, with what is below them, to another place. The place is named by a row
// and not by a number, so that several of these can stand in one group, where each is done in what
// the ones before it have left.
class MoveRowsDeed final : public vek::undo::Deed {
 public:
  // The target is neither one of the rows nor below one.
  MoveRowsDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
               const OutlineRow& inFirst, std::size_t inCount, MoveTarget inTarget);
  ~MoveRowsDeed() override;

 protected:
  void RedoSelf() override;
  void UndoSelf() override;

 private:
  void AdaptWhiteSpace(OutlineRow& inParent, std::size_t inIndex);

  OutlineDocument& mDocument;
  OutlineRow::Id mFirst;
  std::size_t mCount;
  MoveTarget mTarget;
  OutlineRow::Id mParent = 0;  // from here on: how it was
  std::size_t mIndex = 0;
  ForeignMarkup mMarkup;
  std::vector<TextPool::Id> mLeadings;  // empty where the rows kept theirs
};

}  // namespace outliner
