// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <vector>

#include "lumcore/Strings.h"
#include "lumui/controls/UI_Popup.h"
#include "lumui/controls/UI_StaticImage.h"
#include "lumui/controls/UI_StaticText.h"
#include "lumui/controls/UI_TextButton.h"
#include "lumui/controls/UI_TextEdit.h"
#include "lumui/ui/UI_ArchivedDialog.h"
#include "vek/config/Export.h"
#include "vek/sharedui/BubbleField.h"
#include "vek/sharedui/CommandsTree.h"
#include "vek/sharedui/ShortcutEditor.h"
#include "vek/sharedui/ShortcutEditorView.h"

namespace vek::sharedui {

// Shows every command of the registry with its shortcuts, and lets the user change them and keep
// sets of them in files. What it does is the business of a ShortcutEditor; the dialog finds the
// controls of its archive, and shows and asks. It lives for one RunModal, on the live mappings: see
// ShortcutEditor for what a host should know of that, and docs/shortcuts.md for what it does about
// it.
class VEK_API ShortcutDialog : public lumui::ui::UI_ArchivedDialog, private ShortcutEditorView {
 public:
  // The archive "ShortcutDialog" is the application's, or else the library's; an application that
  // has none gets the library's as well. Loads the current set: throws what reading it throws, and
  // then the mappings are as they were.
  ShortcutDialog(const lumcore::UTF16String& inCurrentSet, const lumcore::UTF8String& inDefaultKeys,
                 bool inUseAppResources);
  ~ShortcutDialog() override;

  int RunModal() override;
  // "(Custom)" for a set that is not as a file of a name has it.
  lumcore::UTF16String GetCurrentShortcutSetName() const;
  // Of the three columns from the left, in units.
  void GetColumnWidths(float& outCommand, float& outShortcut, float& outDescription) const;
  void SetColumnWidths(float inCommand, float inShortcut, float inDescription);

 private:
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;
  template <class Control>
  using Ptr = boost::intrusive_ptr<Control>;

  template <class Control>
  Ptr<Control> NeedControl(const char* inID) const;
  void OnChange(lumui::controls::UI_InteractiveControlView& inControl,
                void (ShortcutDialog::*inDo)(), bool inByUserOnly = true);

  void SetSetItems(const std::vector<lumcore::UTF16String>& inItems) override;
  int GetSetIndex() const override;
  void ChooseSet(int inIndex) override;
  void ShowSetText(const lumcore::UTF16String& inText) override;
  void Tell(const lumcore::UTF16String& inText) override;
  Answer Ask(const lumcore::UTF16String& inText, bool inMayCancel) override;
  bool AskName(lumcore::UTF16String& ioName) override;
  void SetWarningText(const lumcore::UTF16String& inText) override;
  void UpdateButtons() override;
  void CommandChanged(int inCommand) override;
  void AllCommandsChanged() override;
  void RebuildField() override;

  void SetChosen();
  void SaveAs();
  void DeleteSet();
  void FilterChanged();
  void SelectionChanged();
  void AddShortcut();
  void RemoveAllShortcuts();
  void Undo();
  void CopyList();
  void GoToCommand();
  void AssignKey(TextBubble& ioBubble, const lumui::ui::KeyboardEvent& inEvent);
  void RemoveShortcut(TextBubble& inBubble);
  void RemoveBubble(TextBubble& inBubble);

  Ptr<lumui::controls::UI_TextButton> mOKButton;
  Ptr<lumui::controls::UI_TextButton> mCancelButton;
  Ptr<lumui::controls::UI_StaticText> mKeysetLabel;
  Ptr<lumui::controls::UI_Popup> mKeysetPopup;
  Ptr<lumui::controls::UI_Button> mSaveKeysetAsButton;
  Ptr<lumui::controls::UI_Button> mDeleteKeysetButton;
  Ptr<lumui::controls::UI_TextEdit> mSearchBox;
  Ptr<lumui::controls::UI_Button> mMatchCase;
  Ptr<CommandsTree> mTree;
  Ptr<lumui::controls::UI_Button> mUndoButton;
  Ptr<lumui::controls::UI_Button> mAddButton;
  Ptr<lumui::controls::UI_Button> mRemoveAllButton;
  Ptr<lumui::controls::UI_Button> mCopyButton;
  Ptr<lumui::controls::UI_StaticImage> mWarningIcon;
  Ptr<lumui::controls::UI_StaticText> mWarningText;
  Ptr<lumui::controls::UI_Button> mGotoButton;
  ShortcutEditor mEditor;
  Ptr<BubbleField> mField;
  CommandsTree::RowID mFieldRow = CommandsTree::kNoRow;
  std::vector<boost::shared_ptr<ChangedFunction>> mFunctions;
};

}  // namespace vek::sharedui
