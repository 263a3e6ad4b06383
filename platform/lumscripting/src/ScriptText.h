// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include "lumcore/Strings.h"
#include "lumcore/filesupport/File.h"

namespace lumscripting {

// The text of a script file, without a byte order mark. Throws FileError, or a ScriptError with the
// first line that is not UTF-8.
lumcore::UTF16String ReadScript(const lumcore::filesupport::File& inFile);

}  // namespace lumscripting
