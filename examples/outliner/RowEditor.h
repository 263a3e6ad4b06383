// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

#include "OutlineRow.h"
#include "lumcore/Strings.h"

namespace outliner {

class OutlineDocument;

// The text of one row while it is typed in place, as long as it is no deed yet. It is the
// document's and not the field's that it is typed in, so that a field that goes takes no text with
// it. It becomes one deed when the editing ends: with every other command, with a click elsewhere,
// with the loss of the keyboard, with saving and closing. Only Cancel gives it up.
//
// A commit that fails leaves the text, and the editing, as they are.
class RowEditor {
 public:
  explicit RowEditor(OutlineDocument& inDocument);

  // Called after each begin and end, and after each change of the text.
  void SetChangedFunction(std::function<void()> inChanged) { mChanged = std::move(inChanged); }

  bool IsActive() const { return mActive; }
  bool IsEditing(const OutlineRow& inRow) const { return mActive && inRow.GetId() == mRow; }
  // Whether a commit would post anything.
  bool IsModified() const;
  OutlineRow::Id GetRow() const { return mRow; }
  const lumcore::UTF16String& GetText() const { return mText; }

  // Ends a running editing first. Throws lumcore::config::Error for a text that no field can take;
  // then nothing has changed.
  void Begin(const OutlineRow& inRow);
  // At the one selected row; in an empty outline at a first row, which needs no key before it.
  // False where there is no row to type in.
  bool BeginAtSelection();
  void SetText(const lumcore::UTF16String& inText);
  void Commit();
  void Cancel();

 private:
  void Changed();

  OutlineDocument& mDocument;
  std::function<void()> mChanged;
  bool mActive = false;
  OutlineRow::Id mRow = 0;
  lumcore::UTF16String mText;
};

}  // namespace outliner
