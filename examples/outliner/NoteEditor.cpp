// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "NoteEditor.h"

#include "AttributeEdits.h"
#include "OutlineDocument.h"
#include "OutlineEdits.h"

namespace outliner {

using lumcore::UTF16String;

NoteEditor::NoteEditor(OutlineDocument& inDocument) : mDocument(inDocument) {}

bool NoteEditor::IsModified() const {
  if (!mActive) return false;
  const OutlineRow* const row = mDocument.GetTree().FindRow(mRow);
  return row ? edits::GetNote(mDocument, *row) != mText : !mText.empty();
}

UTF16String NoteEditor::GetText(const OutlineRow& inRow) const {
  return mActive && mRow == inRow.GetId() ? mText : edits::GetNote(mDocument, inRow);
}

void NoteEditor::SetText(const OutlineRow& inRow, const UTF16String& inText) {
  if (mActive && mRow != inRow.GetId()) Commit();
  mActive = true;
  mRow = inRow.GetId();
  mText = inText;
  if (mChanged) mChanged();
}

void NoteEditor::Commit() {
  if (!mActive) return;
  OutlineRow* row = mDocument.GetTree().FindRow(mRow);
  // Somebody else has taken the row away: what was typed gets one of its own.
  if (!row && !mText.empty()) {
    row = &edits::NewSibling(mDocument);
    mRow = row->GetId();
  }
  if (row) edits::SetNote(mDocument, *row, mText);
  Cancel();
}

void NoteEditor::Cancel() {
  if (!mActive) return;
  mActive = false;
  if (mChanged) mChanged();
}

}  // namespace outliner
