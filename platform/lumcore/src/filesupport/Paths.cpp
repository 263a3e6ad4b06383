// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "filesupport/Paths.h"

#include <system_error>

#include "filesupport/ThrowFileError.h"

namespace lumcore::filesupport::paths {

namespace fs = std::filesystem;

namespace {

// A separator at the end would make an empty last component.
fs::path WithoutEndSeparator(const fs::path& inPath) {
  return !inPath.has_filename() && inPath.has_relative_path() ? inPath.parent_path() : inPath;
}

}  // namespace

fs::path ToSystem(const std::string& inPath) {
  return fs::u8path(inPath);
}

std::string FromSystem(const fs::path& inPath) {
  return inPath.u8string();
}

// Joined as text: a name that looks like a path of its own stays inside the folder.
std::string Join(const std::string& inFolder, std::string_view inName) {
  std::string path = inFolder;
  const bool separated = path.empty() || !ToSystem(path).has_filename();
  if (!separated) path += static_cast<char>(fs::path::preferred_separator);
  return path.append(inName);
}

std::string Parent(const std::string& inPath) {
  const fs::path path = WithoutEndSeparator(ToSystem(inPath));
  if (path.filename() == "..") return FromSystem(path / "..");
  if (path.empty()) return "";
  if (path == ".") return "..";
  const fs::path parent = path.parent_path();
  return parent.empty() ? "." : FromSystem(parent);
}

fs::path Name(const std::string& inPath) {
  const fs::path path = WithoutEndSeparator(ToSystem(inPath));
  return path.has_filename() ? path.filename() : path;
}

std::string Full(const std::string& inPath) {
  if (inPath.empty()) return inPath;
  std::error_code code;
  const fs::path full = fs::absolute(ToSystem(inPath), code);
  if (code) {
    ThrowSystemError("$$$/lumcore/filesupport/Error/FullPath=Cannot find the place of \"@0\": @1",
                     inPath, code.value());
  }
  return FromSystem(WithoutEndSeparator(full.lexically_normal()));
}

}  // namespace lumcore::filesupport::paths
