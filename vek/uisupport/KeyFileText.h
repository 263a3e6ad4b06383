// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <charconv>
#include <string>
#include <string_view>
#include <system_error>

#include "lumcore/Strings.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"

namespace vek::uisupport {

// What the command file and the key map file read in the same way.

// Whether a text is this ASCII one. Readers ask it of every tag, so nothing is converted.
inline bool IsText(const lumcore::UTF16String& inText, std::string_view inASCII) {
  return std::equal(inText.begin(), inText.end(), inASCII.begin(), inASCII.end());
}

// An entry with an attribute "os" is for that system alone.
inline bool IsForThisSystem(const lumcore::xml::Attributes& inAttributes) {
  const lumcore::UTF16String* system = inAttributes.Find("os");
  return !system || IsText(*system, "win");
}

// The unsigned decimal number that a text begins with, behind blanks and a plus. 0 where there is
// none, or one that a T cannot hold.
template <class T>
T ReadNumber(const lumcore::UTF16String& inText) {
  const std::string digits = lumcore::utility::ToStdString(inText);
  std::size_t start = digits.find_first_not_of(" \t\r\n");
  if (start == std::string::npos) return 0;
  if (digits[start] == '+') ++start;
  if (start == digits.size() || digits[start] == '-') return 0;
  T number = 0;
  const char* const text = digits.data();
  const auto result = std::from_chars(text + start, text + digits.size(), number);
  return result.ec == std::errc() ? number : 0;
}

}  // namespace vek::uisupport
