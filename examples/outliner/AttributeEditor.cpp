// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "AttributeEditor.h"

#include <algorithm>
#include <optional>

#include "AttributeEdits.h"
#include "OutlineDocument.h"
#include "OutlineEdits.h"

namespace outliner {

using lumcore::UTF16String;

AttributeEditor::AttributeEditor(OutlineDocument& inDocument) : mDocument(inDocument) {}

bool AttributeEditor::IsCommon(const UTF16String& inName) {
  return inName == attributes::Text() || inName == attributes::Type() ||
         inName == attributes::Created() || inName == attributes::Link() ||
         inName == attributes::Note();
}

bool AttributeEditor::IsTarget(const Rows& inRows, const UTF16String& inName) const {
  return IsFor(inRows) && mName == inName;
}

const UTF16String* AttributeEditor::FindValue(const Rows& inRows, const UTF16String& inName) const {
  return IsTarget(inRows, inName) ? &mValue : nullptr;
}

std::vector<OutlineRow*> AttributeEditor::FindRows() const {
  std::vector<OutlineRow*> rows;
  for (const OutlineRow::Id id : mRows) {
    if (OutlineRow* const row = mDocument.GetTree().FindRow(id)) rows.push_back(row);
  }
  return rows;
}

bool AttributeEditor::IsModified() const {
  if (!mActive) return false;
  const auto rows = FindRows();
  if (rows.empty()) return !mValue.empty();
  return std::any_of(rows.begin(), rows.end(), [&](const OutlineRow* inRow) {
    return edits::GetAttribute(mDocument, *inRow, mName) != mValue;
  });
}

void AttributeEditor::SetValue(const Rows& inRows, const UTF16String& inName,
                               const UTF16String& inValue) {
  if (mActive && !IsTarget(inRows, inName)) Commit();
  mActive = true;
  mRows = inRows;
  mName = inName;
  mValue = inValue;
  if (mChanged) mChanged();
}

void AttributeEditor::Commit() {
  if (!mActive) return;
  if (IsModified()) {
    auto rows = FindRows();
    // Somebody else has taken the rows away: what was typed gets one of its own.
    if (rows.empty()) {
      rows.push_back(&edits::NewSibling(mDocument));
      mRows = {rows.front()->GetId()};
    }
    const bool isGone = mValue.empty() && IsCommon(mName);
    edits::SetAttribute(mDocument, rows, mName,
                        isGone ? std::optional<UTF16String>() : std::optional<UTF16String>(mValue));
  }
  Cancel();
}

void AttributeEditor::Cancel() {
  if (!mActive) return;
  mActive = false;
  if (mChanged) mChanged();
}

}  // namespace outliner
