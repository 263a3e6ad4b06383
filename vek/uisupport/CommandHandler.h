// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <boost/function.hpp>
#include <boost/intrusive_ptr.hpp>
#include <set>

#include "lumcore/utility/RefCounted.h"
#include "vek/config/Export.h"
#include "vek/uisupport/CommandHandlerBase.h"

namespace vek::uisupport {

class CommandAttachment;

// A handler with a parent and attachments. A walk asks the attachments, then the handler, then the
// same of its parent and so on; the first that answers true ends it. Attachments are asked in the
// order of their addresses, on which nothing may rely.
//
// While executing, an attachment that is added is not called in this turn, and one that is removed
// still is. While asking for enablement, an attachment may remove itself. While ending a hold, none
// may be removed. A handler may delete itself in the call in which it answers true, and may give
// itself another parent, which is the one that the walk goes on with.
class VEK_API CommandHandler : public CommandHandlerBase {
 public:
  using ScriptTargetFunction =
      boost::function<boost::intrusive_ptr<lumcore::utility::RefCountedObject>()>;

  explicit CommandHandler(CommandHandler* inParent = nullptr);
  ~CommandHandler() override;

  void SetAsCurrentCommandHandler(bool inForce) override;
  // True when this is the current handler or one of its ancestors.
  bool IsOnCurrentCommandChain() const;

  // Null does nothing. An attachment that stands on another handler is not taken off it.
  void AddAttachment(CommandAttachment* inAttachment);
  void RemoveAttachment(CommandAttachment* inAttachment);

  // Not owned. A circle of parents makes every walk endless.
  void SetParentHandler(CommandHandler* inParent);
  CommandHandler* GetParentHandler() const { return mParent; }

  // From now on scripts hear of each command that a walk brings here, as a CommandEvent at the
  // object that inGetTarget gives: a lumscripting::ScriptObject, such as ScriptRunner::FindObject
  // has. Of a handler that a walk asks twice they hear twice. An empty function is none.
  void EnableScriptEvents(const ScriptTargetFunction& inGetTarget);
  void DisableScriptEvents();
  bool IsScriptEventsEnabled() const { return !mGetScriptTarget.empty(); }

 protected:
  bool DoCallMyCommandChain(int inCommand) override;
  bool DoCallMyEnablementChain(int inCommand, bool& ioEnabled, bool& ioChecked,
                               lumcore::UTF16String& ioTitle) override;
  bool DoCallEndHoldCommand(int inCommand) override;

  // Called before the parent changes, also when it stays the same.
  virtual void OnParentHandlerSet(CommandHandler* inOldParent, CommandHandler* inNewParent);
  virtual bool DoHandleCommand(int inCommand) = 0;
  virtual bool DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                                lumcore::UTF16String& ioTitle) = 0;
  virtual bool DoEndHoldCommand(int inCommand);  // false

 private:
  template <class Ask>
  bool AskUpwards(Ask inAsk);
  bool HandleCommand(int inCommand);
  bool CommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                      lumcore::UTF16String& ioTitle);
  bool EndHoldCommand(int inCommand);

  std::set<CommandAttachment*> mAttachments;  // not owned
  CommandHandler* mParent;
  ScriptTargetFunction mGetScriptTarget;
};

}  // namespace vek::uisupport
