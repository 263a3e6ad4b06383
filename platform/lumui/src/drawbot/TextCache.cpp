// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/TextCache.h"

#include <string_view>
#include <utility>

namespace lumui::drawbot {

TextEntry* TextCache::Find(const lumcore::UTF16String& inText) {
  if (const auto young = mYoung.find(inText); young != mYoung.end()) return &young->second;
  const auto old = mOld.find(inText);
  if (old == mOld.end()) return nullptr;
  auto node = mOld.extract(old);
  MakeRoom();
  return &mYoung.insert(std::move(node)).position->second;
}

TextEntry& TextCache::Add(const lumcore::UTF16String& inText, float inWidth) {
  MakeRoom();
  TextEntry& entry = mYoung[inText];
  entry.width = inWidth;
  return entry;
}

void TextCache::MakeRoom() {
  if (mYoung.size() < mGenerationSize) return;
  mOld = std::exchange(mYoung, Generation());
}

std::size_t TextCache::Hash::operator()(const lumcore::UTF16String& inText) const {
  const std::string_view bytes(reinterpret_cast<const char*>(inText.data()),
                               inText.size() * sizeof(inText[0]));
  return std::hash<std::string_view>()(bytes);
}

}  // namespace lumui::drawbot
