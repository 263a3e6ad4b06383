// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>

#include "lumui/controls/UI_PictureButton.h"
#include "lumui/controls/UI_TextButton.h"
#include "vek/config/Export.h"
#include "vek/uisupport/KeyCommand.h"

namespace vek::sharedui {

// One shortcut of a command. A press begins its editing: then the next key is handed out to be
// assigned, whatever it is, but for Tab, Space and the modifier keys alone; Escape ends the
// editing. Before that, Backspace and Delete hand it out to be removed, as the icon at its right
// does.
class VEK_API TextBubble : public lumui::controls::UI_TextButton {
 public:
  using AssignFunction = boost::function<void(TextBubble&, const lumui::ui::KeyboardEvent&)>;
  using BubbleFunction = boost::function<void(TextBubble&)>;

  // A new one has no key yet. The last function is called when it has got the keyboard.
  TextBubble(const uisupport::KeyCommand& inKey, bool inIsNew, const AssignFunction& inAssign,
             const BubbleFunction& inRemove, const BubbleFunction& inFocused);
  ~TextBubble() override;

  const uisupport::KeyCommand& GetKey() const { return mKey; }
  bool IsNew() const { return mIsNew; }
  // It is not new any more, and its editing ends.
  void SetKey(const uisupport::KeyCommand& inKey);

  void BeginEdit();
  void EndEdit();
  bool IsEditing() const { return mEditing; }

  // What is to be seen of the key; a new one has none.
  lumcore::UTF16String GetKeyText() const;
  // That text, or what there is room for; the whole one is the tool tip then.
  void ShowText(const lumcore::UTF16String& inText);
  // The width of all but the text, in units.
  static float GetMargins();
  static constexpr float kHeight = 20;

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  void LetKeyGo();
  bool EditKey(lumui::ui::UI_Node* inNode, const lumui::ui::KeyboardEvent& inEvent);

  uisupport::KeyCommand mKey;
  bool mIsNew;
  AssignFunction mAssign;
  BubbleFunction mRemove;
  BubbleFunction mFocused;
  bool mEditing = false;
  bool mKeyHeld = false;  // the one that was assigned, until it is let go
  boost::intrusive_ptr<lumui::controls::UI_PictureButton> mRemoveIcon;
  boost::shared_ptr<ChangedFunction> mOnPress;
  boost::shared_ptr<ChangedFunction> mOnRemove;
};

}  // namespace vek::sharedui
