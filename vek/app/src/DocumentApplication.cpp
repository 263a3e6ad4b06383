// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/app/DocumentApplication.h"

#include <algorithm>

#include "lumcore/filesupport/File.h"
#include "vek/document/DocumentInterface.h"
#include "vek/uisupport/CommandAttachment.h"

namespace vek::app {

using document::DocumentInterface;
using lumcore::UTF16String;
using uisupport::CommandHandler;

namespace {

constexpr const char* kRecentFilesKey = "App.RecentFiles";
constexpr int kMaximumRecentFiles = 4;

void TakeOffAttachment(const DocumentInterface& inDocument) {
  if (!inDocument.HasAttachment()) return;
  uisupport::CommandAttachment* const attachment = inDocument.GetCommandAttachment();
  if (!attachment) return;
  if (CommandHandler* const handler = attachment->GetContainingHandler()) {
    handler->RemoveAttachment(attachment);
  }
}

}  // namespace

DocStatusMessage::DocStatusMessage(bool inIsClosing, bool inBecomesActive,
                                   DocumentInterface* inDocument)
    : mDocument(inDocument), mIsClosing(inIsClosing), mBecomesActive(inBecomesActive) {}

DocStatusMessage::~DocStatusMessage() = default;

DocumentApplication::DocumentApplication()
    : mDocument(nullptr),
      mAttachmentHandler(this),
      mRecentFiles(new RecentFiles),
      mMaximumRecentFiles(kMaximumRecentFiles) {}

DocumentApplication::~DocumentApplication() {
  delete mRecentFiles;
}

messaging::Broadcaster<const DocStatusMessage>& DocumentApplication::GetDocStatusNotifier() {
  static auto* const sNotifier = new messaging::Broadcaster<const DocStatusMessage>;
  return *sNotifier;
}

void DocumentApplication::SetDocument(DocumentInterface* inDocument) {
  if (inDocument == mDocument) return;
  if (mDocument) {
    TakeOffAttachment(*mDocument);
    GetDocStatusNotifier().BroadcastMessage(DocStatusMessage(false, false, mDocument));
  }
  mDocument = inDocument;
  if (inDocument) {
    if (inDocument->HasAttachment() && mAttachmentHandler) {
      mAttachmentHandler->AddAttachment(inDocument->GetCommandAttachment());
    }
    GetDocStatusNotifier().BroadcastMessage(DocStatusMessage(false, true, inDocument));
  }
  NotifyCurrHandlerChanged();
}

void DocumentApplication::CloseDocument(DocumentInterface* inDocument) {
  if (!inDocument) return;
  if (inDocument == mDocument) SetDocument(nullptr);
  GetDocStatusNotifier().BroadcastMessage(DocStatusMessage(true, false, inDocument));
  // Who hears of a document and makes another current may have left this one's attachment behind.
  TakeOffAttachment(*inDocument);
  inDocument->Close();
  // Whoever heard of the close may have made it current again.
  if (inDocument == mDocument) SetDocument(nullptr);
  delete inDocument;
}

bool DocumentApplication::InitApplication(AppInitArgs& inArgs) {
  RestoreMRUList();
  return App::InitApplication(inArgs);
}

void DocumentApplication::TerminateApplication() {
  SyncMRUList();
  App::TerminateApplication();
}

void DocumentApplication::OnParentHandlerSet(CommandHandler*, CommandHandler* inNewParent) {
  mAttachmentHandler = inNewParent;
}

void DocumentApplication::AddRecentFile(const lumcore::filesupport::File& inFile) {
  const UTF16String path = inFile.FullPath();
  RecentFiles files = *mRecentFiles;
  const auto found = std::find(files.begin(), files.end(), path);
  if (found != files.end()) files.erase(found);
  files.insert(files.begin(), path);
  *mRecentFiles = files;
  OnRecentFilesChanged();
}

void DocumentApplication::RecentFilesInsert(RecentFiles::iterator inPlace,
                                            const UTF16String& inPath) {
  mRecentFiles->insert(inPlace, inPath);
}

void DocumentApplication::RecentFilesPushBack(const UTF16String& inPath) {
  mRecentFiles->push_back(inPath);
}

void DocumentApplication::RecentFilesRemove(const UTF16String& inPath) {
  const auto found = std::find(mRecentFiles->begin(), mRecentFiles->end(), inPath);
  if (found != mRecentFiles->end()) mRecentFiles->erase(found);
}

void DocumentApplication::RestoreMRUList() {
  const auto* const paths = GetVekPrivateSettings().Find<RecentFiles>(kRecentFilesKey);
  if (!paths) return;
  for (const UTF16String& path : *paths) {
    const bool isThere =
        std::find(mRecentFiles->begin(), mRecentFiles->end(), path) != mRecentFiles->end();
    if (!isThere) mRecentFiles->push_back(path);
  }
}

void DocumentApplication::SyncMRUList() {
  // Without a sign, so that a negative maximum means all.
  const std::size_t count =
      std::min(static_cast<std::size_t>(mMaximumRecentFiles), mRecentFiles->size());
  GetVekPrivateSettings().Set(
      kRecentFilesKey, RecentFiles(mRecentFiles->begin(),
                                   mRecentFiles->begin() + static_cast<std::ptrdiff_t>(count)));
}

void DocumentApplication::OnRecentFilesChanged() {}

}  // namespace vek::app
