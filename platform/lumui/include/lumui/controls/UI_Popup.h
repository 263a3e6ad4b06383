// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lumcore/Strings.h"
#include "lumui/controls/UI_InteractiveControlView.h"

namespace lumui::controls {

// A list of texts that opens at a click, with one of them chosen and shown, or with a text that is
// none of them (index -1). A choice of the user is told as kChanged.
class LUMUI_API UI_Popup : public UI_InteractiveControlView {
 public:
  static constexpr int kOverItem = 0;   // the list opens over the control, the chosen item on it
  static constexpr int kBelowItem = 1;  // the list opens below the control

  UI_Popup();
  ~UI_Popup() override;

  // Items are counted from 0; texts may stand there twice. Each returns or takes such an index.
  int AddItem(const lumcore::UTF16String& inText);
  void SetItems(const std::vector<lumcore::UTF16String>& inItems);  // nothing is chosen then
  const std::vector<lumcore::UTF16String>& GetItems() const { return mItems; }
  void DeleteAllItems() { SetItems({}); }
  int GetItemCount() const { return static_cast<int>(mItems.size()); }
  lumcore::UTF16String GetItemString(int inIndex) const;     // empty beyond the items
  int FindString(const lumcore::UTF16String& inText) const;  // the first; -1 if there is none
  int FindStringCaseInsensitive(const lumcore::UTF16String& inText) const;

  // -1, or any other number that is no item's, chooses nothing and shows an empty text. Tells no
  // listener.
  void SetValue(int inIndex);
  int GetValue() const { return mValue; }
  // Chooses the first item of that text; a text that no item has is shown with nothing chosen.
  // inNotify tells the listeners, but not those to the user's changes.
  void SetValueString(const lumcore::UTF16String& inText, bool inNotify);
  const lumcore::UTF16String& GetValueString() const { return mText; }
  // Shows a text in the place of the one that was chosen, or where nothing is, until the next
  // choice; what is chosen stays, whatever the text. GetValueString answers it.
  void SetShownText(const lumcore::UTF16String& inText);

  // kOverItem or kBelowItem.
  void SetPopupType(int inType);
  int GetPopupType() const { return mType; }
  // Also tells when the user chooses what is chosen already.
  void SetAlwaysNotify(bool inAlways) { mAlwaysNotify = inAlways; }
  bool GetAlwaysNotify() const { return mAlwaysNotify; }
  // A line between the text and the arrow.
  void SetDrawDivider(bool inDraw);
  bool GetDrawDivider() const { return mDrawDivider; }
  // In units; 0, as at start, for the size of the system's controls.
  void SetFontSize(float inSize);
  float GetFontSize() const { return mFontSize; }

  void Commit() override;

 protected:
  // For a list with a field.
  explicit UI_Popup(bool inEditable);
  void DoShowState() override;
  void SetEditableState(bool inEditable);
  bool GetEditableState() const { return mEditable; }

 private:
  friend class PopupPeer;
  void HandleChosen(int inIndex);
  void HandleTyped(const lumcore::UTF16String& inText);

  std::vector<lumcore::UTF16String> mItems;
  lumcore::UTF16String mText;
  int mValue = -1;
  int mType = kOverItem;
  float mFontSize = 0;
  bool mAlwaysNotify = false;
  bool mDrawDivider = false;
  bool mEditable = false;
  bool mTyping = false;
};

}  // namespace lumui::controls
