// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The rows of the shortcut dialog: the filter, and the field with the selected command's shortcuts.

#include "lumcore/utility/RefCounted.h"
#include "lumui/ui/KeyboardEvent.h"
#include "vek/sharedui/ShortcutDialog.h"

namespace vek::sharedui {

void ShortcutDialog::FilterChanged() {
  mEditor.SetFilter(mSearchBox->GetText(), mMatchCase->GetDownState());
  mTree->Filter(mEditor.HasFilter(),
                [this](CommandCache& inCache) { return mEditor.IsShown(inCache); });
}

void ShortcutDialog::SelectionChanged() {
  const CommandsTree::RowID row = mTree->GetSelectedRow();
  if (row == mFieldRow) return;
  if (mField && mTree->HasRow(mFieldRow)) {
    mTree->SetCellNode(mFieldRow, CommandsTree::kShortcut, nullptr);
  }
  mField.reset();
  mFieldRow = row;
  const int command = mTree->GetSelectedCommand();
  if (command != CommandsTree::kNoCommand) {
    BubbleField::Functions functions;
    functions.assign = [this](TextBubble& ioBubble, const auto& inEvent) {
      AssignKey(ioBubble, inEvent);
    };
    functions.remove = [this](TextBubble& inBubble) { RemoveShortcut(inBubble); };
    functions.measure = [this](const lumcore::UTF16String& inText) {
      return mTree->MeasureCell(CommandsTree::kShortcut, inText);
    };
    functions.heightChanged = [this](float inHeight) {
      if (mField) mTree->SetCellNode(mFieldRow, CommandsTree::kShortcut, mField, inHeight);
    };
    functions.focused = [this](TextBubble& inBubble) { mTree->ScrollNodeIntoView(inBubble); };
    mField.reset(new BubbleField(command, functions));
    mTree->SetCellNode(row, CommandsTree::kShortcut, mField, mField->GetHeight());
  }
  UpdateButtons();
}

void ShortcutDialog::RebuildField() {
  if (!mField) return;
  mField->ShowMappings();
  UpdateButtons();
}

void ShortcutDialog::AddShortcut() {
  if (!mField || mField->HasNew()) return;
  mTree->ScrollIntoView(mFieldRow);
  mField->AddNew();
  UpdateButtons();
}

void ShortcutDialog::AssignKey(TextBubble& ioBubble, const lumui::ui::KeyboardEvent& inEvent) {
  const lumcore::utility::StKeepAlive keepAlive(ioBubble);
  uisupport::KeyCommand key = ioBubble.GetKey();
  if (!mEditor.AssignKey(key, ioBubble.IsNew(), inEvent.GetCode(), inEvent.GetModKey())) return;
  ioBubble.SetKey(key);
  if (mField) mField->LayOutBubbles();
  UpdateButtons();
}

void ShortcutDialog::RemoveShortcut(TextBubble& inBubble) {
  const lumcore::utility::StKeepAlive keepAlive(inBubble);
  if (inBubble.IsNew() || mEditor.RemoveKey(inBubble.GetKey())) RemoveBubble(inBubble);
}

void ShortcutDialog::RemoveBubble(TextBubble& inBubble) {
  if (!mField) return;
  mField->Remove(inBubble);
  // The keyboard stays with the command.
  mTree->UI_SetKeyboardFocus(lumui::ui::kFocusOther);
  UpdateButtons();
}

void ShortcutDialog::RemoveAllShortcuts() {
  if (!mField) return;
  const auto& bubbles = mField->GetBubbles();
  if (bubbles.size() == 1 && bubbles.front()->IsNew()) {
    const boost::intrusive_ptr<TextBubble> bubble = bubbles.front();
    return RemoveBubble(*bubble);
  }
  mEditor.RemoveKeys(mField->GetKeys());
  RebuildField();
}

void ShortcutDialog::Undo() {
  mEditor.Undo();
}

void ShortcutDialog::GoToCommand() {
  if (mEditor.GetGotoCommand() == -1) return;
  if (mEditor.HasFilter()) {
    mSearchBox->SetText(lumcore::UTF16String());
    FilterChanged();
  }
  mTree->GoToCommand(mEditor.GetGotoCommand());
}

}  // namespace vek::sharedui
