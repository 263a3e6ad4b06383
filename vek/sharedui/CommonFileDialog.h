// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <boost/shared_ptr.hpp>
#include <memory>
#include <vector>

#include "lumcore/filesupport/Dir.h"
#include "lumcore/filesupport/File.h"
#include "lumui/controls/UI_Popup_Combo.h"
#include "lumui/ui/UI_ArchivedDialog.h"
#include "vek/config/Export.h"
#include "vek/messaging/Listener.h"
#include "vek/selection/Messages.h"
#include "vek/sharedui/UIMultiTreeListController.h"

namespace vek {
class UIMultiTreeList;
}

namespace vek::sharedui {

class UIShellTrackView;

// Has the user choose files, or name one: a tree of folders, the files of the selected one, and a
// field for a name. It opens and saves nothing. A host runs it and then asks:
//
//   const boost::intrusive_ptr<CommonFileDialog> dialog(
//       new CommonFileDialog(nullptr, title, U("Save"), &folder, nullptr, window));
//   if (dialog->RunModal() != lumui::ui::UI_Dialog::kOK) return;
//   if (dialog->UserTypedFilename()) ... dialog->GetDirectory(), dialog->GetFilename()
//   else ... dialog->GetSelectedFile(0, file)
//
// A double click on a file is OK. A folder that is not there has no files, and one that cannot be
// read says why in the list; either can be chosen. What was typed stays in the field whatever else
// the user does, until he picks a file. RunModal leaves the active selection as it was.
class VEK_API CommonFileDialog
    : public lumui::ui::UI_ArchivedDialog,
      public UIMultiTreeListController,
      public messaging::Listener<const selection::SelectionChangeMessage&> {
 public:
  // inOKText is what the OK button says. The folder is selected in the tree; the file in the list,
  // if it is there, by its name alone. Folder, file and parent may be null. Throws a config::Error
  // where the archive is not as the dialog needs it.
  CommonFileDialog(lumui::drawbot::SupplierInterface const* inSupplier,
                   lumcore::UTF16String const& inTitle, lumcore::UTF16String const& inOKText,
                   lumcore::filesupport::Dir const* inInitialDir,
                   lumcore::filesupport::File const* inInitialFile, lumui::ui::UI_Node* inParent);
  ~CommonFileDialog() override;

  // Where the user is; a default one where nothing that is a folder was selected so far.
  virtual lumcore::filesupport::Dir GetDirectory() const;
  virtual unsigned int GetSelectedFileCount() const;
  // From top to bottom. False, and outFile as it was, for an index that is too high.
  virtual bool GetSelectedFile(unsigned int inIndex, lumcore::filesupport::File& outFile) const;
  // Whether the name in the field was typed, and not put there by the choice of a file.
  virtual bool UserTypedFilename() const;
  virtual lumcore::UTF16String GetFilename() const;

  int RunModal() override;

  // UIMultiTreeListController
  void GetTextForNode(UIMultiTreeListView& inView, UIMultiTreeListNode const& inNode,
                      unsigned int inColumn, lumcore::UTF16String& outText) override;
  boost::intrusive_ptr<lumui::drawbot::ImageInterface> GetIconForNode(
      UIMultiTreeListView& inView, UIMultiTreeListNode const& inNode) override;
  bool IsSelectable(UIMultiTreeListView& inView, UIMultiTreeListNode const& inNode) override;
  bool OnDoubleClick(UIMultiTreeListView& inView, UIMultiTreeListNode& inNode) override;
  bool OnKeyEvent(UIMultiTreeListView& inView, lumui::ui::KeyboardEvent const& inEvent) override;
  void OnSelectionChanged(UIMultiTreeListView& inView,
                          std::list<UIMultiTreeListNode*> const& inSelected) override;
  void OnSizeChanged(UIMultiTreeListView& inView) override;
  // Of the folder tree.
  void ListenToMessage(const selection::SelectionChangeMessage& inMessage) override;

 private:
  using ChangedFunction = lumui::controls::UI_InteractiveControlView::ChangedFunction;

  void SetUpFolders(lumcore::filesupport::Dir const* inInitialDir);
  void SetUpFilename();
  void SelectInitialFile(lumcore::filesupport::File const& inFile);
  void SelectRow(UIMultiTreeListNode& inRow);
  void EmptyList();
  void ListFiles();
  void NameTyped();
  bool IsOwnList(UIMultiTreeListView const& inView) const;

  boost::intrusive_ptr<lumui::controls::UI_TextButton> mOKButton;
  boost::intrusive_ptr<lumui::controls::UI_TextButton> mCancelButton;
  UIShellTrackView* mFolderTree = nullptr;  // owned by its view
  boost::intrusive_ptr<UIMultiTreeList> mFilesList;
  boost::intrusive_ptr<lumui::controls::UI_Popup_Combo> mFilenameCombo;
  std::unique_ptr<lumcore::filesupport::Dir> mCurrentFolder;
  std::vector<lumcore::filesupport::File> mFiles;  // those in the list, by the ids of its rows
  std::vector<unsigned int> mSelectedRows;         // indices into mFiles
  bool mUserTyped = false;

  lumcore::UTF16String mReadError;  // of the current folder
  bool mIsEmptying = false;
  float mListWidth = 0;  // to which the columns were fitted
  boost::shared_ptr<ChangedFunction> mOnChanged;
  boost::shared_ptr<ChangedFunction> mOnTyped;
};

}  // namespace vek::sharedui
