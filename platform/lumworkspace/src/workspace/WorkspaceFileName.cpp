// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "workspace/WorkspaceFileName.h"

#include <string_view>

#include "lumcore/utility/StringUtils.h"

namespace lumworkspace::workspace {

namespace {

constexpr std::string_view kEnding = ".workspace";
constexpr std::string_view kDigits = "0123456789ABCDEF";

bool StandsForItself(unsigned char inByte) {
  return (inByte >= 'a' && inByte <= 'z') || (inByte >= 'A' && inByte <= 'Z') ||
         (inByte >= '0' && inByte <= '9') || inByte == ' ' || inByte == '-' || inByte == '_';
}

}  // namespace

std::string WorkspaceFileName(const lumcore::UTF16String& inName) {
  std::string name;
  for (const unsigned char byte : lumcore::utility::ToUTF8(inName)) {
    if (StandsForItself(byte)) {
      name += static_cast<char>(byte);
    } else {
      name += '%';
      name += kDigits[byte >> 4];
      name += kDigits[byte & 0xF];
    }
  }
  name += kEnding;
  return name;
}

lumcore::UTF16String WorkspaceNameOfFile(const lumcore::UTF16String& inFileName) {
  const std::string file = lumcore::utility::ToStdString(inFileName);
  if (file.size() <= kEnding.size()) return lumcore::UTF16String();
  const std::size_t length = file.size() - kEnding.size();
  if (file.compare(length, kEnding.size(), kEnding) != 0) return lumcore::UTF16String();
  std::string name;
  for (std::size_t i = 0; i < length; ++i) {
    const std::size_t high = i + 2 < length ? kDigits.find(file[i + 1]) : kDigits.npos;
    const std::size_t low = i + 2 < length ? kDigits.find(file[i + 2]) : kDigits.npos;
    if (file[i] == '%' && high != kDigits.npos && low != kDigits.npos) {
      name += static_cast<char>(high << 4 | low);
      i += 2;
    } else {
      name += file[i];
    }
  }
  const lumcore::UTF16String result = lumcore::utility::ToUTF16(name);
  // One that would lie in another file is none that we have written.
  return WorkspaceFileName(result) == file ? result : lumcore::UTF16String();
}

}  // namespace lumworkspace::workspace
