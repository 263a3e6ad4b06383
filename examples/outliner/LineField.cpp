// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "LineField.h"

#include <boost/intrusive_ptr.hpp>
#include <memory>

#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/UI_NodeAdapter.h"

namespace outliner {

using lumui::ui::KeyboardCode;

namespace {

// The function may be replaced while it runs.
template <class Function, class... Arguments>
void Call(const Function& inFunction, const Arguments&... inArguments) {
  const Function function = inFunction;
  if (function) function(inArguments...);
}

}  // namespace

LineField::LineField()
    : mChangedByUser(new ChangedFunction([this](auto* inMessage) {
        using Message = lumui::controls::UI_InteractiveControlChangedMessage;
        if (inMessage->GetChange() == Message::kChanging) Call(mFunctions.typed, GetText());
      })) {
  SetLeavesLineKeys(true);
  NotifyWhenChangedInteractively(mChangedByUser);
}

LineField::~LineField() {
  mChangedByUser->clear();
}

bool LineField::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                                   const lumui::ui::KeyboardEvent& inEvent) {
  if (inNode != this || !inEvent.GetModKey().IsEmpty()) return false;
  const boost::intrusive_ptr<LineField> held(this);
  const unsigned code = inEvent.GetCode().GetControlCode(false);
  switch (code) {
    case KeyboardCode::kEscape:
      if (!mFunctions.escaped) return false;
      break;
    case KeyboardCode::kReturn:
    case KeyboardCode::kEnter:
    case KeyboardCode::kDownArrow:
    case KeyboardCode::kUpArrow:
      break;
    default:
      return false;
  }
  if (!inEvent.IsActionKeyDown()) return true;
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  if (code == KeyboardCode::kEscape) {
    Escape();
  } else if (code == KeyboardCode::kDownArrow) {
    Call(mFunctions.down);
  } else if (code != KeyboardCode::kUpArrow) {
    Call(mFunctions.entered);
  }
  return true;
}

void LineField::Escape() {
  if (GetText().empty()) return Call(mFunctions.escaped);
  SetText(lumcore::UTF16String());
  Call(mFunctions.typed, lumcore::UTF16String());
}

void LineField::UI_FocusChanged(int inReason) {
  UI_TextEdit::UI_FocusChanged(inReason);
  Call(mFunctions.focusChanged);
}

void LineField::Register() {
  lumui::ui::UI_NodeAdapterRegistry::Get().RegisterIfNew(
      std::make_unique<lumui::ui::UI_NodeAdapterT<LineField>>("outliner::LineField",
                                                              "lumui::controls::UI_TextEdit"));
}

}  // namespace outliner
