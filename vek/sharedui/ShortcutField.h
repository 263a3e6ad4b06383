// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/utility/Flags.h"
#include "lumui/controls/UI_InteractiveControlView.h"
#include "lumui/ui/KeyboardCode.h"
#include "vek/config/Export.h"

namespace vek::sharedui {

// A field that takes one key with its modifiers: the next key that is pressed while it has the
// keyboard, but for Tab, Space and the modifier keys alone. Each is told as kChanged.
class VEK_API ShortcutField : public lumui::controls::UI_InteractiveControlView {
 public:
  ShortcutField();
  ~ShortcutField() override;

  // False while it holds no key.
  bool GetKeyboardCode(lumui::ui::KeyboardCode& outCode,
                       lumcore::utility::Flags<unsigned char>& outModifiers) const;
  // Tells no listener.
  void SetKeyboardCode(const lumui::ui::KeyboardCode& inCode,
                       const lumcore::utility::Flags<unsigned char>& inModifiers);
  const lumcore::UTF16String& GetText() const { return mText; }

  void UI_Draw(lumui::drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(lumui::ui::UI_Node* inNode, const lumui::ui::MouseEvent& inEvent) override;
  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;

 private:
  lumui::ui::KeyboardCode mCode;
  lumcore::utility::Flags<unsigned char> mModifiers;
  lumcore::UTF16String mText;
};

}  // namespace vek::sharedui
