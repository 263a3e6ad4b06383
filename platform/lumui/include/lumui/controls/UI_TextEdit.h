// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>

#include "lumcore/Strings.h"
#include "lumui/controls/UI_InteractiveControlView.h"

namespace lumui::controls {

// A field in which the user edits a text, of one line or of many. Each edit is told as kChanging;
// kChanged is told once it is committed: by Enter in one line, when the keyboard goes elsewhere, or
// when a button of the window is pressed.
//
// The keys that edit, move or commit are the field's, pressed and let go, whether they change
// anything or not; the node's parents get only what it leaves (Ctrl+S). In a dialog it leaves
// Enter, after the commit, and Escape. Elsewhere Escape brings back the text that was last
// committed, if it is another, and is left otherwise.
class LUMUI_API UI_TextEdit : public UI_InteractiveControlView {
 public:
  explicit UI_TextEdit(bool inMultiLine = false);
  ~UI_TextEdit() override;

  // Lines end with '\n'. In a field of one line they are joined by blanks. Tells no listener; the
  // text counts as committed.
  void SetText(const lumcore::UTF16String& inText);
  const lumcore::UTF16String& GetText() const { return mText; }
  // Of a node that has not been placed in a window (a contract).
  void SetMultiLine(bool inMultiLine);
  bool IsMultiLine() const { return mMultiLine; }
  // The user may then select and copy, and not edit.
  void SetReadOnly(bool inReadOnly);
  bool IsReadOnly() const { return mReadOnly; }
  // A field of one line then leaves Enter, behind the commit, and the arrows up and down to its
  // parents, for whoever runs lines and keeps a list of them.
  void SetLeavesLineKeys(bool inLeaves) { mLeavesLineKeys = inLeaves; }
  bool LeavesLineKeys() const { return mLeavesLineKeys; }
  // Shown, paler, while the text is empty.
  void SetPlaceholder(const lumcore::UTF16String& inText);
  const lumcore::UTF16String& GetPlaceholder() const { return mPlaceholder; }
  // In units; 0, as at start, for the size of the system's controls.
  void SetFontSize(float inSize);
  float GetFontSize() const { return mFontSize; }

  // In UTF-16 units, cut to the text. The caret stands at the end; an empty selection is the caret.
  void SetSelection(std::size_t inStart, std::size_t inEnd);
  std::size_t GetSelectionStart() const { return mSelectionStart; }
  std::size_t GetSelectionEnd() const { return mSelectionEnd; }
  void SelectAll() { SetSelection(0, mText.size()); }

  void Commit() override;

 protected:
  void DoShowState() override;

 private:
  friend class TextEditPeer;
  void HandleEdited(const lumcore::UTF16String& inText);
  bool Revert();  // false if there is nothing to bring back

  bool mMultiLine;
  bool mReadOnly = false;
  bool mLeavesLineKeys = false;
  bool mUncommitted = false;
  float mFontSize = 0;
  std::size_t mSelectionStart = 0;
  std::size_t mSelectionEnd = 0;
  lumcore::UTF16String mText;
  lumcore::UTF16String mCommittedText;
  lumcore::UTF16String mPlaceholder;
};

}  // namespace lumui::controls
