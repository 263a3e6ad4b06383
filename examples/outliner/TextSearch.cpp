// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "TextSearch.h"

#include "Surrogates.h"
#include "lumcore/utility/StringUtils.h"

namespace outliner {

using lumcore::UTF16String;

namespace {

constexpr unsigned short kFirstBeyondASCII = 0x80;

// Letters, digits and the marks upon them; beyond Latin all but spaces and punctuation counts.
bool IsInWord(unsigned short inUnit) {
  if (inUnit < kFirstBeyondASCII) {
    return (inUnit >= '0' && inUnit <= '9') || (inUnit >= 'A' && inUnit <= 'Z') ||
           (inUnit >= 'a' && inUnit <= 'z') || inUnit == '_';
  }
  const bool isSign =
      inUnit < 0xC0 || inUnit == 0xD7 || inUnit == 0xF7 || (inUnit >= 0x2000 && inUnit < 0x2C00) ||
      (inUnit >= 0x3000 && inUnit < 0x3040) || (inUnit >= 0xFF00 && inUnit < 0xFF10);
  return !isSign || inUnit == 0xAA || inUnit == 0xB5 || inUnit == 0xBA;
}

}  // namespace

TextSearch::TextSearch(const SearchTerm& inTerm)
    : mTerm(inTerm),
      mWanted(inTerm.matchesCase ? inTerm.text : lumcore::utility::FoldCase(inTerm.text)) {}

// Folding knows no neighbours, so that it may go character by character. Most texts are plain, and
// of those each unit stays where it was.
void TextSearch::Prepare(const UTF16String& inText) const {
  mFolded = inText;
  mOrigins.clear();
  bool isPlain = true;
  for (unsigned short& unit : mFolded) {
    if (unit >= 'A' && unit <= 'Z') unit = static_cast<unsigned short>(unit + ('a' - 'A'));
    isPlain = isPlain && unit < kFirstBeyondASCII;
  }
  if (isPlain) return;
  mFolded.clear();
  for (std::size_t at = 0; at < inText.size();) {
    const unsigned short unit = inText[at];
    const bool isPair =
        IsLeadSurrogate(unit) && at + 1 < inText.size() && IsTrailSurrogate(inText[at + 1]);
    const std::size_t length = isPair ? 2 : 1;
    if (unit < kFirstBeyondASCII) {
      const bool isUpper = unit >= 'A' && unit <= 'Z';
      mFolded += static_cast<unsigned short>(isUpper ? unit + ('a' - 'A') : unit);
    } else {
      mFolded += lumcore::utility::FoldCase(inText.substr(at, length));
    }
    mOrigins.resize(mFolded.size(), static_cast<std::uint32_t>(at));
    at += length;
  }
}

// ioFrom is a place in the form of the text that is looked at: the text itself, or what it folds
// to.
bool TextSearch::FindFrom(const UTF16String& inText, std::size_t& ioFrom, Match& outMatch) const {
  const UTF16String& text = mTerm.matchesCase ? inText : mFolded;
  const bool isAsItWas = mTerm.matchesCase || mOrigins.empty();
  const auto originOf = [&](std::size_t inAt) {
    if (isAsItWas) return inAt;
    return inAt < mOrigins.size() ? static_cast<std::size_t>(mOrigins[inAt]) : inText.size();
  };
  const auto isBoundary = [&](std::size_t inAt) {
    if (inAt == 0 || inAt == text.size()) return true;
    if (!isAsItWas) return mOrigins[inAt] != mOrigins[inAt - 1];
    return !(IsTrailSurrogate(text[inAt]) && IsLeadSurrogate(text[inAt - 1]));
  };
  for (;; ++ioFrom) {
    ioFrom = text.find(mWanted, ioFrom);
    if (ioFrom == text.npos) return false;
    const std::size_t end = ioFrom + mWanted.size();
    if (!isBoundary(ioFrom) || !isBoundary(end)) continue;
    outMatch.start = originOf(ioFrom);
    const std::size_t behind = originOf(end);
    outMatch.length = behind - outMatch.start;
    const bool reachesIntoWord = (outMatch.start > 0 && IsInWord(inText[outMatch.start - 1])) ||
                                 (behind < inText.size() && IsInWord(inText[behind]));
    if (mTerm.wholeWords && reachesIntoWord) continue;
    ioFrom = end;
    return true;
  }
}

bool TextSearch::IsIn(const UTF16String& inText) const {
  if (IsEmpty() || inText.empty()) return false;
  if (!mTerm.matchesCase) Prepare(inText);
  std::size_t from = 0;
  Match ignored{};
  return FindFrom(inText, from, ignored);
}

std::vector<TextSearch::Match> TextSearch::FindAll(const UTF16String& inText) const {
  std::vector<Match> matches;
  if (IsEmpty()) return matches;
  if (!mTerm.matchesCase) Prepare(inText);
  std::size_t from = 0;
  for (Match match{}; FindFrom(inText, from, match);)
    matches.push_back(match);
  return matches;
}

UTF16String TextSearch::Replace(const UTF16String& inText, const UTF16String& inReplacement) const {
  UTF16String replaced;
  std::size_t from = 0;
  for (const Match& match : FindAll(inText)) {
    replaced.append(inText, from, match.start - from);
    replaced += inReplacement;
    from = match.start + match.length;
  }
  return replaced.append(inText, from, inText.npos);
}

}  // namespace outliner
