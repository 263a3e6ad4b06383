// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "SetTextDeed.h"

#include <utility>

#include "OutlineDocument.h"

namespace outliner {

using lumcore::UTF16String;

SetTextDeed::SetTextDeed(OutlineDocument& inDocument, const UTF16String& inName,
                         const OutlineRow& inRow, const UTF16String& inText)
    : Deed(true, false, inName), mDocument(inDocument), mRow(inRow.GetId()), mOtherText(inText) {}

SetTextDeed::~SetTextDeed() = default;

void SetTextDeed::Exchange() {
  OutlineTree& tree = mDocument.GetTree();
  OutlineRow& row = *tree.FindRow(mRow);
  UTF16String old = row.GetText();
  tree.SetText(row, mOtherText);
  mOtherText = std::move(old);
}

}  // namespace outliner
