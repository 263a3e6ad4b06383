// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "SetNoteDeed.h"

#include "OutlineDocument.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;

const UTF16String& SetNoteDeed::Name() {
  static const UTF16String sName = lumcore::utility::ToUTF16("_note");
  return sName;
}

SetNoteDeed::SetNoteDeed(OutlineDocument& inDocument, const UTF16String& inName,
                         const OutlineRow& inRow, const UTF16String& inNote)
    : Deed(true, false, inName), mDocument(inDocument), mRow(inRow.GetId()) {
  if (!inNote.empty()) mOther.value = inNote;
}

SetNoteDeed::~SetNoteDeed() = default;

void SetNoteDeed::Exchange() {
  OutlineTree& tree = mDocument.GetTree();
  tree.ExchangeAttribute(*tree.FindRow(mRow), Name(), mOther);
}

}  // namespace outliner
