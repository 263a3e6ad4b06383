// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "SetAttributeDeed.h"

#include "OutlineDocument.h"

namespace outliner {

using lumcore::UTF16String;

SetAttributeDeed::SetAttributeDeed(OutlineDocument& inDocument, const UTF16String& inName,
                                   const OutlineRow& inRow, const UTF16String& inAttribute,
                                   const std::optional<UTF16String>& inValue)
    : Deed(true, false, inName),
      mDocument(inDocument),
      mRow(inRow.GetId()),
      mAttribute(inDocument.GetTree().GetNames().Intern(inAttribute)) {
  mOther.value = inValue;
}

SetAttributeDeed::~SetAttributeDeed() = default;

void SetAttributeDeed::Exchange() {
  OutlineTree& tree = mDocument.GetTree();
  tree.ExchangeAttribute(*tree.FindRow(mRow), tree.GetNames().Get(mAttribute), mOther);
}

}  // namespace outliner
