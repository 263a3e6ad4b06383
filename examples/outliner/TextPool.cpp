// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "TextPool.h"

namespace outliner {

std::size_t TextPool::Hash::operator()(TextView inText) const {
  std::uint64_t hash = 0xCBF29CE484222325u;  // FNV-1a, over units instead of bytes
  for (const unsigned short unit : inText)
    hash = (hash ^ unit) * 0x100000001B3u;
  return static_cast<std::size_t>(hash);
}

TextPool::Id TextPool::Intern(TextView inText) {
  const auto found = mIds.find(inText);
  if (found != mIds.end()) return found->second;
  const Id id = static_cast<Id>(mTexts.size());
  // An empty view may point nowhere, and a string's constructor must not be given that.
  mTexts.push_back(inText.empty() ? lumcore::UTF16String() : lumcore::UTF16String(inText));
  mIds.emplace(TextView(mTexts.back()), id);
  return id;
}

bool TextPool::Find(TextView inText, Id& outId) const {
  const auto found = mIds.find(inText);
  if (found == mIds.end()) return false;
  outId = found->second;
  return true;
}

}  // namespace outliner
