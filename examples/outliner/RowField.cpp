// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "RowField.h"

#include <boost/intrusive_ptr.hpp>

#include "Surrogates.h"
#include "lumui/ui/KeyboardEvent.h"

namespace outliner {

using lumui::ui::KeyboardCode;
using lumui::ui::KeyboardEvent;
using lumui::ui::UI_Node;

namespace {

bool IsLetter(const KeyboardEvent& inEvent, char inLetter) {
  const auto letter =
      KeyboardCode::CreateFromKeyboardChar(static_cast<unsigned short>(inLetter), false);
  return inEvent.GetCode() == letter || inEvent.GetLatinCode() == letter;
}

// What is typed is the outline's newest edit: taking it back is the outline's undo as well.
bool IsForTheOutline(const KeyboardEvent& inEvent) {
  if (inEvent.GetModKey().Has(lumui::ui::kModCommand) &&
      (IsLetter(inEvent, 'Z') || IsLetter(inEvent, 'Y'))) {
    return true;
  }
  switch (inEvent.GetCode().GetControlCode(false)) {
    case KeyboardCode::kReturn:
    case KeyboardCode::kEnter:
    case KeyboardCode::kTab:
    case KeyboardCode::kEscape:
    case KeyboardCode::kUpArrow:
    case KeyboardCode::kDownArrow:
    case KeyboardCode::kPageUp:
    case KeyboardCode::kPageDown:
      return true;
    default:
      return false;
  }
}

}  // namespace

bool OfferToParents(UI_Node& inNode, const KeyboardEvent& inEvent) {
  const boost::intrusive_ptr<UI_Node> start(&inNode);
  boost::intrusive_ptr<UI_Node> node(inNode.UI_GetParentNode());
  while (node) {
    if (node->UI_DoKeyboardEvent(start.get(), inEvent)) return true;
    node = node->UI_GetParentNode();
  }
  return false;
}

RowField::RowField()
    : mChangedByUser(new ChangedFunction([this](auto* inMessage) {
        using Message = lumui::controls::UI_InteractiveControlChangedMessage;
        if (inMessage->GetChange() == Message::kChanging && mEdited) mEdited();
      })) {
  UI_SetNodeID("rowtext");
  NotifyWhenChangedInteractively(mChangedByUser);
}

RowField::~RowField() {
  mChangedByUser->clear();
}

void RowField::SetFunctions(std::function<void()> inFocusChanged, std::function<void()> inEdited) {
  mFocusChanged = std::move(inFocusChanged);
  mEdited = std::move(inEdited);
}

void RowField::Insert(unsigned short inUnit) {
  Replace(GetSelectionStart(), GetSelectionEnd(), lumcore::UTF16String(1, inUnit));
}

void RowField::DeleteBefore() {
  std::size_t start = GetSelectionStart();
  if (start == GetSelectionEnd() && start > 0) {
    start -= start > 1 && IsTrailSurrogate(GetText()[start - 1]) ? 2 : 1;
  }
  Replace(start, GetSelectionEnd(), lumcore::UTF16String());
}

void RowField::Replace(std::size_t inStart, std::size_t inEnd, const lumcore::UTF16String& inText) {
  lumcore::UTF16String text = GetText();
  text.replace(inStart, inEnd - inStart, inText);
  SetText(text);
  SetSelection(inStart + inText.size(), inStart + inText.size());
  if (mEdited) mEdited();
}

bool RowField::UI_DoKeyboardEvent(UI_Node*, const KeyboardEvent& inEvent) {
  if (inEvent.GetAction() == KeyboardEvent::kActionCharacter) {
    Insert(inEvent.GetCharacter());
    return true;
  }
  if (!inEvent.IsActionKeyDown() || !IsForTheOutline(inEvent)) return false;
  OfferToParents(*this, inEvent);
  return true;
}

void RowField::UI_FocusChanged(int inReason) {
  UI_TextEdit::UI_FocusChanged(inReason);
  if (mFocusChanged) mFocusChanged();
}

}  // namespace outliner
