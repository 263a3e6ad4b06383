// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <string_view>

#include "lumcore/Strings.h"

namespace lumcore::utility {

// For unordered tables by text: of the units as they stand. The view may be of a text or of a part
// of one.
struct TextHash {
  using View = std::basic_string_view<UTF16String::value_type>;

  std::size_t operator()(View inText) const {
    return std::hash<std::string_view>()(std::string_view(
        reinterpret_cast<const char*>(inText.data()), inText.size() * sizeof(inText[0])));
  }
  std::size_t operator()(const UTF16String& inText) const {
    return operator()(View(inText.data(), inText.size()));
  }
};

}  // namespace lumcore::utility
