// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::uisupport {

class CommandHandler;

// Answers for commands at the level of a handler, before the handler itself. Neither side owns the
// other or tells it of its end: take an attachment off its handler before it dies.
class VEK_API CommandAttachment {
 public:
  virtual ~CommandAttachment();

  bool HandleCommand(int inCommand) { return DoHandleCommand(inCommand); }
  bool CommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                      lumcore::UTF16String& ioTitle) {
    return DoCommandEnabled(inCommand, ioEnabled, ioChecked, ioTitle);
  }
  bool EndHoldCommand(int inCommand) { return DoEndHoldCommand(inCommand); }

  // The handler that it was last added to, or null. It dangles when that handler has died first.
  CommandHandler* GetContainingHandler() const { return mContainingHandler; }

 protected:
  CommandAttachment();
  CommandAttachment(const CommandAttachment&);
  CommandAttachment& operator=(const CommandAttachment&);

  virtual bool DoHandleCommand(int inCommand) = 0;
  virtual bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                                lumcore::UTF16String& ioTitle) = 0;
  virtual bool DoEndHoldCommand(int inCommand);  // false

 private:
  friend class CommandHandler;

  CommandHandler* mContainingHandler = nullptr;
};

}  // namespace vek::uisupport
