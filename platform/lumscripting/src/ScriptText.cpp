// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "ScriptText.h"

#include <string_view>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/StringUtils.h"
#include "lumscripting/ScriptError.h"

namespace lumscripting {

namespace {

using lumcore::UTF16String;
using lumcore::UTF8String;
using lumcore::utility::ToUTF16;
using lumcore::utility::ToUTF8;

constexpr unsigned char kByteOrderMark[] = {0xEF, 0xBB, 0xBF, 0};

}  // namespace

// Ill-formed bytes become U+FFFD, so they alone do not come back as they were.
UTF16String ReadScript(const lumcore::filesupport::File& inFile) {
  UTF8String bytes = inFile.ReadAll();
  if (bytes.compare(0, 3, kByteOrderMark) == 0) bytes.erase(0, 3);
  UTF16String text = ToUTF16(bytes);
  if (ToUTF8(text) == bytes) return text;

  int line = 1;
  std::size_t start = 0;
  for (std::size_t end; (end = bytes.find('\n', start)) != UTF8String::npos; start = end + 1) {
    const UTF8String part = bytes.substr(start, end - start);
    if (ToUTF8(ToUTF16(part)) != part) break;
    ++line;
  }
  throw ScriptError(ToUTF16(inFile.GetPath()), line,
                    lumcore::config::Localizer::Get()->GetLocalizedString(
                        "$$$/lumscripting/Error/Encoding=The text is not UTF-8."));
}

}  // namespace lumscripting
