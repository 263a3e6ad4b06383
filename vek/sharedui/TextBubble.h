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
  using RemoveFunction = boost::function<void(TextBubble&)>;

  // A new one has no key yet.
  TextBubble(const uisupport::KeyCommand& inKey, bool inIsNew, const AssignFunction& inAssign,
             const RemoveFunction& inRemove);
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
  // The width of all but the text, in units.
  static float GetMargins();
  static constexpr float kHeight = 20;

  bool UI_DoKeyboardEvent(lumui::ui::UI_Node* inNode,
                          const lumui::ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  void ShowKey();
  bool EditKey(lumui::ui::UI_Node* inNode, const lumui::ui::KeyboardEvent& inEvent);

  uisupport::KeyCommand mKey;
  bool mIsNew;
  AssignFunction mAssign;
  RemoveFunction mRemove;
  bool mEditing = false;
  bool mKeyHeld = false;  // the one that was assigned, until it is let go
  boost::intrusive_ptr<lumui::controls::UI_PictureButton> mRemoveIcon;
  boost::shared_ptr<ChangedFunction> mOnPress;
  boost::shared_ptr<ChangedFunction> mOnRemove;
};

}  // namespace vek::sharedui
