// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/shared_ptr.hpp>
#include <functional>
#include <utility>

#include "lumui/controls/UI_TextEdit.h"

namespace outliner {

// A field of one line beside a list, for what is looked for there or comes into it. Its keys do
// what its owner says, and none of them is a command meanwhile. Archives have it as
// "outliner::LineField", with the properties of a text field.
class LineField final : public lumui::controls::UI_TextEdit {
 public:
  // Each may be empty, and may take the field away.
  struct Functions {
    std::function<void(const lumcore::UTF16String&)> typed;  // the user has changed the text
    std::function<void()> entered;  // Enter, each time, behind the commit if there is one
    std::function<void()> down;     // the arrow down
    // Escape in an empty field. Where it is given, Escape empties any other.
    std::function<void()> escaped;
    std::function<void()> focusChanged;
  };

  LineField();
  ~LineField() override;
  void SetFunctions(Functions inFunctions) { mFunctions = std::move(inFunctions); }

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;

  // Makes the class known to archives.
  static void Register();

 private:
  void Escape();

  Functions mFunctions;
  boost::shared_ptr<ChangedFunction> mChangedByUser;
};

}  // namespace outliner
