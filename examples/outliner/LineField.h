// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <utility>

#include "lumui/controls/UI_TextEdit.h"

namespace outliner {

// A field of one line in which Enter does something each time, also where there is nothing to
// commit. Archives have it as "outliner::LineField", with the properties of a text field.
class LineField final : public lumui::controls::UI_TextEdit {
 public:
  LineField();

  // After the commit; null for nothing.
  void SetEnterFunction(std::function<void()> inEntered) { mEntered = std::move(inEntered); }
  // For the arrow down, which leads to a list below; null for nothing.
  void SetDownFunction(std::function<void()> inDown) { mDown = std::move(inDown); }

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;

  // Makes the class known to archives.
  static void Register();

 private:
  std::function<void()> mEntered;
  std::function<void()> mDown;
};

}  // namespace outliner
