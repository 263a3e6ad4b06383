// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

#include "lumui/controls/UI_TextEdit.h"

namespace outliner {

// The field over a row in which its text is typed. The keys that work on the text are its own;
// those by which an outline is written (Return, Tab, Escape, up and down by rows and pages, undo)
// go on to the nodes around it, and so to the commands.
class RowField final : public lumui::controls::UI_TextEdit {
 public:
  RowField();
  ~RowField() override;

  // Called after the field has gained or lost the keyboard, and after the user has changed the
  // text.
  void SetFunctions(std::function<void()> inFocusChanged, std::function<void()> inEdited);

  // As if it were typed, in place of what is selected: for keys that came before the field did.
  void Insert(unsigned short inUnit);
  void DeleteBefore();

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;

 private:
  void Replace(std::size_t inStart, std::size_t inEnd, const lumcore::UTF16String& inText);

  std::function<void()> mFocusChanged;
  std::function<void()> mEdited;
  boost::shared_ptr<ChangedFunction> mChangedByUser;
};

// Offers a key to the nodes around inNode, from the nearest to the window. True if one takes it.
bool OfferToParents(lumui::ui::UI_Node& inNode, const lumui::ui::KeyboardEvent& inEvent);

}  // namespace outliner
