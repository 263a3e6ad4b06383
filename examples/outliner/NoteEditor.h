// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

#include "OutlineRow.h"
#include "lumcore/Strings.h"

namespace outliner {

class OutlineDocument;

// The note that is being typed, as long as it is no deed yet. It is the document's and not the
// field's, so that a field that goes, shows another row or another document takes no text with it:
// what stands here is part of the next save, and becomes a deed with the next command.
//
// A commit that fails leaves the text as it is.
class NoteEditor {
 public:
  explicit NoteEditor(OutlineDocument& inDocument);

  // Called after each change of what is typed.
  void SetChangedFunction(std::function<void()> inChanged) { mChanged = std::move(inChanged); }

  // Whether a commit would post anything.
  bool IsModified() const;
  // What is typed for that row, or else its note.
  lumcore::UTF16String GetText(const OutlineRow& inRow) const;

  // Commits what was typed for another row first.
  void SetText(const OutlineRow& inRow, const lumcore::UTF16String& inText);
  void Commit();
  void Cancel();

 private:
  OutlineDocument& mDocument;
  std::function<void()> mChanged;
  bool mActive = false;
  OutlineRow::Id mRow = 0;
  lumcore::UTF16String mText;
};

}  // namespace outliner
