// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <exception>
#include <string>
#include <string_view>

#include "lumcore/Strings.h"
#include "lumcore/utility/StringUtils.h"

// Command and key map files as texts of a test.

inline lumcore::UTF8String Bytes(std::string_view inText) {
  return lumcore::UTF8String(inText.begin(), inText.end());
}

inline lumcore::UTF16String U16(std::string_view inText) {
  return lumcore::utility::ToUTF16(inText);
}

inline std::string U8(const lumcore::UTF16String& inText) {
  return lumcore::utility::ToStdString(inText);
}

// What inCall throws, in its own words; empty when it throws nothing.
template <class Call>
std::string WordsOf(Call inCall) {
  try {
    inCall();
  } catch (const std::exception& error) {
    return error.what();
  }
  return std::string();
}
