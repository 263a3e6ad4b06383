// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "vek/config/Export.h"

namespace vek::uisupport {

// What the registry knows of one command: the stable name under which key maps and scripts refer to
// it, the localised texts that users see, and whether it may repeat.
class VEK_API RegisteredCommand {
 public:
  RegisteredCommand();
  RegisteredCommand(int inCommand, const lumcore::UTF16String& inName,
                    const lumcore::UTF16String& inDisplayName,
                    const lumcore::UTF16String& inDescription, bool inRepeatable);
  // Without a display name.
  RegisteredCommand(int inCommand, const lumcore::UTF16String& inName,
                    const lumcore::UTF16String& inDescription, bool inRepeatable);
  virtual ~RegisteredCommand();
  RegisteredCommand(const RegisteredCommand&) = default;
  RegisteredCommand(RegisteredCommand&&) = default;
  RegisteredCommand& operator=(const RegisteredCommand&) = default;
  RegisteredCommand& operator=(RegisteredCommand&&) = default;

  int GetCommandID() const { return mCommandID; }
  lumcore::UTF16String GetName() const { return mName; }
  lumcore::UTF16String GetDisplayName() const { return mDisplayName; }
  lumcore::UTF16String GetDescription() const { return mDescription; }
  bool GetRepeatable() const { return mRepeatable; }
  // Without a copy, for who looks at thousands: borrowed for as long as the record is there.
  const lumcore::UTF16String& BorrowName() const { return mName; }
  const lumcore::UTF16String& BorrowDisplayName() const { return mDisplayName; }

 private:
  int mCommandID;
  lumcore::UTF16String mName;
  lumcore::UTF16String mDisplayName;
  lumcore::UTF16String mDescription;
  bool mRepeatable;
};

}  // namespace vek::uisupport
