// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "DiskContent.h"
#include "OutlineJunction.h"
#include "OutlineTree.h"
#include "lumcore/filesupport/File.h"
#include "vek/document/FileBasedDocument.h"
#include "vek/selection/Manager.h"
#include "vek/undo/MultiUndoer.h"
#include "vek/undo/MultiUndoerHooks.h"

namespace outliner {

class AttributeEditor;
class DocumentCommands;
class RowEditor;

// An open outline: its tree, what is selected in it, its edits, the text that is being typed, its
// commands and its file. All edits are deeds of its undoer (OutlineEdits.h posts them), so that the
// dirty mark is a comparison of two numbers.
//
// It owns all of these; others keep references of their own only while it lives. Who listens to the
// selection or the undoer may call back into the document.
class OutlineDocument final : public vek::document::FileBasedDocument,
                              private vek::undo::MultiUndoerHooks {
 public:
  using File = lumcore::filesupport::File;

  // The steps that can be undone, as the undoer counts its limit.
  static constexpr int kUndoLevels = 1000;

  // Throws what ReadOpml throws.
  static std::unique_ptr<OutlineDocument> Open(const File& inFile);

  OutlineDocument();  // empty, without a file
  // inFile is where Save writes; it need not be there yet.
  OutlineDocument(std::unique_ptr<OutlineTree> inTree, const File& inFile);
  ~OutlineDocument() override;
  OutlineDocument(const OutlineDocument&) = delete;
  OutlineDocument& operator=(const OutlineDocument&) = delete;

  OutlineTree& GetTree() { return *mTree; }
  vek::undo::MultiUndoer& GetUndoer() { return *mUndoer; }
  const vek::undo::MultiUndoer& GetUndoer() const { return *mUndoer; }
  vek::selection::Manager& GetSelection() { return *mSelection; }
  const OutlineTree& GetTree() const { return *mTree; }
  RowEditor& GetEditor() { return *mEditor; }
  // Of one row's note, by itself: it may be typed while another attribute is.
  AttributeEditor& GetNoteEditor() { return *mNoteEditor; }
  AttributeEditor& GetAttributeEditor() { return *mAttributeEditor; }
  // Makes deeds of what is being typed, in a row, in a note or for an attribute: before anything
  // else happens to the outline. What one of them throws leaves those before it done.
  void CommitTyping();
  bool IsTyping() const;  // whether that would post anything
  DocumentCommands& GetCommands() { return *mCommands; }
  // Whether the selected rows are being dragged by the window system, and nobody here has taken
  // them back yet. Who drags them shares it, as the document may go meanwhile.
  const std::shared_ptr<bool>& GetRowDrag() const { return mRowDrag; }

  // In document order. The list of many rows is made when it is first asked for, and kept.
  std::vector<OutlineRow*> GetSelectedRows() const { return FindSelectedRows(); }
  std::size_t CountSelectedRows() const { return FindSelectedRows().size(); }
  OutlineRow* GetOnlySelectedRow() const;  // null for none or several
  bool IsSelected(const OutlineRow& inRow) const { return mSelection->Selected(&inRow); }
  // These rows and no others; an empty list deselects all.
  void SelectRows(const std::vector<OutlineRow*>& inRows);
  // For deeds, before rows leave the tree: no row that goes may stay selected, as another one may
  // get its address. If one of these (or one below them) is selected, everything is deselected.
  void DeselectForRemoval(const OutlineRow& inParent, std::size_t inIndex, std::size_t inCount);

  // Whether nothing was ever done to it: new, without a file and without an edit.
  bool IsPristine() const;

  // Called after each change of what is typed, of the file and of the dirty mark, but by a deed.
  void SetChangedFunction(std::function<void()> inChanged) { mChanged = std::move(inChanged); }
  // The first is called before another file becomes the document's, and refuses it by a throw; the
  // second after each save to the document's own file.
  void SetFileFunctions(std::function<void(const File&)> inCheck,
                        std::function<void(const File&)> inTaken);

  bool HasAttachment() const override { return true; }
  vek::uisupport::CommandAttachment* GetCommandAttachment() const override;
  void Close() override;
  // For a document that is not shown yet. The file becomes its own. After a throw of what ReadOpml
  // throws all is as it was.
  void LoadFromFile(const File& inFile) override;
  // Replaces the file in one step. After a throw of FileError the old file is as it was, and the
  // document as dirty as it was.
  void SaveToFile(const File& inFile) override;
  // Both commit what is being typed. A file that another program has changed since it was read or
  // written here is overwritten only when the user says so.
  void Save() override;
  bool CanClose() override;
  void SaveAs() override;
  // The same without a question. A file that cannot be written leaves the document its own.
  void SaveAsFile(const File& inFile);
  void SetDirty(bool inDirty) override;

 protected:
  lumcore::UTF16String GetSaveFileNameFromDialog(
      lumworkspace::workspace::TopLevelWindow* inWindow) override;
  vek::uisupport::Alert::Response SaveBeforeCloseMessage() const override;

 private:
  const std::vector<OutlineRow*>& FindSelectedRows() const;
  // Whether the data, what is being typed included, differs from what was last saved.
  bool DoIsDirty() const override;
  void Changed();
  bool SaveElsewhere(const File& inFile);

  void WillPostDeed(vek::undo::Deed* inDeed) override;
  void DidPostDeed(vek::undo::Deed*) override {}
  void WillUndoDeed(vek::undo::Deed*) override {}
  void DidUndoDeed(vek::undo::Deed*) override {}
  void WillRedoDeed(vek::undo::Deed*) override {}
  void DidRedoDeed(vek::undo::Deed*) override {}

  std::unique_ptr<OutlineTree> mTree;
  OutlineJunction mJunction;
  boost::intrusive_ptr<vek::selection::Manager> mSelection;
  mutable std::vector<OutlineRow*> mSelectedRows;
  // Of the selection and of the tree when they were listed; none before the first time.
  mutable std::optional<std::pair<std::uint64_t, std::uint64_t>> mSelectedVersions;
  boost::intrusive_ptr<vek::undo::MultiUndoer> mUndoer;
  std::unique_ptr<RowEditor> mEditor;
  std::unique_ptr<AttributeEditor> mNoteEditor;
  std::unique_ptr<AttributeEditor> mAttributeEditor;
  std::unique_ptr<DocumentCommands> mCommands;
  const std::shared_ptr<bool> mRowDrag = std::make_shared<bool>(false);
  std::function<void()> mChanged;
  std::function<void(const File&)> mCheckFile;
  std::function<void(const File&)> mFileTaken;
  DiskContent mOnDisk;  // of the document's file, as far as it is known here
  int mSavedSerial;
  bool mSerialIsStale = false;  // until the next save: the number no longer names the data's state
  bool mIsAsking = false;
};

}  // namespace outliner
