// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "lumcore/Strings.h"

namespace outliner {

// What a user looks for in an outline: a text that stands somewhere in another one, without regard
// to case. An empty one finds everything and marks nothing.
class OutlineFilter {
 public:
  OutlineFilter() = default;
  explicit OutlineFilter(const lumcore::UTF16String& inText);

  bool IsEmpty() const { return mFolded.empty(); }
  const lumcore::UTF16String& GetText() const { return mText; }
  bool Matches(const lumcore::UTF16String& inText) const;
  // Where it stands, from the left and none over another: start and end in units of the text.
  using Ranges = std::vector<std::pair<std::size_t, std::size_t>>;
  Ranges FindAll(const lumcore::UTF16String& inText) const;

 private:
  lumcore::UTF16String mText;
  lumcore::UTF16String mFolded;
};

}  // namespace outliner
