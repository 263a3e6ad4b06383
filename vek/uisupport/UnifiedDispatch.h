// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "vek/config/Export.h"
#include "vek/uisupport/CommandAttachment.h"
#include "vek/uisupport/CommandHandler.h"

namespace vek::uisupport {

// Where the answers about a command's state go. None is null.
struct CommandEnableQuery {
  bool* enabled;
  bool* checked;
  lumcore::UTF16String* title;
};

// One operation in place of two, so that executing a command and answering for it stand side by
// side.
class VEK_API UnifiedDispatchBase {
 public:
  // With no query: execute the command. With one: answer for its state. True when it is known here.
  virtual bool DoUnifiedDispatch(int inCommand, CommandEnableQuery* ioQuery) = 0;

 protected:
  ~UnifiedDispatchBase() = default;
};

class VEK_API UnifiedDispatchCmdHandler : public CommandHandler, public UnifiedDispatchBase {
 public:
  UnifiedDispatchCmdHandler();
  ~UnifiedDispatchCmdHandler() override;

 protected:
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;
};

// A copy names the same containing handler as its source, though it does not stand in that
// handler's set. Hosts depend on that.
class VEK_API UnifiedDispatchCmdAttachment : public CommandAttachment, public UnifiedDispatchBase {
 public:
  UnifiedDispatchCmdAttachment();
  UnifiedDispatchCmdAttachment(const UnifiedDispatchCmdAttachment&);
  UnifiedDispatchCmdAttachment& operator=(const UnifiedDispatchCmdAttachment&);
  ~UnifiedDispatchCmdAttachment() override;

 protected:
  bool DoHandleCommand(int inCommand) override;
  bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                        lumcore::UTF16String& ioTitle) override;
};

}  // namespace vek::uisupport
