// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>

#include "lumcore/Strings.h"

// What a path says by its text alone, for File and Dir. Bytes that are no UTF-8 pass unchanged on
// systems where a name may be any bytes.
namespace lumcore::filesupport::paths {

std::filesystem::path ToSystem(const std::string& inPath);
std::string FromSystem(const std::filesystem::path& inPath);

// A path as UTF-16 and back, whatever its bytes are: one that is no part of UTF-8 becomes a lone
// surrogate, U+DC80 to U+DCFF. Another lone surrogate names nothing and becomes U+FFFD.
UTF16String ToText(const std::string& inPath);
std::string FromText(const UTF16String& inText);

std::string Join(const std::string& inFolder, std::string_view inName);
std::string Parent(const std::string& inPath);
// The last component; the root's is the root itself.
std::string NameText(const std::string& inPath);
// Absolute, "." and ".." resolved, no separator at the end. Throws FileError where the current
// folder is gone.
std::string Full(const std::string& inPath);

}  // namespace lumcore::filesupport::paths
