// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineDocument.h"

#include <algorithm>
#include <list>
#include <utility>

#include "OpmlReader.h"
#include "OpmlWriter.h"
#include "vek/undo/ClearUndoStackDeed.h"

namespace outliner {

using lumcore::filesupport::File;
using vek::selection::Node;

std::unique_ptr<OutlineDocument> OutlineDocument::Open(const File& inFile) {
  return std::make_unique<OutlineDocument>(ReadOpml(inFile), inFile);
}

OutlineDocument::OutlineDocument(std::unique_ptr<OutlineTree> inTree, const File& inFile)
    : mTree(std::move(inTree)),
      mFile(inFile),
      mJunction(*mTree),
      mSelection(new vek::selection::Manager(&mJunction)),
      mUndoer(new vek::undo::MultiUndoer(kUndoLevels)),
      mSavedSerial(mUndoer->GetCurSerialNumber()) {
  mUndoer->SetHooks(this);
}

OutlineDocument::~OutlineDocument() {
  mUndoer->SetHooks(nullptr);
  mSelection->DeselectAll();
}

std::vector<OutlineRow*> OutlineDocument::GetSelectedRows() const {
  std::vector<OutlineRow*> rows;
  for (Node* node : mSelection->SelectedSelectables())
    rows.push_back(static_cast<OutlineRow*>(node));
  std::sort(rows.begin(), rows.end(), [this](const OutlineRow* inA, const OutlineRow* inB) {
    return mTree->GetLine(*inA) < mTree->GetLine(*inB);
  });
  return rows;
}

void OutlineDocument::SelectRows(const std::vector<OutlineRow*>& inRows) {
  mSelection->Select(std::list<Node*>(inRows.begin(), inRows.end()),
                     vek::selection::eDeselectOthers, vek::selection::eSendMessages);
}

void OutlineDocument::DeselectForRemoval(const OutlineRow& inParent, std::size_t inIndex,
                                         std::size_t inCount) {
  // Each row is asked by itself: a list of all that are selected would cost the length of the
  // outline for each of many removals.
  std::vector<const OutlineRow*> rows;
  for (std::size_t index = inIndex; index < inIndex + inCount; ++index)
    rows.push_back(inParent.GetChild(index));
  while (!rows.empty()) {
    const OutlineRow* row = rows.back();
    rows.pop_back();
    if (IsSelected(*row)) {
      mSelection->DeselectAll();
      return;
    }
    for (std::size_t child = 0; child < row->GetChildCount(); ++child)
      rows.push_back(row->GetChild(child));
  }
}

bool OutlineDocument::IsDirty() const {
  return mSerialIsStale || mUndoer->GetCurSerialNumber() != mSavedSerial;
}

void OutlineDocument::Save() {
  SaveAs(mFile);
}

void OutlineDocument::SaveAs(const File& inFile) {
  inFile.ReplaceContents(WriteOpml(*mTree));
  mFile = inFile;
  mSavedSerial = mUndoer->GetCurSerialNumber();
  mSerialIsStale = false;
}

// Forgetting the stack while deeds are undone leaves the undoer with the number of the newest of
// them, which may be the one that was saved, while the data stays at an older state.
void OutlineDocument::WillPostDeed(vek::undo::Deed* inDeed) {
  if (dynamic_cast<vek::undo::ClearUndoStackDeed*>(inDeed) && mUndoer->CouldRedoDeed()) {
    mSerialIsStale = true;
  }
}

}  // namespace outliner
