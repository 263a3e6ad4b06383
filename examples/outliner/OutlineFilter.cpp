// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "OutlineFilter.h"

#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;
using lumcore::utility::FoldCase;

namespace {

bool IsLead(unsigned short inUnit) {
  return (inUnit & 0xFC00) == 0xD800;
}

}  // namespace

OutlineFilter::OutlineFilter(const UTF16String& inText)
    : mText(inText), mFolded(FoldCase(inText)) {}

bool OutlineFilter::Matches(const UTF16String& inText) const {
  return FoldCase(inText).find(mFolded) != UTF16String::npos;
}

// Folding may change the length, so it goes character by character here, with the place in the text
// of each unit that comes out.
OutlineFilter::Ranges OutlineFilter::FindAll(const UTF16String& inText) const {
  Ranges ranges;
  if (IsEmpty() || !Matches(inText)) return ranges;
  UTF16String folded;
  std::vector<std::size_t> places;
  for (std::size_t at = 0; at < inText.size();) {
    const std::size_t length = IsLead(inText[at]) && at + 1 < inText.size() ? 2 : 1;
    folded += FoldCase(inText.substr(at, length));
    places.resize(folded.size(), at);
    at += length;
  }
  places.push_back(inText.size());
  std::size_t from = folded.find(mFolded);
  while (from != UTF16String::npos) {
    const std::size_t to = from + mFolded.size();
    std::size_t end = places[to];
    // Half of a character that has become two is all of it.
    if (end == places[to - 1])
      end = end + 1 < inText.size() && IsLead(inText[end]) ? end + 2 : end + 1;
    ranges.emplace_back(places[from], end);
    from = folded.find(mFolded, to);
  }
  return ranges;
}

}  // namespace outliner
