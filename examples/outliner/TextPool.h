// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <deque>
#include <string_view>
#include <unordered_map>

#include "lumcore/Strings.h"

namespace outliner {

using TextView = std::basic_string_view<unsigned short>;

// Keeps texts that come up again and again (names of attributes, the white space between rows)
// once, under a small number. Numbers count up from 0 in the order of first use; a text stays until
// the pool dies, and so does the reference that Get answers with.
class TextPool {
 public:
  using Id = std::uint32_t;

  TextPool() = default;
  TextPool(const TextPool&) = delete;
  TextPool& operator=(const TextPool&) = delete;

  Id Intern(TextView inText);
  const lumcore::UTF16String& Get(Id inId) const { return mTexts[inId]; }
  std::size_t GetCount() const { return mTexts.size(); }
  // The number of a text that is here already; false where it is not.
  bool Find(TextView inText, Id& outId) const;

 private:
  struct Hash {
    std::size_t operator()(TextView inText) const;
  };

  std::deque<lumcore::UTF16String> mTexts;  // a deque, since mIds looks into the texts
  std::unordered_map<TextView, Id, Hash> mIds;
};

}  // namespace outliner
