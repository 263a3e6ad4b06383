// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

#include "lumcore/Strings.h"

namespace lumworkspace::workspace {

// A workspace's name as that of its file, in ASCII: what a file system may not take or may take for
// the same stands in it as "%" and two hexadecimal digits for each byte of UTF-8.
std::string WorkspaceFileName(const lumcore::UTF16String& inName);
// Empty for a file of another kind.
lumcore::UTF16String WorkspaceNameOfFile(const lumcore::UTF16String& inFileName);

}  // namespace lumworkspace::workspace
