// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/document/DocumentInterface.h"
#include "vek/uisupport/Alert.h"

namespace lumworkspace::workspace {
class TopLevelWindow;
}

namespace vek::document {

// A document that lives in one file, with Save, Save As and the question before a close. New, it
// has no file and is not dirty. The dirty flag is plain: the host sets it, from its undo stack or
// otherwise, and nobody is told. A copy takes file and flag.
//
// Save and CanClose let through whatever SaveToFile throws.
class VEK_API FileBasedDocument : public DocumentInterface {
 public:
  FileBasedDocument();
  ~FileBasedDocument() override;
  FileBasedDocument(const FileBasedDocument&) = default;
  FileBasedDocument& operator=(const FileBasedDocument&) = default;

  // SaveToFile to the document's file, SaveAs while there is none. The flag is left to SaveToFile,
  // which clears it once all is written.
  void Save() override;
  // Asks about a dirty document. After a Yes the answer is whether the document is clean, so that a
  // cancelled SaveAs keeps it open.
  bool CanClose() override;
  // The name of the file, "Untitled" while there is none.
  lumcore::UTF16String GetTitle() const override;

 private:
  bool DoIsFileBacked() const override;  // whether the file is there now
  bool DoIsDirty() const override;
  lumcore::filesupport::File DoGetProjectFile() const override;

 public:
  // Asks for a file, makes it the document's and saves. Cancelled, it does nothing.
  virtual void SaveAs();
  virtual void SetDirty(bool inDirty);
  virtual lumcore::filesupport::Dir Parent() const;

 protected:
  // The full path of the file to save into; empty to cancel. The window may be null.
  virtual lumcore::UTF16String GetSaveFileNameFromDialog(
      lumworkspace::workspace::TopLevelWindow* inWindow);
  virtual uisupport::Alert::Response SaveBeforeCloseMessage() const;

  void SetFile(const lumcore::filesupport::File& inFile);

 private:
  bool mDirty;
  lumcore::filesupport::File mFile;
};

}  // namespace vek::document
