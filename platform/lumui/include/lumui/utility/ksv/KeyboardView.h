// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "lumui/ui/UI_SubView.h"
#include "lumui/utility/ksv/IDelegateInterface.h"
#include "lumui/utility/ksv/KeyboardShape.h"

namespace lumui::utility::ksv {

// A drawn keyboard: each key with its cap and, for the modifiers that are chosen, with the command
// that it runs, in the theme's colours. It fills its rectangle as far as the proportions of a
// keyboard let it.
//
// A click chooses a key or switches a modifier. With the keyboard, the arrows walk, and every other
// chord chooses the key that it is; modifier keys that are held show what they would do. The view
// changes nothing by itself: whoever listens does.
class LUMUI_API KeyboardView : public ui::UI_SubView {
 public:
  // The delegate is borrowed and outlives the view.
  explicit KeyboardView(const IDelegateInterface& inDelegate);
  ~KeyboardView() override;

  void SetForm(KeyboardForm inForm);
  KeyboardForm GetForm() const { return mForm; }
  // Those that are switched on, with those that are held.
  ui::ModifierKeys GetModifiers() const { return mSwitched | mHeld; }
  void SetModifiers(ui::ModifierKeys inModifiers);
  // After the delegate's keys have changed.
  void Refresh();

  // No key at the start, and after a change of the form.
  ui::KeyboardCode GetSelectedKey() const;
  void SetSelectedKey(ui::KeyboardCode inCode);
  // The key under a point in local coordinates; no key beside all, and for one without commands.
  ui::KeyboardCode GetKeyAt(const lumcore::geom::PointT<float>& inPoint) const;
  // In local coordinates; empty for a key that this keyboard lacks.
  lumcore::geom::RectT<float> GetRectOf(ui::KeyboardCode inCode) const;
  // Shows where a command that is being dragged would fall; no key for nowhere.
  void SetDropKey(ui::KeyboardCode inCode);

  // After the user has chosen a key or other modifiers.
  void SetChangedFunction(const boost::function<void()>& inFunction) { mChanged = inFunction; }
  // After Enter (true) or Delete (false) on the chosen key.
  void SetActionFunction(const boost::function<void(bool)>& inFunction) { mAction = inFunction; }

  void UI_Draw(drawbot::Drawbot* inDrawbot) const override;
  bool UI_DoMouseEvent(ui::UI_Node* inNode, const ui::MouseEvent& inEvent) override;
  bool UI_DoKeyboardEvent(ui::UI_Node* inNode, const ui::KeyboardEvent& inEvent) override;
  void UI_FocusChanged(int inReason) override;
  ui::AccessibleItems* UI_GetAccessibleItems() override;

 private:
  class Accessible;
  using Index = std::optional<std::size_t>;

  float GetPitch() const;  // in units: how wide a letter's key is
  lumcore::geom::RectT<float> Placed(const lumcore::geom::RectT<float>& inKeyRect) const;
  Index FindAt(const lumcore::geom::PointT<float>& inPoint) const;
  Index FindKey(ui::KeyboardCode inCode) const;
  void Choose(Index inKey);
  void PressKey(std::size_t inKey);
  void Walk(float inX, float inY);
  bool HandleWalk(unsigned short inControlCode);
  bool HandleModifierKey(unsigned short inControlCode, bool inDown);
  void Changed();
  static lumcore::UTF16String PathOf(const Command& inCommand);
  void ShowToolTip();
  void DrawKey(drawbot::Drawbot& ioDrawbot, std::size_t inKey) const;
  void DrawUse(drawbot::Drawbot& ioDrawbot, const lumcore::geom::RectT<float>& inRect,
               float inCapBottom, const KeyUse& inUse) const;

  const IDelegateInterface& mDelegate;
  KeyboardForm mForm;
  std::vector<KeyShape> mKeys;
  std::vector<KeyUse> mUses;  // of mKeys, with the present modifiers
  std::map<int, Command> mCommands;
  ui::ModifierKeys mSwitched;
  ui::ModifierKeys mHeld;
  Index mSelected;
  Index mHovered;
  Index mDrop;
  boost::function<void()> mChanged;
  boost::function<void(bool)> mAction;
  std::unique_ptr<Accessible> mAccessible;
};

}  // namespace lumui::utility::ksv
