// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/document/FileBasedDocument.h"

#include "lumcore/config/Localizer.h"
#include "lumui/utility/FileUtils.h"
#include "lumworkspace/workspace/TopLevelWindow.h"
#include "vek/uisupport/MainWindowLookup.h"

namespace vek::document {

using lumcore::UTF16String;
using lumcore::filesupport::File;

namespace {

UTF16String Localized(const char* inKey) {
  return lumcore::config::Localizer::Get()->GetLocalizedString(inKey);
}

}  // namespace

FileBasedDocument::FileBasedDocument() : mDirty(false) {}

FileBasedDocument::~FileBasedDocument() = default;

void FileBasedDocument::Save() {
  if (mFile.FullPath().empty()) {
    SaveAs();
  } else {
    SaveToFile(mFile);
  }
}

bool FileBasedDocument::CanClose() {
  if (!IsDirty()) return true;
  const uisupport::Alert::Response answer = SaveBeforeCloseMessage();
  if (answer == uisupport::Alert::eResponseYes) {
    Save();
    return !IsDirty();
  }
  return answer == uisupport::Alert::eResponseNo;
}

UTF16String FileBasedDocument::GetTitle() const {
  const UTF16String name = mFile.GetName();
  return name.empty() ? Localized("$$$/vek/document/Untitled=Untitled") : name;
}

bool FileBasedDocument::DoIsFileBacked() const {
  return mFile.Exists();
}

bool FileBasedDocument::DoIsDirty() const {
  return mDirty;
}

File FileBasedDocument::DoGetProjectFile() const {
  return mFile;
}

void FileBasedDocument::SaveAs() {
  auto* const window =
      dynamic_cast<lumworkspace::workspace::TopLevelWindow*>(uisupport::FindMainWindow());
  const UTF16String path = GetSaveFileNameFromDialog(window);
  if (path.empty()) return;
  mFile = File(path);
  Save();
}

void FileBasedDocument::SetDirty(bool inDirty) {
  mDirty = inDirty;
}

lumcore::filesupport::Dir FileBasedDocument::Parent() const {
  return mFile.Parent();
}

UTF16String FileBasedDocument::GetSaveFileNameFromDialog(
    lumworkspace::workspace::TopLevelWindow* inWindow) {
  return lumui::utility::FileUtils::DoSimpleFileDialog(lumcore::UTF8String(), false, inWindow);
}

uisupport::Alert::Response FileBasedDocument::SaveBeforeCloseMessage() const {
  // A question has no picture of its own.
  return uisupport::Alert::Show(
      uisupport::Alert::eTypeYesNoCancel, uisupport::Alert::eIconQuestion,
      Localized("$$$/vek/document/CloseDocumentTitle=Close Document"),
      Localized("$$$/vek/document/SaveBeforeClose=The document has been modified. Do you want to "
                "save before closing it?"),
      uisupport::FindMainWindow());
}

void FileBasedDocument::SetFile(const File& inFile) {
  mFile = inFile;
}

}  // namespace vek::document
