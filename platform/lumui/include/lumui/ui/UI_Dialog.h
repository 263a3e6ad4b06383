// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <memory>

#include "lumui/controls/UI_InteractiveControlView.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/ui/OS_Window.h"
#include "lumui/ui/UI_SubView.h"

namespace lumui::ui {

// A window that asks the user something and ends with a result. It holds one view, which has its
// size and holds the controls. Enter presses the OK button and Escape the Cancel button, unless the
// control that has the keyboard takes the key; closing the window is Cancel.
//
// The nodes stay as they are after the end, so that they can be read, and a dialog may run again.
// Whoever runs it modally holds it; a modeless one holds itself while it is open.
class LUMUI_API UI_Dialog : public OS_Window {
 public:
  static constexpr int kNoResult = 0;
  static constexpr int kOK = 1;
  static constexpr int kCancel = 2;

  // The dialog stands over the window of the parent, which may be null.
  UI_Dialog(const lumcore::UTF16String& inTitle, UI_Node* inParent);
  ~UI_Dialog() override;

  UI_SubView& GetContent() const { return *mContent; }
  // Either may be null. The OK button gets the default appearance.
  void SetButtons(const boost::intrusive_ptr<controls::UI_TextButton>& inOK,
                  const boost::intrusive_ptr<controls::UI_TextButton>& inCancel);
  // The first of that id in the dialog; null if there is none.
  boost::intrusive_ptr<UI_Node> GetNodeForID(const lumcore::UTF8String& inID) const;
  boost::intrusive_ptr<UI_Node> GetNodeForID(const char* inID) const;

  // Shows the dialog, keeps the user from all other windows, and returns the result when it has
  // ended; also when its window or the application goes, which is Cancel. In a headless run a
  // dialog that no driver ends throws a config::Error with its title (see dialogs/DialogDriver.h).
  // A dialog that is open does not run again (a contract).
  virtual int RunModal();
  // Shows the dialog and returns. The function, which may be empty, gets the result when it ends. A
  // driver is called before this returns; nobody has to end the dialog.
  void RunModeless(const boost::function<void(int)>& inEnded);
  // Does nothing to a dialog that is not open, or one whose DoMayEnd refuses.
  void EndDialog(int inResult);
  bool IsOpen() const { return mOpen; }
  int GetResult() const { return mResult; }  // of the last run; kNoResult before its end

  // In units, without the frame. Smaller bounds are made as large.
  void SetMinimumSize(float inWidth, float inHeight);
  void SetSize(float inWidth, float inHeight);
  // On the screen. Without bounds a dialog opens in the middle of its parent's window, or of the
  // screen.
  void SetBounds(const lumcore::geom::RectT<float>& inBounds);
  const lumcore::geom::RectT<float>& GetBounds() const { return UI_GetLocalRectF(); }

  void UI_ConstructWindow(const lumcore::geom::RectT<int>* inRect) override;
  bool UI_DoKeyboardEvent(UI_Node* inNode, const KeyboardEvent& inEvent) override;
  void UI_DoClose() override;

 protected:
  void UI_SizeChanged(const lumcore::geom::RectT<float>& inRect) override;
  // Asked before the dialog ends; false keeps it open. The base operation answers true.
  virtual bool DoMayEnd(int inResult);
  // In the middle of the parent's window, or of the screen.
  void PlaceInMiddle();

 private:
  class Loop;
  class WindowWatch;
  using ChangedFunction = controls::UI_InteractiveControlView::ChangedFunction;

  boost::shared_ptr<ChangedFunction> EndsWith(controls::UI_TextButton* inButton, int inResult);
  void Open(bool inModal);
  void CloseWith(int inResult);
  bool IsLeftOpen() const;

  boost::intrusive_ptr<UI_SubView> mContent;
  boost::intrusive_ptr<controls::UI_TextButton> mOKButton;
  boost::intrusive_ptr<controls::UI_TextButton> mCancelButton;
  boost::shared_ptr<ChangedFunction> mOnOK;
  boost::shared_ptr<ChangedFunction> mOnCancel;
  boost::function<void(int)> mEnded;
  boost::intrusive_ptr<UI_Dialog> mSelf;  // while open without a loop
  HWND mOwner = nullptr;
  std::unique_ptr<WindowWatch> mWatch;
  Loop* mLoop = nullptr;
  bool mOpen = false;
  bool mHasPlace = false;
  int mResult = kNoResult;
  lumcore::geom::PointT<float> mMinimumSize;
};

}  // namespace lumui::ui
