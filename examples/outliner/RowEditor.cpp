// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "RowEditor.h"

#include "OutlineDocument.h"
#include "OutlineEdits.h"
#include "lumui/ui/KeyboardEvent.h"

namespace outliner {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;

namespace {

using Move = void (TextEdit::*)();

struct TextKey {
  unsigned code;
  unsigned char modifiers;
  Move move;
};

constexpr TextKey kTextKeys[] = {
    {KeyboardCode::kLeftArrow, 0, &TextEdit::MoveLeft},
    {KeyboardCode::kRightArrow, 0, &TextEdit::MoveRight},
    {KeyboardCode::kLeftArrow, lumui::ui::kModCommand, &TextEdit::MoveLeftByWord},
    {KeyboardCode::kRightArrow, lumui::ui::kModCommand, &TextEdit::MoveRightByWord},
    {KeyboardCode::kBackspace, 0, &TextEdit::DeleteBefore},
    {KeyboardCode::kBackspace, lumui::ui::kModShift, &TextEdit::DeleteBefore},
    {KeyboardCode::kDelete, 0, &TextEdit::DeleteBehind},
};

Move FindMove(const KeyboardEvent& inEvent) {
  for (const TextKey& key : kTextKeys) {
    if (key.code == inEvent.GetCode().GetControlCode(false) &&
        key.modifiers == inEvent.GetModKey().GetBits()) {
      return key.move;
    }
  }
  return nullptr;
}

}  // namespace

RowEditor::RowEditor(OutlineDocument& inDocument) : mDocument(inDocument) {}

bool RowEditor::IsModified() const {
  if (!mActive) return false;
  const OutlineRow* row = mDocument.GetTree().FindRow(mRow);
  return !row || row->GetText() != mEdit.GetText();
}

void RowEditor::Begin(const OutlineRow& inRow) {
  if (IsEditing(inRow)) return;
  Commit();
  mActive = true;
  mRow = inRow.GetId();
  mEdit = TextEdit(inRow.GetText());
  Changed();
}

void RowEditor::SetCaret(std::size_t inCaret) {
  mEdit.SetCaret(inCaret);
  Changed();
}

void RowEditor::Commit() {
  if (!mActive) return;
  OutlineRow* row = mDocument.GetTree().FindRow(mRow);
  // Somebody else has taken the row away: what was typed gets one of its own.
  if (!row && !mEdit.GetText().empty()) row = &edits::NewSibling(mDocument);
  if (row) edits::SetText(mDocument, *row, mEdit.GetText());
  mActive = false;
  Changed();
}

void RowEditor::Cancel() {
  if (!mActive) return;
  mActive = false;
  Changed();
}

bool RowEditor::HandleKey(const KeyboardEvent& inEvent) {
  const unsigned code = inEvent.GetCode().GetControlCode(false);
  if (mActive && inEvent.GetModKey().IsEmpty() &&
      (code == KeyboardCode::kHome || code == KeyboardCode::kEnd)) {
    SetCaret(code == KeyboardCode::kHome ? 0 : mEdit.GetText().size());
    return true;
  }
  const Move move = FindMove(inEvent);
  if (!move) return false;
  if (!mActive) {
    // The other keys of these mean something else to rows, or nothing.
    if (code != KeyboardCode::kBackspace || !BeginAtSelection()) return false;
  }
  (mEdit.*move)();
  Changed();
  return true;
}

bool RowEditor::IsForTyping(const KeyboardEvent& inEvent) const {
  const KeyboardCode code = inEvent.GetCode();
  const bool types = code.IsPrintable() || code.GetControlCode(false) == KeyboardCode::kSpace;
  const auto modifiers = inEvent.GetModKey();
  return mActive && types && !modifiers.Has(lumui::ui::kModCommand) &&
         !modifiers.Has(lumui::ui::kModAlt);
}

bool RowEditor::HandleCharacter(const KeyboardEvent& inEvent) {
  // Ctrl and Alt together are how some keyboards type a third level of characters.
  const bool isCtrl = inEvent.GetModKey().Has(lumui::ui::kModCommand);
  const bool isAlt = inEvent.GetModKey().Has(lumui::ui::kModAlt);
  if (isCtrl != isAlt || inEvent.GetCharacter() < ' ') return false;
  if (!mActive && !BeginAtSelection()) return false;
  mEdit.Insert(inEvent.GetCharacter());
  Changed();
  return true;
}

bool RowEditor::BeginAtSelection() {
  auto rows = mDocument.GetSelectedRows();
  if (rows.size() > 1) return false;
  // The first words of an empty outline need no key before them.
  if (rows.empty() && mDocument.GetTree().GetLines().empty()) {
    rows.push_back(&edits::NewSibling(mDocument));
  }
  if (rows.empty()) return false;
  Begin(*rows.front());
  return true;
}

void RowEditor::Changed() {
  if (mChanged) mChanged();
}

}  // namespace outliner
