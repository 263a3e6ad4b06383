// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "lumui/controls/UI_TextEdit.h"

namespace outliner {

// The field over a list that says which of its rows show. Escape empties it, and in an empty field
// goes to the rows, as Return and Down do.
class FindField final : public lumui::controls::UI_TextEdit {
 public:
  struct Functions {
    std::function<void(const lumcore::UTF16String&)> find;
    std::function<void()> focusRows;
    std::function<void()> focusChanged;
  };

  FindField();
  ~FindField() override;
  void SetFunctions(Functions inFunctions) { mFunctions = std::move(inFunctions); }

  // Without a text all rows show again.
  void Clear();

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;

 private:
  Functions mFunctions;
  boost::shared_ptr<ChangedFunction> mChangedByUser;
};

}  // namespace outliner
