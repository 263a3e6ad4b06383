// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "LineField.h"

#include <memory>

#include "lumui/ui/KeyboardEvent.h"
#include "lumui/ui/UI_NodeAdapter.h"

namespace outliner {

using lumui::ui::KeyboardCode;

LineField::LineField() {
  SetLeavesLineKeys(true);
}

// None of these keys is a command while a text is edited. What is called may take the field away.
bool LineField::UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                                   const lumui::ui::KeyboardEvent& inEvent) {
  if (inNode != this || !inEvent.GetModKey().IsEmpty()) return false;
  const unsigned code = inEvent.GetCode().GetControlCode(false);
  const bool isEnter = code == KeyboardCode::kReturn || code == KeyboardCode::kEnter;
  const bool isDown = code == KeyboardCode::kDownArrow;
  if (!isEnter && !isDown && code != KeyboardCode::kUpArrow) return false;
  if (!inEvent.IsActionKeyDown()) return true;
  const std::function<void()> act = isEnter ? mEntered : isDown ? mDown : nullptr;
  lumui::ui::FlushPostActionKeyEvents(inEvent);
  if (act) act();
  return true;
}

void LineField::Register() {
  lumui::ui::UI_NodeAdapterRegistry::Get().RegisterIfNew(
      std::make_unique<lumui::ui::UI_NodeAdapterT<LineField>>("outliner::LineField",
                                                              "lumui::controls::UI_TextEdit"));
}

}  // namespace outliner
