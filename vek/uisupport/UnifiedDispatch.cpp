// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/UnifiedDispatch.h"

namespace vek::uisupport {

namespace {

bool AskState(UnifiedDispatchBase& ioDispatch, int inCommand, bool& ioEnabled, bool& ioChecked,
              lumcore::UTF16String& ioTitle) {
  CommandEnableQuery query{&ioEnabled, &ioChecked, &ioTitle};
  return ioDispatch.DoUnifiedDispatch(inCommand, &query);
}

}  // namespace

UnifiedDispatchCmdHandler::UnifiedDispatchCmdHandler() : CommandHandler(nullptr) {}

UnifiedDispatchCmdHandler::~UnifiedDispatchCmdHandler() = default;

bool UnifiedDispatchCmdHandler::DoHandleCommand(int inCommand) {
  return DoUnifiedDispatch(inCommand, nullptr);
}

bool UnifiedDispatchCmdHandler::DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                                                 lumcore::UTF16String& ioTitle) {
  return AskState(*this, inCommand, ioEnabled, ioChecked, ioTitle);
}

UnifiedDispatchCmdAttachment::UnifiedDispatchCmdAttachment() = default;

UnifiedDispatchCmdAttachment::UnifiedDispatchCmdAttachment(const UnifiedDispatchCmdAttachment&) =
    default;

UnifiedDispatchCmdAttachment& UnifiedDispatchCmdAttachment::operator=(
    const UnifiedDispatchCmdAttachment&) = default;

UnifiedDispatchCmdAttachment::~UnifiedDispatchCmdAttachment() = default;

bool UnifiedDispatchCmdAttachment::DoHandleCommand(int inCommand) {
  return DoUnifiedDispatch(inCommand, nullptr);
}

bool UnifiedDispatchCmdAttachment::DoCommandEnabled(int inCommand, bool& ioEnabled, bool& ioChecked,
                                                    lumcore::UTF16String& ioTitle) {
  return AskState(*this, inCommand, ioEnabled, ioChecked, ioTitle);
}

}  // namespace vek::uisupport
