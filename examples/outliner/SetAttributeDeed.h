// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "OutlineTree.h"
#include "vek/undo/Deed.h"

namespace outliner {

class OutlineDocument;

// Gives an attribute of a row, other than the text, another value, or takes it away.
class SetAttributeDeed final : public vek::undo::Deed {
 public:
  SetAttributeDeed(OutlineDocument& inDocument, const lumcore::UTF16String& inName,
                   const OutlineRow& inRow, const lumcore::UTF16String& inAttribute,
                   const std::optional<lumcore::UTF16String>& inValue);
  ~SetAttributeDeed() override;

 protected:
  void RedoSelf() override { Exchange(); }
  void UndoSelf() override { Exchange(); }

 private:
  void Exchange();

  OutlineDocument& mDocument;
  OutlineRow::Id mRow;
  TextPool::Id mAttribute;  // of the tree's pool of names
  OutlineTree::AttributeState mOther;
};

}  // namespace outliner
