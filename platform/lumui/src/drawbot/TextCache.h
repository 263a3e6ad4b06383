// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QGlyphRun>
#include <QStaticText>
#include <cstddef>
#include <memory>
#include <unordered_map>

#include "lumcore/Strings.h"
#include "lumui/drawbot/Drawbot.h"

namespace lumui::drawbot {

// A text with its glyphs laid out, and where in them the baseline is. Fallback fonts may lift a
// line's ascent above that of the font itself.
struct PreparedText {
  QStaticText text;
  double ascent = 0;
  QList<QGlyphRun> runs;  // the same glyphs once more, made when the text is drawn scaled
};

// What a font remembers of one text. The width is always there; the rest is made when it is drawn.
struct TextEntry {
  float width = 0;
  // The last answer of a truncation: a row is truncated to the same width at every paint.
  TextTruncation truncation = TextTruncation::kNone;
  float truncatedTo = 0;
  lumcore::UTF16String truncated;
  std::unique_ptr<PreparedText> prepared;
};

// Remembers the texts of one font in two generations. New texts and those asked for again stand in
// the young one; when it is full the old one is dropped and the young one takes its place. So what
// is used stays, without a list to keep in order at every hit, and the count is bounded.
class TextCache {
 public:
  explicit TextCache(std::size_t inMaxTexts) : mGenerationSize(inMaxTexts / 2) {}

  // Null when the text is not known. An entry lives at least until the second Add after its Find.
  TextEntry* Find(const lumcore::UTF16String& inText);
  TextEntry& Add(const lumcore::UTF16String& inText, float inWidth);
  std::size_t GetCount() const { return mYoung.size() + mOld.size(); }

 private:
  struct Hash {
    std::size_t operator()(const lumcore::UTF16String& inText) const;
  };
  using Generation = std::unordered_map<lumcore::UTF16String, TextEntry, Hash>;

  void MakeRoom();

  std::size_t mGenerationSize;
  Generation mYoung;
  Generation mOld;
};

}  // namespace lumui::drawbot
