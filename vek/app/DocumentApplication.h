// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "vek/app/App.h"
#include "vek/app/DocStatusMessage.h"
#include "vek/document/DocumentFactory.h"

namespace vek::app {

// An application with documents: the current one, the kinds that there are, and the files that were
// used last. Documents are the application's from the moment they are handed to it; it deletes them
// in CloseDocument and nowhere else, so the host closes them before Terminate. Nobody is asked
// before a close: callers ask CanClose.
class VEK_API DocumentApplication : public App {
 public:
  ~DocumentApplication() override;

  virtual void CloseAnyOpenDocuments() = 0;

  document::DocumentInterface* GetDocument() const { return mDocument; }  // the current one or null
  bool HasOpenDocument() const { return mDocument != nullptr; }
  document::DocumentFactory& GetDocumentFactory() { return mFactory; }

  // To the front of the list, wherever it stood. The list grows all through a session; only as many
  // as the maximum are kept for the next one.
  void AddRecentFile(const lumcore::filesupport::File& inFile);
  void SetMaximumRecentFiles(int inMaximum) { mMaximumRecentFiles = inMaximum; }

  static messaging::Broadcaster<const DocStatusMessage>& GetDocStatusNotifier();

 protected:
  using RecentFiles = std::vector<lumcore::UTF16String>;  // full paths, most recent first

  DocumentApplication();

  // Makes the document current, with its attachment; null for none. The current one does nothing.
  virtual void SetDocument(document::DocumentInterface* inDocument);
  // Null does nothing. A Close that throws leaves the document undeleted and no longer current.
  virtual void CloseDocument(document::DocumentInterface* inDocument);

  // The list is read before the rest of the start, and written first thing at the end: after the
  // settings were saved.
  bool InitApplication(AppInitArgs& inArgs) override;
  void TerminateApplication() override;

  // None of these calls OnRecentFilesChanged.
  RecentFiles::iterator RecentFilesBegin() { return mRecentFiles->begin(); }
  RecentFiles::iterator RecentFilesEnd() { return mRecentFiles->end(); }
  RecentFiles::const_iterator RecentFilesBegin() const { return mRecentFiles->begin(); }
  RecentFiles::const_iterator RecentFilesEnd() const { return mRecentFiles->end(); }
  void RecentFilesInsert(RecentFiles::iterator inPlace, const lumcore::UTF16String& inPath);
  void RecentFilesPushBack(const lumcore::UTF16String& inPath);
  void RecentFilesRemove(const lumcore::UTF16String& inPath);  // the first that is exactly equal
  int RecentFilesSize() const { return static_cast<int>(mRecentFiles->size()); }
  // Between the list and the settings in memory. What is restored stands behind what is there.
  void RestoreMRUList();
  void SyncMRUList();

 private:
  virtual void OnRecentFilesChanged();
  // The handler that carries attachments from now on; one that stands elsewhere stays there.
  void OnParentHandlerSet(uisupport::CommandHandler* inOldParent,
                          uisupport::CommandHandler* inNewParent) override;

  document::DocumentInterface* mDocument;
  uisupport::CommandHandler* mAttachmentHandler;
  document::DocumentFactory mFactory;
  RecentFiles* mRecentFiles;  // owned
  int mMaximumRecentFiles;
};

}  // namespace vek::app
