// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <string_view>
#include <unordered_map>

#include "lumcore/Strings.h"
#include "lumui/drawbot/Font.h"

namespace vek::hierarchyview {

// How wide the texts of all rows are, in one font. A font remembers the texts that are on the
// screen and would lose those to a walk over every row; measuring them all again at each change of
// the tree is what makes a large one slow.
class TextWidths {
 public:
  float Get(lumui::drawbot::FontP const& inFont, lumcore::UTF16String const& inText);

  // About 25 MB when it is full of texts of a row's length; then it begins anew.
  static constexpr std::size_t kMaxTexts = std::size_t{1} << 18;

 private:
  // Stays where measuring threw.
  static constexpr float kNotMeasured = -1;

  struct Hash {
    std::size_t operator()(lumcore::UTF16String const& inText) const {
      return std::hash<std::string_view>()(
          std::string_view(reinterpret_cast<const char*>(inText.data()),
                           inText.size() * sizeof(lumcore::UTF16String::value_type)));
    }
  };

  lumui::drawbot::FontP mFont;  // held, so that no other font gets its address
  std::unordered_map<lumcore::UTF16String, float, Hash> mWidths;
};

}  // namespace vek::hierarchyview
