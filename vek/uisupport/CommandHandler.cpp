// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/CommandHandler.h"

#include <boost/container/small_vector.hpp>

#include "vek/uisupport/CommandAttachment.h"
#include "vek/uisupport/scripting/FireCommandEvent.h"

namespace vek::uisupport {

namespace {

// A copy of a set of attachments for one turn. Few handlers have more, and those allocate.
constexpr std::size_t kUsualAttachments = 8;
using AttachmentsCopy = boost::container::small_vector<CommandAttachment*, kUsualAttachments>;

}  // namespace

CommandHandler::CommandHandler(CommandHandler* inParent) : mParent(inParent) {}

CommandHandler::~CommandHandler() = default;

void CommandHandler::SetAsCurrentCommandHandler(bool inForce) {
  if (!inForce && IsOnCurrentCommandChain()) return;
  DoSetAsCurrentCommandHandler();
}

bool CommandHandler::IsOnCurrentCommandChain() const {
  const auto* handler = dynamic_cast<const CommandHandler*>(GetCurrentCommandHandler());
  while (handler && handler != this)
    handler = handler->mParent;
  return handler != nullptr;
}

void CommandHandler::AddAttachment(CommandAttachment* inAttachment) {
  if (!inAttachment) return;
  mAttachments.insert(inAttachment);
  inAttachment->mContainingHandler = this;
}

void CommandHandler::RemoveAttachment(CommandAttachment* inAttachment) {
  if (!inAttachment || mAttachments.erase(inAttachment) == 0) return;
  inAttachment->mContainingHandler = nullptr;
}

void CommandHandler::SetParentHandler(CommandHandler* inParent) {
  OnParentHandlerSet(mParent, inParent);
  mParent = inParent;
}

void CommandHandler::EnableScriptEvents(const ScriptTargetFunction& inGetTarget) {
  mGetScriptTarget = inGetTarget;
}

void CommandHandler::DisableScriptEvents() {
  mGetScriptTarget.clear();
}

// A handler that answers true may have deleted itself, so nothing of it is touched after that. Its
// parent is read only after it has answered false, and so leads on from where it stands by then.
template <class Ask>
bool CommandHandler::AskUpwards(Ask inAsk) {
  for (CommandHandler* handler = this; handler; handler = handler->mParent) {
    if (inAsk(*handler)) return true;
  }
  return false;
}

bool CommandHandler::DoCallMyCommandChain(int inCommand) {
  return AskUpwards([=](CommandHandler& ioHandler) { return ioHandler.HandleCommand(inCommand); });
}

bool CommandHandler::DoCallMyEnablementChain(int inCommand, bool& ioEnabled, bool& ioChecked,
                                             lumcore::UTF16String& ioTitle) {
  return AskUpwards([&](CommandHandler& ioHandler) {
    return ioHandler.CommandEnabled(inCommand, ioEnabled, ioChecked, ioTitle);
  });
}

bool CommandHandler::DoCallEndHoldCommand(int inCommand) {
  return AskUpwards([=](CommandHandler& ioHandler) { return ioHandler.EndHoldCommand(inCommand); });
}

// Through a copy: the turn calls those that stood here when it began, whatever they add or remove.
// Scripts hear of the command before anybody is asked, whoever takes it then.
bool CommandHandler::HandleCommand(int inCommand) {
  if (IsScriptEventsEnabled()) scripting::FireCommandEvent(inCommand, mGetScriptTarget);
  const AttachmentsCopy attachments(mAttachments.begin(), mAttachments.end());
  for (CommandAttachment* attachment : attachments) {
    if (attachment->DoHandleCommand(inCommand)) return true;
  }
  return DoHandleCommand(inCommand);
}

// On the live set, for the sake of menus that ask about every item. The step comes before the call,
// so that an attachment may remove itself.
bool CommandHandler::CommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                                    lumcore::UTF16String& ioTitle) {
  for (auto next = mAttachments.begin(); next != mAttachments.end();) {
    CommandAttachment* const attachment = *next++;
    if (attachment->DoCommandEnabled(inCommand, ioEnabled, ioChecked, ioTitle)) return true;
  }
  return DoCommandEnabled(inCommand, ioEnabled, ioChecked, ioTitle);
}

// On the live set, and the step comes after the call: an attachment that one call adds behind the
// current one is reached in the same turn.
bool CommandHandler::EndHoldCommand(int inCommand) {
  for (auto current = mAttachments.begin(); current != mAttachments.end(); ++current) {
    if ((*current)->DoEndHoldCommand(inCommand)) return true;
  }
  return DoEndHoldCommand(inCommand);
}

void CommandHandler::OnParentHandlerSet(CommandHandler*, CommandHandler*) {}

bool CommandHandler::DoEndHoldCommand(int) {
  return false;
}

}  // namespace vek::uisupport
