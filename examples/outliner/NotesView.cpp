// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "NotesView.h"

#include <algorithm>

#include "AttributeEditor.h"
#include "AttributeEdits.h"
#include "OutlineDocument.h"
#include "Palette.h"
#include "Texts.h"
#include "lumui/drawbot/Drawbot.h"
#include "lumui/drawbot/SupplierInterface.h"
#include "vek/app/DocumentApplication.h"

namespace outliner {

using lumcore::UTF16String;
using vek::app::DocStatusMessage;

namespace {

constexpr float kMargin = 10;
constexpr float kTitleHeight = 30;
constexpr float kTitleSize = 13;

}  // namespace

NotesView::NotesView(OutlineDocument* inDocument)
    : mField(new lumui::controls::UI_TextEdit(true)),
      mEdited(new lumui::controls::UI_InteractiveControlView::ChangedFunction(
          [this](Message* inMessage) { Edited(*inMessage); })) {
  mField->UI_SetNodeID("note");
  mField->UI_SetToolTip(Localized("$$$/outliner/Notes/Field=Note of the selected row"));
  mField->NotifyWhenChangedInteractively(mEdited);
  UI_AddChild(mField);
  vek::app::DocumentApplication::GetDocStatusNotifier().AddListener(
      static_cast<Listener<const DocStatusMessage>*>(this));
  Follow(inDocument);
}

NotesView::~NotesView() {
  mEdited->clear();
  Follow(nullptr);
}

// A document tells that it is no longer the current one before it goes.
void NotesView::ListenToMessage(const DocStatusMessage inMessage) {
  auto* const document = static_cast<OutlineDocument*>(inMessage.GetDocument());
  if (inMessage.BecomesActive()) {
    Follow(document);
  } else if (document == mDocument) {
    Follow(nullptr);
  }
}

void NotesView::Follow(OutlineDocument* inDocument) {
  using Selection = Listener<const vek::selection::SelectionChangeMessage&>;
  using Items = Listener<const vek::undo::ItemsChangedMsg&>;
  if (mDocument) {
    mDocument->GetSelection().GetSelectionChangeNotifier()->RemoveListener(
        static_cast<Selection*>(this));
    mDocument->GetUndoer().GetItemsChangedNotifier()->RemoveListener(static_cast<Items*>(this));
  }
  mDocument = inDocument;
  if (mDocument) {
    mDocument->GetSelection().GetSelectionChangeNotifier()->AddListener(
        static_cast<Selection*>(this));
    mDocument->GetUndoer().GetItemsChangedNotifier()->AddListener(static_cast<Items*>(this));
  }
  ShowNote();
}

OutlineRow* NotesView::FindRow() const {
  return mDocument ? mDocument->GetOnlySelectedRow() : nullptr;
}

// What is typed for the row, or else its note.
UTF16String NotesView::TextFor(const OutlineRow& inRow) const {
  const UTF16String* const typed =
      mDocument->GetNoteEditor().FindValue({inRow.GetId()}, attributes::Note());
  return typed ? *typed : edits::GetNote(*mDocument, inRow);
}

void NotesView::ShowNote() {
  const OutlineRow* const row = FindRow();
  const OutlineRow::Id id = row ? row->GetId() : 0;
  const UTF16String note = row ? TextFor(*row) : UTF16String();
  if (id != mRow || note != mField->GetText()) {
    mRow = id;
    mField->SetText(note);
  }
  mField->SetReadOnly(!row);
  mField->SetPlaceholder(
      Localized(row         ? "$$$/outliner/Notes/Empty=Write a note about this row"
                : mDocument ? "$$$/outliner/Notes/NoRow=Select one row to read or write its note"
                            : "$$$/outliner/Notes/NoDocument=No outline is open"));
  const UTF16String title = row ? row->GetText() : UTF16String();
  if (title == mTitle && id == mTitledRow) return;
  mTitle = title;
  mTitledRow = id;
  UI_InvalidateAll();
}

void NotesView::Edited(Message& inMessage) {
  const OutlineRow* const row = mDocument ? mDocument->GetTree().FindRow(mRow) : nullptr;
  if (!row || mRow == 0) return;
  AttributeEditor& editor = mDocument->GetNoteEditor();
  editor.SetValue({mRow}, attributes::Note(), mField->GetText());
  if (inMessage.GetChange() == Message::kChanged) editor.Commit();
}

void NotesView::FocusField() {
  mField->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
}

void NotesView::UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) {
  UI_SubView::UI_SizeChanged(inRect);
  mField->UI_SetLocalRectF({kMargin, kTitleHeight, std::max(0.0f, inRect.width - 2 * kMargin),
                            std::max(0.0f, inRect.height - kTitleHeight - kMargin)});
}

void NotesView::UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const {
  const auto& area = UI_GetLocalRectF();
  inDrawbot->FillRect({0, 0, area.width, area.height}, palette::Strip());
  if (!FindRow()) return;
  const bool isEmpty = mTitle.empty();
  const auto font = inDrawbot->GetSupplier()->NewFont(
      nullptr, kTitleSize,
      isEmpty ? lumui::drawbot::FontStyle::kItalic : lumui::drawbot::FontStyle::kBold);
  inDrawbot->DrawStringInRect(
      isEmpty ? Localized("$$$/outliner/Notes/EmptyRow=Row without a text") : mTitle, font,
      isEmpty ? palette::FaintInk() : palette::Ink(),
      {kMargin, 0, std::max(0.0f, area.width - 2 * kMargin), kTitleHeight});
}

}  // namespace outliner
