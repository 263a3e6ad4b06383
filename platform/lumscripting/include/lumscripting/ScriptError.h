// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/config/ThrowError.h"
#include "lumscripting/Export.h"

namespace lumscripting {

// A script that failed. The text is "file:line: message".
class LUMSCRIPTING_API ScriptError : public lumcore::config::Error {
 public:
  ScriptError(const lumcore::UTF16String& inFile, int inLine,
              const lumcore::UTF16String& inMessage);
  ~ScriptError() override;

  const lumcore::UTF16String& GetFile() const { return mFile; }
  int GetLine() const { return mLine; }  // from 1; 0 where it is not known
  const lumcore::UTF16String& GetMessage() const { return mMessage; }

 private:
  lumcore::UTF16String mFile;
  int mLine;
  lumcore::UTF16String mMessage;
};

}  // namespace lumscripting
