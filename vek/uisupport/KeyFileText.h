// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <charconv>
#include <string>
#include <system_error>

#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"

namespace vek::uisupport {

// What the command file and the key map file read in the same way.

// An entry with an attribute "os" is for that system alone.
inline bool IsForThisSystem(const lumcore::xml::Attributes& inAttributes) {
  const lumcore::UTF16String* system = inAttributes.Find("os");
  return !system || lumcore::utility::ToStdString(*system) == "win";
}

// The unsigned decimal number that a text begins with, behind blanks and a plus. 0 where there is
// none, or one that a T cannot hold.
template <class T>
T ReadNumber(const std::string& inText) {
  std::size_t start = inText.find_first_not_of(" \t\r\n");
  if (start == std::string::npos) return 0;
  if (inText[start] == '+') ++start;
  if (start == inText.size() || inText[start] == '-') return 0;
  T number = 0;
  const char* const text = inText.data();
  const auto result = std::from_chars(text + start, text + inText.size(), number);
  return result.ec == std::errc() ? number : 0;
}

}  // namespace vek::uisupport
