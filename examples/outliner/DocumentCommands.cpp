// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "DocumentCommands.h"

#include <utility>

#include "OutlineDocument.h"
#include "OutlineEdits.h"
#include "OutlinerCommands.h"
#include "RowEditor.h"
#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "vek/undo/Deed.h"

namespace outliner {

using lumcore::UTF16String;

DocumentCommands::DocumentCommands(OutlineDocument& inDocument, RowEditor& inEditor,
                                   std::function<void()> inSave)
    : mDocument(inDocument), mEditor(inEditor), mSave(std::move(inSave)) {
  AddEdits();
  AddTextCommands();
  AddUndo();
  mEntries[kCommandSave] = {[] { return true; }, [this] { mSave(); }, nullptr};
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
    if (inCommand != kCommandGiveUpText) mEditor.Commit();
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
  mEntries[kCommandSelectNext] = {hasRows, [this] { edits::SelectNext(mDocument); }, nullptr};
  mEntries[kCommandSelectPrevious] = {hasRows, [this] { edits::SelectPrevious(mDocument); },
                                      nullptr};
  mEntries[kCommandSelectAll] = {hasRows, [this] { mDocument.GetSelection().SelectAll(); },
                                 nullptr};
}

void DocumentCommands::AddTextCommands() {
  const auto always = [] { return true; };
  mEntries[kCommandNewSibling] = {always, [this] { mEditor.Begin(edits::NewSibling(mDocument)); },
                                  nullptr};
  mEntries[kCommandNewChild] = {always, [this] { mEditor.Begin(edits::NewChild(mDocument)); },
                                nullptr};
  mEntries[kCommandEditText] = {[this] { return mDocument.GetSelectedRows().size() == 1; },
                                [this] { mEditor.Begin(*mDocument.GetSelectedRows().front()); },
                                nullptr};
  mEntries[kCommandGiveUpText] = {[this] { return mEditor.IsActive(); },
                                  [this] { mEditor.Cancel(); }, nullptr};
}

// A text that is being typed is the newest edit already, though it is no deed yet: it is what Undo
// takes back, and it leaves nothing to redo.
void DocumentCommands::AddUndo() {
  mEntries[kCommandUndo] = {[this] { return mEditor.IsModified() || edits::CanUndo(mDocument); },
                            [this] { edits::Undo(mDocument); }, [this] { return UndoTitle(); }};
  mEntries[kCommandRedo] = {[this] { return !mEditor.IsModified() && edits::CanRedo(mDocument); },
                            [this] { edits::Redo(mDocument); }, [this] { return RedoTitle(); }};
}

UTF16String DocumentCommands::UndoTitle() const {
  if (mEditor.IsModified()) {
    return lumcore::config::Localizer::Get()->GetLocalizedString(
        "$$$/outliner/Command/UndoTyping=Undo Typing");
  }
  const vek::undo::Deed* deed = mDocument.GetUndoer().CouldUndoDeed();
  return deed ? deed->GetUndoDescription() : UTF16String();
}

UTF16String DocumentCommands::RedoTitle() const {
  const vek::undo::Deed* deed =
      mEditor.IsModified() ? nullptr : mDocument.GetUndoer().CouldRedoDeed();
  return deed ? deed->GetRedoDescription() : UTF16String();
}

}  // namespace outliner
