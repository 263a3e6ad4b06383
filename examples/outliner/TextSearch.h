// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "TextPool.h"
#include "lumcore/Strings.h"

namespace outliner {

// What is looked for in texts.
struct SearchTerm {
  lumcore::UTF16String text;
  bool matchesCase = false;
  bool wholeWords = false;

  friend bool operator==(const SearchTerm& inA, const SearchTerm& inB) {
    return inA.text == inB.text && inA.matchesCase == inB.matchesCase &&
           inA.wholeWords == inB.wholeWords;
  }
};

// Finds a term in one text after the other. Without regard to case texts are the same that fold to
// the same, also where folding changes their length; what is found begins and ends with characters
// of the text. An empty term is nowhere.
class TextSearch {
 public:
  struct Match {
    std::size_t start;  // in UTF-16 units
    std::size_t length;
  };

  TextSearch() = default;
  explicit TextSearch(const SearchTerm& inTerm);

  bool IsEmpty() const { return mWanted.empty(); }
  bool IsIn(const lumcore::UTF16String& inText) const;
  // From front to back; none reaches into the one before.
  std::vector<Match> FindAll(const lumcore::UTF16String& inText) const;
  // The text with all matches replaced.
  lumcore::UTF16String Replace(const lumcore::UTF16String& inText,
                               const lumcore::UTF16String& inReplacement) const;

 private:
  void Prepare(const lumcore::UTF16String& inText) const;
  bool FindFrom(const lumcore::UTF16String& inText, std::size_t& ioFrom, Match& outMatch) const;

  SearchTerm mTerm;
  lumcore::UTF16String mWanted;  // folded, where case does not count
  // The text that is looked at, in the same form, and where each of its units comes from; nothing
  // there for where it was. Kept from text to text for their memory alone.
  mutable lumcore::UTF16String mFolded;
  mutable std::vector<std::uint32_t> mOrigins;
};

}  // namespace outliner
