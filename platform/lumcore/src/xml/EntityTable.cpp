// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "xml/EntityTable.h"

namespace lumcore::xml {

namespace {

// Each may cost one level of recursion in the parser, about a kilobyte of stack.
constexpr std::size_t kMostReferringEntities = 256;

// The name of the next reference behind ioAt to something other than a character; empty at the end.
std::string_view NextReference(std::string_view inText, char inMark, std::size_t& ioAt) {
  while ((ioAt = inText.find(inMark, ioAt)) != inText.npos) {
    const std::size_t start = ++ioAt;
    const std::size_t end = inText.find(';', start);
    if (end == inText.npos) return {};
    if (inText[start] != '#') return inText.substr(start, end - start);
  }
  return {};
}

bool RefersToAny(std::string_view inText) {
  std::size_t general = 0;
  std::size_t parameter = 0;
  return !NextReference(inText, '&', general).empty() ||
         !NextReference(inText, '%', parameter).empty();
}

bool IsPredefined(std::string_view inName) {
  return inName == "lt" || inName == "gt" || inName == "amp" || inName == "quot" ||
         inName == "apos";
}

}  // namespace

bool EntityTable::Declare(std::string_view inName, const std::string_view* inValue,
                          bool inIsParameter) {
  const std::string_view value = inValue ? *inValue : std::string_view();
  if (RefersToAny(value) && ++mReferring > kMostReferringEntities) return false;
  if (inIsParameter) return true;
  for (const std::string_view text : {inName, value}) {
    mDeclared += text;
    mDeclared += '\0';
  }
  mValues.clear();
  return true;
}

const std::map<std::string_view, std::string_view>& EntityTable::GetValues() {
  if (!mValues.empty()) return mValues;
  std::string_view rest = mDeclared;
  const auto take = [&rest] {
    const std::string_view text = rest.substr(0, rest.find('\0'));
    rest.remove_prefix(text.size() + 1);
    return text;
  };
  while (!rest.empty()) {
    const std::string_view name = take();
    // Of several declarations the first counts.
    mValues.emplace(name, take());
  }
  return mValues;
}

// The recursion is no deeper than Declare allows.
std::string EntityTable::FindUndeclared(std::string_view inSource) {
  std::size_t at = 0;
  for (std::string_view name; !(name = NextReference(inSource, '&', at)).empty();) {
    if (IsPredefined(name) || mSearched.count(name) != 0) continue;
    const auto found = GetValues().find(name);
    if (found == mValues.end()) return std::string(name);
    mSearched.emplace(name);
    std::string inner = FindUndeclared(found->second);
    if (!inner.empty()) return inner;
  }
  return {};
}

}  // namespace lumcore::xml
