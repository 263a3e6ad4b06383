// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DocumentCommands.h"

#include "CommandList.h"
#include "OutlineDocument.h"
#include "OutlineEdits.h"
#include "OutlinerCommands.h"
#include "RowEditor.h"
#include "Texts.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/undo/Deed.h"

namespace outliner {

using lumcore::UTF16String;

DocumentCommands::DocumentCommands(OutlineDocument& inDocument) : mDocument(inDocument) {
  const auto always = [] { return true; };
  AddEdits();
  AddTextCommands();
  AddUndo();
  mEntries[kCommandSave] = {always, [this] { mDocument.Save(); }, nullptr};
  mEntries[kCommandSaveAs] = {always, [this] { mDocument.SaveAs(); }, nullptr};
}

bool DocumentCommands::DoUnifiedDispatch(int inCommand,
                                         vek::uisupport::CommandEnableQuery* ioQuery) {
  const auto found = mEntries.find(inCommand);
  if (found == mEntries.end()) return false;
  const Entry& entry = found->second;
  if (ioQuery) {
    *ioQuery->enabled = entry.isEnabled();
    if (entry.title) *ioQuery->title = entry.title();
  } else {
    if (inCommand != kCommandGiveUpText) mDocument.CommitTyping();
    if (entry.isEnabled()) entry.execute();
  }
  return true;
}

void DocumentCommands::AddEdits() {
  using Can = bool (*)(OutlineDocument&);
  using Perform = void (*)(OutlineDocument&);
  const struct {
    int command;
    Can can;
    Perform perform;
  } kEdits[] = {
      {kCommandDelete, edits::CanDelete, edits::Delete},
      {kCommandIndent, edits::CanIndent, edits::Indent},
      {kCommandOutdent, edits::CanOutdent, edits::Outdent},
      {kCommandMoveUp, edits::CanMoveUp, edits::MoveUp},
      {kCommandMoveDown, edits::CanMoveDown, edits::MoveDown},
  };
  for (const auto& edit : kEdits) {
    mEntries[edit.command] = {[this, can = edit.can] { return can(mDocument); },
                              [this, perform = edit.perform] { perform(mDocument); }, nullptr};
  }
  const auto hasRows = [this] { return !mDocument.GetTree().GetLines().empty(); };
  const auto step = [this](bool inDown) {
    if (mSteps.step) return mSteps.step(inDown);
    inDown ? edits::SelectNext(mDocument) : edits::SelectPrevious(mDocument);
  };
  mEntries[kCommandSelectNext] = {hasRows, [step] { step(true); }, nullptr};
  mEntries[kCommandSelectPrevious] = {hasRows, [step] { step(false); }, nullptr};
  mEntries[kCommandSelectAll] = {hasRows,
                                 [this] {
                                   if (mSteps.selectAll) return mSteps.selectAll();
                                   mDocument.GetSelection().SelectAll();
                                 },
                                 nullptr};
}

void DocumentCommands::AddTextCommands() {
  const auto always = [] { return true; };
  mEntries[kCommandNewSibling] = {
      always, [this] { mDocument.GetEditor().Begin(edits::NewSibling(mDocument)); }, nullptr};
  mEntries[kCommandNewChild] = {
      always, [this] { mDocument.GetEditor().Begin(edits::NewChild(mDocument)); }, nullptr};
  mEntries[kCommandEditText] = {
      [this] { return mDocument.GetOnlySelectedRow() != nullptr; },
      [this] { mDocument.GetEditor().Begin(*mDocument.GetOnlySelectedRow()); }, nullptr};
  mEntries[kCommandGiveUpText] = {[this] { return mDocument.GetEditor().IsActive(); },
                                  [this] { mDocument.GetEditor().Cancel(); }, nullptr};
}

// A text that is being typed is the newest edit already, though it is no deed yet: it is what Undo
// takes back, and it leaves nothing to redo.
void DocumentCommands::AddUndo() {
  mEntries[kCommandUndo] = {[this] { return mDocument.IsTyping() || edits::CanUndo(mDocument); },
                            [this] { edits::Undo(mDocument); }, [this] { return UndoTitle(); }};
  mEntries[kCommandRedo] = {[this] { return !mDocument.IsTyping() && edits::CanRedo(mDocument); },
                            [this] { edits::Redo(mDocument); }, [this] { return RedoTitle(); }};
}

UTF16String DocumentCommands::UndoTitle() const {
  if (mDocument.IsTyping()) {
    return Localized("$$$/outliner/Command/UndoTyping=Undo Typing");
  }
  const vek::undo::Deed* deed = mDocument.GetUndoer().CouldUndoDeed();
  return deed ? deed->GetUndoDescription() : TitleOfCommand(kCommandUndo);
}

UTF16String DocumentCommands::RedoTitle() const {
  const vek::undo::Deed* deed =
      mDocument.IsTyping() ? nullptr : mDocument.GetUndoer().CouldRedoDeed();
  return deed ? deed->GetRedoDescription() : TitleOfCommand(kCommandRedo);
}

}  // namespace outliner
