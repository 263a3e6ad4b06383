// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/uisupport/CommandAttachment.h"
#include "vek/uisupport/CommandHandler.h"

// Compiled apart from the loops that call them, so that no compiler sees through the calls. Nobody
// knows any command that is not negative, so that a walk asks everyone.

// The same object without a chain around it.
class Asked {
 public:
  virtual ~Asked();
  virtual bool Execute(int inCommand) = 0;
  virtual bool AskEnablement(int inCommand, bool& ioEnabled, bool& ioChecked,
                             lumcore::UTF16String& ioTitle) = 0;
};

class Level : public vek::uisupport::CommandHandler, public Asked {
 public:
  explicit Level(Level* inParent);
  bool Execute(int inCommand) override;
  bool AskEnablement(int inCommand, bool& ioEnabled, bool& ioChecked,
                     lumcore::UTF16String& ioTitle) override;

 protected:
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;
};

class Attachment : public vek::uisupport::CommandAttachment, public Asked {
 public:
  bool Execute(int inCommand) override;
  bool AskEnablement(int inCommand, bool& ioEnabled, bool& ioChecked,
                     lumcore::UTF16String& ioTitle) override;

 protected:
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;
};
