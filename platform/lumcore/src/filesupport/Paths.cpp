// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "filesupport/Paths.h"

#include <unicode/utf16.h>
#include <unicode/utf8.h>

#include <cstdint>
#include <system_error>

#include "filesupport/ThrowFileError.h"

namespace lumcore::filesupport::paths {

namespace fs = std::filesystem;

namespace {

constexpr UTF16String::value_type kFirstByteMark = 0xDC00;
constexpr UChar32 kReplacementCharacter = 0xFFFD;

constexpr char kSeparators[] = {'/', static_cast<char>(fs::path::preferred_separator), '\0'};

// A separator at the end would make an empty last component.
fs::path WithoutEndSeparator(const fs::path& inPath) {
  return !inPath.has_filename() && inPath.has_relative_path() ? inPath.parent_path() : inPath;
}

// Whether nothing is left to resolve, as far as that can be told at a glance.
bool IsFull(const std::string& inPath) {
  return fs::path::preferred_separator == '/' && inPath.size() > 1 && inPath.front() == '/' &&
         inPath.back() != '/' && inPath.find("//") == inPath.npos &&
         inPath.find("/.") == inPath.npos;
}

}  // namespace

fs::path ToSystem(const std::string& inPath) {
  return fs::u8path(inPath);
}

std::string FromSystem(const fs::path& inPath) {
  return inPath.u8string();
}

UTF16String ToText(const std::string& inPath) {
  UTF16String text;
  text.reserve(inPath.size());
  const auto* const bytes = reinterpret_cast<const std::uint8_t*>(inPath.data());
  for (std::size_t at = 0; at < inPath.size();) {
    const std::size_t start = at;
    UChar32 character = 0;
    U8_NEXT(bytes, at, inPath.size(), character);
    if (character < 0) {
      for (std::size_t byte = start; byte < at; ++byte)
        text += static_cast<UTF16String::value_type>(kFirstByteMark + bytes[byte]);
    } else if (U_IS_BMP(character)) {
      text += static_cast<UTF16String::value_type>(character);
    } else {
      text += static_cast<UTF16String::value_type>(U16_LEAD(character));
      text += static_cast<UTF16String::value_type>(U16_TRAIL(character));
    }
  }
  return text;
}

std::string FromText(const UTF16String& inText) {
  std::string path;
  path.reserve(inText.size());
  for (std::size_t at = 0; at < inText.size();) {
    UChar32 character = 0;
    U16_NEXT(inText.data(), at, inText.size(), character);
    if (character >= kFirstByteMark + 0x80 && character <= kFirstByteMark + 0xFF) {
      path += static_cast<char>(character - kFirstByteMark);
      continue;
    }
    if (U_IS_SURROGATE(character)) character = kReplacementCharacter;
    std::uint8_t bytes[U8_MAX_LENGTH];
    std::size_t count = 0;
    U8_APPEND_UNSAFE(bytes, count, character);
    path.append(reinterpret_cast<const char*>(bytes), count);
  }
  return path;
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

std::string NameText(const std::string& inPath) {
  // The common case, without taking all of the path apart: lists ask for thousands of names.
  const std::size_t separator = inPath.find_last_of(kSeparators);
  if (separator != inPath.npos && separator + 1 < inPath.size())
    return inPath.substr(separator + 1);
  const fs::path path = WithoutEndSeparator(ToSystem(inPath));
  return FromSystem(path.has_filename() ? path.filename() : path);
}

std::string Full(const std::string& inPath) {
  if (inPath.empty() || IsFull(inPath)) return inPath;
  std::error_code code;
  const fs::path full = fs::absolute(ToSystem(inPath), code);
  if (code) {
    ThrowSystemError("$$$/lumcore/filesupport/Error/FullPath=Cannot find the place of \"@0\": @1",
                     inPath, code.value());
  }
  return FromSystem(WithoutEndSeparator(full.lexically_normal()));
}

}  // namespace lumcore::filesupport::paths
