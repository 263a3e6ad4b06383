// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/CommandAttachment.h"

namespace vek::uisupport {

CommandAttachment::CommandAttachment() = default;
CommandAttachment::CommandAttachment(const CommandAttachment&) = default;
CommandAttachment& CommandAttachment::operator=(const CommandAttachment&) = default;
CommandAttachment::~CommandAttachment() = default;

bool CommandAttachment::DoEndHoldCommand(int) {
  return false;
}

}  // namespace vek::uisupport
