// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "lumcore/Strings.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::controls {

// What all standard controls are: a node that knows its state by itself, and shows it in a control
// of the window system from the time it is placed in a window. The state is whole before that and
// after; each operation may be called at any time.
//
// A control of the window system has a name for screen readers: its text, or the static text that
// stands right before it in the same parent, or its tool tip.
class LUMUI_API UI_ControlView : public ui::UI_SubView {
 public:
  ~UI_ControlView() override;

  void UI_SetEnabled(bool inEnabled) { UI_SetDisabled(!inEnabled); }
  bool UI_IsEnabled() const { return !UI_IsDisabled(); }

  // Of a button that stays down, and of a check box: whether it is. Tells no listener.
  void SetDownState(bool inDown);
  bool GetDownState() const { return mDownState; }
  // Keeps the frame away by which a control shows that it has the keyboard.
  void SetSuppressFocusDrawing(bool inSuppress);
  bool GetSuppressFocusDrawing() const { return mSuppressFocusDrawing; }

 protected:
  UI_ControlView();
  // For controls of the window system.
  explicit UI_ControlView(std::unique_ptr<ui::NodePeer> inPeer);

  // Brings the state into the window system's control, if there is one.
  void ShowState();
  // While it does, what that control says is no doing of the user.
  bool IsShowingState() const { return mShowingState; }
  // After the user has changed the control of the window system.
  void SetDownStateByUser(bool inDown) { mDownState = inDown; }
  // For whoever is the label of the control that comes next in the same parent.
  void ShowStateOfNextSibling();

  virtual void DoShowState();
  // See the class; marks of mnemonics and the colon at the end are taken off by the caller.
  virtual lumcore::UTF16String DoGetAccessibleName() const;

 private:
  friend class ControlPeer;

  bool mDownState = false;
  bool mSuppressFocusDrawing = false;
  bool mShowingState = false;
};

}  // namespace lumui::controls
