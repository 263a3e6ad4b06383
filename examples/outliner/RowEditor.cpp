// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "RowEditor.h"

#include <cstddef>
#include <string>

#include "OutlineDocument.h"
#include "OutlineEdits.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

namespace {

// A field lays out all of its text for each character that is typed.
constexpr std::size_t kMostEdited = 200000;  // units

void RefuseIfTooLong(const lumcore::UTF16String& inText) {
  if (inText.size() <= kMostEdited) return;
  using lumcore::utility::ToUTF16;
  throw lumcore::config::Error(lumcore::utility::ReplaceInString(
      lumcore::config::Localizer::Get()->GetLocalizedString(
          "$$$/outliner/Rows/TooLong=the text of this row is too long to be edited: it has @0 "
          "characters, and a field takes up to @1"),
      {ToUTF16(std::to_string(inText.size())), ToUTF16(std::to_string(kMostEdited))}));
}

}  // namespace

RowEditor::RowEditor(OutlineDocument& inDocument) : mDocument(inDocument) {}

bool RowEditor::IsModified() const {
  if (!mActive) return false;
  const OutlineRow* row = mDocument.GetTree().FindRow(mRow);
  return !row || row->GetText() != mText;
}

void RowEditor::Begin(const OutlineRow& inRow) {
  if (IsEditing(inRow)) return;
  RefuseIfTooLong(inRow.GetText());
  Commit();
  mActive = true;
  mRow = inRow.GetId();
  mText = inRow.GetText();
  Changed();
}

bool RowEditor::BeginAtSelection() {
  auto rows = mDocument.GetSelectedRows();
  if (rows.empty() && mDocument.GetTree().GetLines().empty())
    rows.push_back(&edits::NewSibling(mDocument));
  if (rows.size() != 1) return false;
  Begin(*rows.front());
  return true;
}

void RowEditor::SetText(const lumcore::UTF16String& inText) {
  if (!mActive) return;
  mText = inText;
  Changed();
}

void RowEditor::Commit() {
  if (!mActive) return;
  OutlineRow* row = mDocument.GetTree().FindRow(mRow);
  // Somebody else has taken the row away: what was typed gets one of its own.
  if (!row && !mText.empty()) row = &edits::NewSibling(mDocument);
  // What the deed brings about may come back here.
  mActive = false;
  try {
    if (row) edits::SetText(mDocument, *row, mText);
  } catch (...) {  // goes on to the caller, with the text still being edited
    mActive = true;
    throw;
  }
  Changed();
}

void RowEditor::Cancel() {
  if (!mActive) return;
  mActive = false;
  Changed();
}

void RowEditor::Changed() {
  if (mChanged) mChanged();
}

}  // namespace outliner
