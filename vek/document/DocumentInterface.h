// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"
#include "vek/config/Export.h"

namespace vek::uisupport {
class CommandAttachment;
}

namespace vek::document {

// A document as the application sees it. What it contains, and how that is read and written, is the
// host's. The application owns the documents that it is given: it calls Close and then deletes.
class VEK_API DocumentInterface {
 public:
  virtual ~DocumentInterface();

  // Whether there are commands that work while this is the current document, and who answers them.
  // The document owns the attachment.
  virtual bool HasAttachment() const;
  virtual uisupport::CommandAttachment* GetCommandAttachment() const;

  // The last call before the document is deleted. It asks nothing: CanClose has been asked before.
  virtual void Close() = 0;
  // For the host: the framework itself never reads a document.
  virtual void LoadFromFile(const lumcore::filesupport::File& inFile) = 0;
  virtual void SaveToFile(const lumcore::filesupport::File& inFile) = 0;
  virtual void Save() = 0;
  // May ask the user, and may save. False keeps the document open.
  virtual bool CanClose();
  virtual lumcore::UTF16String GetTitle() const = 0;

 private:
  virtual bool DoIsFileBacked() const = 0;
  virtual bool DoIsDirty() const = 0;
  virtual lumcore::filesupport::File DoGetProjectFile() const = 0;

 public:
  bool IsDirty() const;
  bool IsFileBacked() const;
  lumcore::filesupport::File GetProjectFile() const;

  DocumentInterface() = default;
  DocumentInterface(const DocumentInterface&) = default;
  DocumentInterface& operator=(const DocumentInterface&) = default;
};

}  // namespace vek::document
