// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

#include "OutlineRow.h"
#include "TextEdit.h"

namespace lumui::ui {
class KeyboardEvent;
}

namespace outliner {

class OutlineDocument;

// The editing of one row's text in place. What is typed stands in a buffer of its own and becomes
// one deed when the editing ends: with every other command, with a click elsewhere, with the loss
// of the keyboard, with saving and closing. Only Cancel gives it up. While nothing is being edited,
// the keys for text begin it at the one selected row.
//
// A commit that fails leaves the buffer as it is.
class RowEditor {
 public:
  explicit RowEditor(OutlineDocument& inDocument);

  // Called after each change of what is to be seen: begin, text, caret, end.
  void SetChangedFunction(std::function<void()> inChanged) { mChanged = std::move(inChanged); }

  bool IsActive() const { return mActive; }
  bool IsEditing(const OutlineRow& inRow) const { return mActive && inRow.GetId() == mRow; }
  // Whether a commit would post anything.
  bool IsModified() const;
  const TextEdit& GetEdit() const { return mEdit; }

  // Ends a running editing first. The caret goes to the end.
  void Begin(const OutlineRow& inRow);
  void SetCaret(std::size_t inCaret);
  void Commit();
  void Cancel();

  // True for a key that moves the caret or changes the text.
  bool HandleKey(const lumui::ui::KeyboardEvent& inEvent);
  // Whether a key down is about to type into the text that is being edited.
  bool IsForTyping(const lumui::ui::KeyboardEvent& inEvent) const;
  // A typed character. False where there is no row for it.
  bool HandleCharacter(const lumui::ui::KeyboardEvent& inEvent);

 private:
  bool BeginAtSelection();
  void Changed();

  OutlineDocument& mDocument;
  std::function<void()> mChanged;
  bool mActive = false;
  OutlineRow::Id mRow = 0;
  TextEdit mEdit;
};

}  // namespace outliner
