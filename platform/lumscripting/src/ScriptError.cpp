// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumscripting/ScriptError.h"

#include <string>

#include "lumcore/utility/StringUtils.h"

namespace lumscripting {

namespace {

lumcore::UTF16String Describe(const lumcore::UTF16String& inFile, int inLine,
                              const lumcore::UTF16String& inMessage) {
  lumcore::UTF16String text = inFile;
  text += lumcore::utility::ToUTF16(":" + std::to_string(inLine) + ": ");
  text += inMessage;
  return text;
}

}  // namespace

ScriptError::ScriptError(const lumcore::UTF16String& inFile, int inLine,
                         const lumcore::UTF16String& inMessage)
    : Error(Describe(inFile, inLine, inMessage)),
      mFile(inFile),
      mLine(inLine),
      mMessage(inMessage) {}

ScriptError::~ScriptError() = default;

}  // namespace lumscripting
