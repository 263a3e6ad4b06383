// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "lumcore/Strings.h"

namespace lumcore::xml {

// A document in UTF-8, without a byte order mark. Bytes that were UTF-8 all along are not copied.
class UTF8Document {
 public:
  // inName stands in the text of the ParseError that is thrown where the encoding is unknown or the
  // bytes are none of its characters. Bytes that call themselves UTF-8 are passed on unchecked.
  // Borrows inBytes, which must live as long as this.
  UTF8Document(std::string_view inBytes, const UTF16String& inName);
  UTF8Document(const UTF8Document&) = delete;
  UTF8Document& operator=(const UTF8Document&) = delete;

  std::string_view GetBytes() const { return mBytes; }

 private:
  std::string mConverted;
  std::string_view mBytes;
};

}  // namespace lumcore::xml
