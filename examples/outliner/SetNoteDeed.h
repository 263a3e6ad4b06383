// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "OutlineTree.h"
#include "vek/undo/Deed.h"

namespace outliner {

class OutlineDocument;

// Gives a row another note; an empty one takes it away.
class SetNoteDeed final : public vek::undo::Deed {
 public:
  // What files call the attribute that holds a note.
  static const lumcore::UTF16String& Name();

  SetNoteDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
              const OutlineRow& inRow, const lumcore::UTF16String& inNote);
  ~SetNoteDeed() override;

 protected:
  void RedoSelf() override { Exchange(); }
  void UndoSelf() override { Exchange(); }

 private:
  void Exchange();

  OutlineDocument& mDocument;
  OutlineRow::Id mRow;
  OutlineTree::AttributeState mOther;
};

}  // namespace outliner
