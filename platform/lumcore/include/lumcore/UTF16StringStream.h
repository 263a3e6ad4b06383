// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "lumcore/Strings.h"
#include "lumcore/utility/StringUtils.h"

namespace lumcore {

// Puts a long text together. The standard's own streams need facets that there are for the types of
// characters alone.
class UTF16StringStream {
 public:
  UTF16StringStream& operator<<(const UTF16String& inText) {
    mText += inText;
    return *this;
  }
  // UTF-8.
  UTF16StringStream& operator<<(std::string_view inText) {
    return *this << utility::ToUTF16(inText);
  }

  const UTF16String& str() const { return mText; }

 private:
  UTF16String mText;
};

}  // namespace lumcore
