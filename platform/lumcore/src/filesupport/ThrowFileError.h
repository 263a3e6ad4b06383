// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>

namespace lumcore::filesupport {

// Throws a FileError. The key's text has @0 for the path and @1 for the system's words for the
// code.
[[noreturn]] void ThrowSystemError(const char* inKey, const std::string& inPath, int inSystemCode);
// The same where the text itself says why; it has @0 for the path.
[[noreturn]] void ThrowFileError(const char* inKey, const std::string& inPath);

}  // namespace lumcore::filesupport
