// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "FindField.h"

#include "lumui/ui/KeyboardEvent.h"

namespace outliner {

using lumui::ui::KeyboardCode;

FindField::FindField()
    : mChangedByUser(new ChangedFunction([this](auto* inMessage) {
        using Message = lumui::controls::UI_InteractiveControlChangedMessage;
        if (inMessage->GetChange() == Message::kChanging && mFunctions.find) {
          mFunctions.find(GetText());
        }
      })) {
  UI_SetNodeID("find");
  NotifyWhenChangedInteractively(mChangedByUser);
}

FindField::~FindField() {
  mChangedByUser->clear();
}

void FindField::Clear() {
  if (GetText().empty()) return;
  SetText(lumcore::UTF16String());
  if (mFunctions.find) mFunctions.find(GetText());
}

bool FindField::UI_DoKeyboardEvent(lumui::ui::UI_Node*, const lumui::ui::KeyboardEvent& inEvent) {
  if (!inEvent.IsActionKeyDown() || !inEvent.GetModKey().IsEmpty()) return false;
  switch (inEvent.GetCode().GetControlCode(false)) {
    case KeyboardCode::kEscape:
      if (!GetText().empty()) {
        Clear();
        return true;
      }
      break;
    case KeyboardCode::kReturn:
    case KeyboardCode::kEnter:
    case KeyboardCode::kDownArrow:
      break;
    default:
      return false;
  }
  if (mFunctions.focusRows) mFunctions.focusRows();
  return true;
}

void FindField::UI_FocusChanged(int inReason) {
  UI_TextEdit::UI_FocusChanged(inReason);
  if (mFunctions.focusChanged) mFunctions.focusChanged();
}

}  // namespace outliner
