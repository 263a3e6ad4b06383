// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineDocument.h"

#include <algorithm>
#include <list>
#include <utility>

#include "AttributeEditor.h"
#include "DocumentCommands.h"
#include "FileQuestions.h"
#include "OpmlReader.h"
#include "OpmlWriter.h"
#include "RowEditor.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/uisupport/MainWindowLookup.h"
#include "vek/undo/ClearUndoStackDeed.h"

namespace outliner {

using lumcore::filesupport::File;
using lumworkspace::workspace::TopLevelWindow;
using vek::selection::Node;
using vek::uisupport::Alert::Response;

std::unique_ptr<OutlineDocument> OutlineDocument::Open(const File& inFile) {
  auto document = std::make_unique<OutlineDocument>();
  document->LoadFromFile(inFile);
  return document;
}

OutlineDocument::OutlineDocument() : OutlineDocument(std::make_unique<OutlineTree>(), File()) {}

OutlineDocument::OutlineDocument(std::unique_ptr<OutlineTree> inTree, const File& inFile)
    : mTree(std::move(inTree)),
      mJunction(mTree),
      mSelection(new vek::selection::Manager(&mJunction)),
      mUndoer(new vek::undo::MultiUndoer(kUndoLevels)),
      mEditor(std::make_unique<RowEditor>(*this)),
      mNoteEditor(std::make_unique<AttributeEditor>(*this)),
      mAttributeEditor(std::make_unique<AttributeEditor>(*this)),
      mCommands(std::make_unique<DocumentCommands>(*this)),
      mSavedSerial(mUndoer->GetCurSerialNumber()) {
  SetFile(inFile);
  mUndoer->SetHooks(this);
  mNoteEditor->SetChangedFunction([this] { Changed(); });
  mAttributeEditor->SetChangedFunction([this] { Changed(); });
}

OutlineDocument::~OutlineDocument() {
  mUndoer->SetHooks(nullptr);
  mSelection->DeselectAll();
}

void OutlineDocument::SetFileFunctions(std::function<void(const File&)> inCheck,
                                       std::function<void(const File&)> inTaken) {
  mCheckFile = std::move(inCheck);
  mFileTaken = std::move(inTaken);
}

// A row that leaves the tree changes the tree's shape, and then the selection is asked again.
const std::vector<OutlineRow*>& OutlineDocument::FindSelectedRows() const {
  const auto versions = [this] {
    return std::make_pair(mSelection->GetVersion(), mTree->GetShapeVersion());
  };
  if (mSelectedVersions == versions()) return mSelectedRows;
  const std::list<Node*> nodes = mSelection->SelectedSelectables();
  const auto& lines = mTree->GetLines();
  mSelectedRows.clear();
  for (Node* const node : nodes)
    mSelectedRows.push_back(static_cast<OutlineRow*>(node));
  const auto lineOf = [this](const OutlineRow* inRow) { return mTree->GetLine(*inRow); };
  constexpr std::size_t kFew = 16;  // of as many rows sorting is quicker than marking
  if (nodes.size() < lines.size() / kFew) {
    std::sort(mSelectedRows.begin(), mSelectedRows.end(),
              [&](const auto* inA, const auto* inB) { return lineOf(inA) < lineOf(inB); });
  } else {
    std::vector<bool> isSelected(lines.size());
    for (const OutlineRow* const row : mSelectedRows)
      isSelected[lineOf(row)] = true;
    mSelectedRows.clear();
    for (std::size_t line = 0; line < lines.size(); ++line) {
      if (isSelected[line]) mSelectedRows.push_back(lines[line]);
    }
  }
  mSelectedVersions = versions();  // looking may have cleaned the selection
  return mSelectedRows;
}

OutlineRow* OutlineDocument::GetOnlySelectedRow() const {
  return CountSelectedRows() == 1 ? FindSelectedRows().front() : nullptr;
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

bool OutlineDocument::IsPristine() const {
  return GetProjectFile().GetPath().empty() && !IsDirty() && !mUndoer->CouldUndoDeed() &&
         !mUndoer->CouldRedoDeed();
}

vek::uisupport::CommandAttachment* OutlineDocument::GetCommandAttachment() const {
  return mCommands.get();
}

void OutlineDocument::CommitTyping() {
  mEditor->Commit();
  mNoteEditor->Commit();
  mAttributeEditor->Commit();
}

bool OutlineDocument::IsTyping() const {
  return mEditor->IsModified() || mNoteEditor->IsModified() || mAttributeEditor->IsModified();
}

void OutlineDocument::Close() {
  SetFileFunctions(nullptr, nullptr);
  SetChangedFunction(nullptr);
}

bool OutlineDocument::DoIsDirty() const {
  return IsTyping() || mSerialIsStale || mUndoer->GetCurSerialNumber() != mSavedSerial;
}

void OutlineDocument::SetDirty(bool inDirty) {
  mSavedSerial = mUndoer->GetCurSerialNumber();
  mSerialIsStale = inDirty;
  Changed();
}

void OutlineDocument::Changed() {
  if (mChanged) mChanged();
}

void OutlineDocument::LoadFromFile(const File& inFile) {
  const lumcore::UTF8String bytes = inFile.ReadAll();
  std::unique_ptr<OutlineTree> tree = ReadOpml(bytes, lumcore::utility::ToUTF16(inFile.GetPath()));
  mEditor->Cancel();
  mNoteEditor->Cancel();
  mAttributeEditor->Cancel();
  mSelection->DeselectAll();
  mUndoer->PostDeed(std::auto_ptr<vek::undo::Deed>(new vek::undo::ClearUndoStackDeed));
  mTree = std::move(tree);
  mSelectedVersions.reset();
  SetFile(inFile);
  mOnDisk = DiskContent(bytes);
  SetDirty(false);
}

void OutlineDocument::SaveToFile(const File& inFile) {
  const std::string bytes = WriteOpml(*mTree);
  inFile.ReplaceContents(bytes);
  mOnDisk = DiskContent(bytes);
  SetDirty(false);
}

void OutlineDocument::Save() {
  CommitTyping();
  const File file = GetProjectFile();
  if (SaveElsewhere(file)) return;
  FileBasedDocument::Save();
  // SaveAs has told of a new one.
  if (!file.GetPath().empty() && mFileTaken) mFileTaken(file);
}

// Whether the file has changed under the document, and the user does not want it overwritten. A
// request to close is refused while the question stands.
bool OutlineDocument::SaveElsewhere(const File& inFile) {
  if (inFile.GetPath().empty() || !mOnDisk.DiffersFrom(inFile)) return false;
  const lumcore::utility::StScopedValue<bool> asking(mIsAsking, true);
  switch (AskAboutChangedFile(GetTitle())) {
    case ChangedFileAnswer::kOverwrite:
      return false;
    case ChangedFileAnswer::kSaveAs:
      SaveAs();
      return true;
    default:
      return true;
  }
}

// A second request while the question stands is answered by the first.
bool OutlineDocument::CanClose() {
  if (mIsAsking) return false;
  const lumcore::utility::StScopedValue<bool> asking(mIsAsking, true);
  CommitTyping();
  return FileBasedDocument::CanClose();
}

void OutlineDocument::SaveAs() {
  auto* const window = dynamic_cast<TopLevelWindow*>(vek::uisupport::FindMainWindow());
  const lumcore::UTF16String path = GetSaveFileNameFromDialog(window);
  if (!path.empty()) SaveAsFile(File(path));
}

void OutlineDocument::SaveAsFile(const File& inFile) {
  CommitTyping();
  if (mCheckFile) mCheckFile(inFile);
  SaveToFile(inFile);
  SetFile(inFile);
  Changed();
  if (mFileTaken) mFileTaken(inFile);
}

lumcore::UTF16String OutlineDocument::GetSaveFileNameFromDialog(TopLevelWindow* inWindow) {
  const File file = GetProjectFile();
  return AskForFileToSave(file.GetPath().empty() ? GetTitle() : file.FullPath(), inWindow);
}

Response OutlineDocument::SaveBeforeCloseMessage() const {
  return AskToSave(GetTitle());
}

// Forgetting the stack while deeds are undone leaves the undoer with the number of the newest of
// them, which may be the one that was saved, while the data stays at an older state.
void OutlineDocument::WillPostDeed(vek::undo::Deed* inDeed) {
  if (dynamic_cast<vek::undo::ClearUndoStackDeed*>(inDeed) && mUndoer->CouldRedoDeed()) {
    mSerialIsStale = true;
  }
}

}  // namespace outliner
