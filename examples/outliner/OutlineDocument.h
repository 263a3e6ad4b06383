// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/intrusive_ptr.hpp>
#include <memory>
#include <vector>

#include "OutlineJunction.h"
#include "OutlineTree.h"
#include "lumcore/filesupport/File.h"
#include "vek/selection/Manager.h"
#include "vek/undo/MultiUndoer.h"
#include "vek/undo/MultiUndoerHooks.h"

namespace outliner {

// An open outline: its tree, what is selected in it, its edits and its file. All edits are deeds of
// its undoer (OutlineEdits.h posts them), so that the dirty mark is a comparison of two numbers.
//
// It owns tree, selection and undoer; others keep references of their own only while it lives. Who
// listens to the selection or the undoer may call back into the document.
class OutlineDocument final : private vek::undo::MultiUndoerHooks {
 public:
  // The steps that can be undone, as the undoer counts its limit.
  static constexpr int kUndoLevels = 1000;

  // Throws what ReadOpml throws.
  static std::unique_ptr<OutlineDocument> Open(const lumcore::filesupport::File& inFile);

  // inFile is where Save writes; it need not be there yet.
  OutlineDocument(std::unique_ptr<OutlineTree> inTree, const lumcore::filesupport::File& inFile);
  ~OutlineDocument() override;
  OutlineDocument(const OutlineDocument&) = delete;
  OutlineDocument& operator=(const OutlineDocument&) = delete;

  OutlineTree& GetTree() { return *mTree; }
  vek::undo::MultiUndoer& GetUndoer() { return *mUndoer; }
  const vek::undo::MultiUndoer& GetUndoer() const { return *mUndoer; }
  vek::selection::Manager& GetSelection() { return *mSelection; }

  // In document order.
  std::vector<OutlineRow*> GetSelectedRows() const;
  bool IsSelected(const OutlineRow& inRow) const { return mSelection->Selected(&inRow); }
  // These rows and no others; an empty list deselects all.
  void SelectRows(const std::vector<OutlineRow*>& inRows);
  // For deeds, before rows leave the tree: no row that goes may stay selected, as another one may
  // get its address. If one of these (or one below them) is selected, everything is deselected.
  void DeselectForRemoval(const OutlineRow& inParent, std::size_t inIndex, std::size_t inCount);

  const lumcore::filesupport::File& GetFile() const { return mFile; }
  // Whether the data differs from what was last saved.
  bool IsDirty() const;
  // Replaces the file in one step. After a throw of FileError the old file is as it was, and the
  // document as dirty as it was.
  void Save();
  // The file becomes the document's own once it is written.
  void SaveAs(const lumcore::filesupport::File& inFile);

 private:
  void WillPostDeed(vek::undo::Deed* inDeed) override;
  void DidPostDeed(vek::undo::Deed*) override {}
  void WillUndoDeed(vek::undo::Deed*) override {}
  void DidUndoDeed(vek::undo::Deed*) override {}
  void WillRedoDeed(vek::undo::Deed*) override {}
  void DidRedoDeed(vek::undo::Deed*) override {}

  std::unique_ptr<OutlineTree> mTree;
  lumcore::filesupport::File mFile;
  OutlineJunction mJunction;
  boost::intrusive_ptr<vek::selection::Manager> mSelection;
  boost::intrusive_ptr<vek::undo::MultiUndoer> mUndoer;
  int mSavedSerial;
  bool mSerialIsStale = false;  // until the next save: the number no longer names the data's state
};

}  // namespace outliner
