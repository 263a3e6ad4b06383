// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

// The application's documents: how they are opened, shown and closed.

#include <algorithm>
#include <filesystem>
#include <system_error>

#include "OutlineDocument.h"
#include "OutlinerApp.h"
#include "Texts.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::filesupport::File;
using lumcore::utility::ToUTF16;

namespace {

[[noreturn]] void Refuse(const char* inKey, const File& inFile) {
  throw lumcore::config::Error(
      lumcore::utility::ReplaceInString(Localized(inKey), {ToUTF16(inFile.GetPath())}));
}

// Also by another name: two documents on one file would overwrite each other's changes.
bool AreSame(const File& inA, const File& inB) {
  if (inA.GetPath().empty() || inB.GetPath().empty()) return false;
  std::error_code ignored;  // a file that is not there is the same as none
  return inA.FullPath() == inB.FullPath() ||
         std::filesystem::equivalent(inA.GetPath(), inB.GetPath(), ignored);
}

}  // namespace

OutlineDocument* OutlinerApp::GetOutline() const {
  return static_cast<OutlineDocument*>(GetDocument());
}

std::vector<OutlineDocument*> OutlinerApp::GetOutlines() const {
  std::vector<OutlineDocument*> outlines;
  std::transform(DocumentBegin(), DocumentEnd(), std::back_inserter(outlines),
                 [](auto* inDocument) { return static_cast<OutlineDocument*>(inDocument); });
  return outlines;
}

std::vector<UTF16String> OutlinerApp::GetRecentFiles() const {
  return {RecentFilesBegin(), RecentFilesEnd()};
}

OutlineDocument* OutlinerApp::FindOutline(const File& inFile) const {
  for (OutlineDocument* document : GetOutlines()) {
    if (AreSame(document->GetProjectFile(), inFile)) return document;
  }
  return nullptr;
}

void OutlinerApp::CheckFileOf(const OutlineDocument& inDocument, const File& inFile) const {
  const OutlineDocument* const other = FindOutline(inFile);
  if (other && other != &inDocument) {
    Refuse("$$$/outliner/Files/IsOpen=@0: the file is open in another tab", inFile);
  }
}

OutlineDocument& OutlinerApp::Add(std::unique_ptr<OutlineDocument> inDocument) {
  OutlineDocument& document = *inDocument;
  document.SetFileFunctions(
      [this, &document](const File& inFile) { CheckFileOf(document, inFile); },
      [this](const File& inFile) { AddRecentFile(inFile); });
  DocumentPushBack(inDocument.release());
  ShowOutline(document);
  return document;
}

// An outline under another name than usual is read as one all the same.
std::unique_ptr<OutlineDocument> OutlinerApp::Make(const File& inFile) {
  auto& factory = GetDocumentFactory();
  auto* document = factory.CreateDocumentForExtension(inFile.GetExtension());
  if (!document) document = factory.CreateDocumentForTypeInfo(*factory.TypeInfoBegin());
  return std::unique_ptr<OutlineDocument>(static_cast<OutlineDocument*>(document));
}

OutlineDocument& OutlinerApp::NewOutline() {
  return Add(std::make_unique<OutlineDocument>());
}

OutlineDocument& OutlinerApp::BeginOutline(const File& inFile) {
  if (inFile.Exists()) Refuse("$$$/outliner/Main/FileExists=@0: the file is there already", inFile);
  return Add(std::make_unique<OutlineDocument>(std::make_unique<OutlineTree>(), inFile));
}

OutlineDocument& OutlinerApp::OpenOutline(const File& inFile) {
  OutlineDocument* document = FindOutline(inFile);
  if (!document) {
    std::unique_ptr<OutlineDocument> read = Make(inFile);
    read->LoadFromFile(inFile);
    OutlineDocument* const before = GetOutline();
    document = &Add(std::move(read));
    if (before && before->IsPristine()) CloseDocument(before);
  }
  AddRecentFile(inFile);
  ShowOutline(*document);
  return *document;
}

void OutlinerApp::ShowOutline(OutlineDocument& inDocument) {
  SetDocument(&inDocument);
  ShowOutlinePanel();
}

bool OutlinerApp::CloseOutline(OutlineDocument& inDocument) {
  if (!inDocument.CanClose()) return false;
  CloseDocument(&inDocument);
  return true;
}

bool OutlinerApp::CloseAllOutlines() {
  if (!DoAppCanQuit()) return false;
  CloseAnyOpenDocuments();
  return true;
}

// Each document is shown before it is asked about. A second request while a question stands is
// answered by the first.
bool OutlinerApp::DoAppCanQuit() {
  if (mIsAskingToQuit) return false;
  const lumcore::utility::StScopedValue<bool> asking(mIsAskingToQuit, true);
  for (OutlineDocument* document : GetOutlines()) {
    if (document->IsDirty()) ShowOutline(*document);
    if (!document->CanClose()) return false;
  }
  return true;
}

}  // namespace outliner
