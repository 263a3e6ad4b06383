// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QFont>
#include <QFontMetricsF>
#include <string>

#include "drawbot/TextCache.h"
#include "lumui/drawbot/Font.h"

class QPainter;

namespace lumui::drawbot {

// The font behind every handle, with the texts that it remembers.
class QtFont : public FontInterface {
 public:
  QtFont(const std::string& inFamilyName, int inSize, FontStyle inStyle);

  const lumcore::UTF16String& GetFamilyName() const override { return mFamilyName; }
  float GetSize() const override { return mSize; }
  FontStyle GetStyle() const override { return mStyle; }
  float GetAscent() const override;
  float GetDescent() const override;
  float GetLeading() const override;
  float GetLineHeight() const override;
  float MeasureWidth(const lumcore::UTF16String& inText) const override;
  float MeasureWidthOnce(const lumcore::UTF16String& inText) const override;
  std::size_t GetCachedTextCount() const override { return mCache.GetCount(); }

  // See Drawbot. The reference of Truncate is good until the next call of either.
  const lumcore::UTF16String& Truncate(const lumcore::UTF16String& inText,
                                       TextTruncation inTruncation, float inMaxWidth) const;
  // Draws with the painter's pen, the baseline beginning at inOrigin.
  void Draw(QPainter& inPainter, const lumcore::UTF16String& inText, const QPointF& inOrigin) const;

 private:
  TextEntry& Remember(const lumcore::UTF16String& inText) const;
  const lumcore::UTF16String& TruncateLong(const lumcore::UTF16String& inText,
                                           TextTruncation inTruncation, float inMaxWidth) const;
  lumcore::UTF16String MakeTruncated(const lumcore::UTF16String& inText,
                                     TextTruncation inTruncation, float inMaxWidth) const;

  lumcore::UTF16String mFamilyName;
  int mSize;
  FontStyle mStyle;
  QFont mFont;
  QFontMetricsF mMetrics;
  mutable TextCache mCache;
  mutable lumcore::UTF16String mLastLongTruncated;
};

// Fails the contract for an empty handle and for a font that another supplier made.
const QtFont& AsQtFont(const FontP& inFont);

}  // namespace lumui::drawbot
