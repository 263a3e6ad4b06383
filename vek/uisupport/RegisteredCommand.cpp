// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "vek/uisupport/RegisteredCommand.h"

namespace vek::uisupport {

RegisteredCommand::RegisteredCommand() : mCommandID(0), mRepeatable(false) {}

RegisteredCommand::RegisteredCommand(int inCommand, const lumcore::UTF16String& inName,
                                     const lumcore::UTF16String& inDisplayName,
                                     const lumcore::UTF16String& inDescription, bool inRepeatable)
    : mCommandID(inCommand),
      mName(inName),
      mDisplayName(inDisplayName),
      mDescription(inDescription),
      mRepeatable(inRepeatable) {}

RegisteredCommand::RegisteredCommand(int inCommand, const lumcore::UTF16String& inName,
                                     const lumcore::UTF16String& inDescription, bool inRepeatable)
    : RegisteredCommand(inCommand, inName, lumcore::UTF16String(), inDescription, inRepeatable) {}

RegisteredCommand::~RegisteredCommand() = default;

}  // namespace vek::uisupport
