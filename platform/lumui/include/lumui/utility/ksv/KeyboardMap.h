// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/shared_ptr.hpp>

#include "lumui/controls/UI_Popup.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_SubView.h"
#include "lumui/utility/ksv/KeyboardView.h"

namespace lumui::utility::ksv {

class CommandList;

// A keyboard above the list of all commands, in which users see what each key does and change it:
// they drag a command onto a key, or choose both and press Assign. It stands in a dialog or a panel
// and shows every change of the delegate's keys at once, whoever makes it.
class LUMUI_API KeyboardMap : public ui::UI_SubView {
 public:
  // The delegate is borrowed and outlives the node, which puts its function in place there.
  explicit KeyboardMap(IDelegateInterface& inDelegate);
  ~KeyboardMap() override;

  KeyboardView& GetKeyboard() const { return *mKeyboard; }
  int GetSelectedCommand() const;  // 0 for none
  void SelectCommand(int inCommand);
  // What the buttons do; nothing without both a key and a command, or without a key.
  void Assign();
  void Remove();

  // In units.
  static constexpr float kGoodWidth = 1160;
  static constexpr float kGoodHeight = 640;
  static constexpr float kLeastWidth = 760;
  static constexpr float kLeastHeight = 460;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;

 private:
  class DragLabel;
  using ChangedFunction = controls::UI_InteractiveControlView::ChangedFunction;

  void AddControls();
  void Connect();
  boost::shared_ptr<ChangedFunction> Calls(const boost::function<void()>& inFunction);
  void KeysChanged();
  void KeyChosen();
  void ShowState();
  void Dragged(const lumcore::geom::PointT<float>& inPosition, bool inDone, bool inCancelled);

  IDelegateInterface& mDelegate;
  boost::intrusive_ptr<KeyboardView> mKeyboard;
  boost::intrusive_ptr<CommandList> mList;
  boost::intrusive_ptr<controls::UI_TextEdit> mSearch;
  boost::intrusive_ptr<controls::UI_Popup> mForm;
  boost::intrusive_ptr<controls::UI_StaticText> mKeyText;
  boost::intrusive_ptr<controls::UI_StaticText> mUseText;
  boost::intrusive_ptr<controls::UI_TextButton> mAssign;
  boost::intrusive_ptr<controls::UI_TextButton> mRemove;
  boost::intrusive_ptr<DragLabel> mDragLabel;  // null while nothing is dragged
  std::vector<boost::shared_ptr<ChangedFunction>> mFunctions;
};

}  // namespace lumui::utility::ksv
