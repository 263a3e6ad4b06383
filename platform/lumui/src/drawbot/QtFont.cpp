// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "drawbot/QtFont.h"

#include <QPainter>
#include <QTextLayout>
#include <algorithm>
#include <limits>

#include "drawbot/QtConvert.h"
#include "lumcore/debug/Contract.h"
#include "lumcore/utility/StringUtils.h"

namespace lumui::drawbot {

namespace {

// Longer texts are measured and drawn each time: a few thousand of them would fill the memory, and
// rows, cells and titles stay below it.
constexpr std::size_t kLongestCachedText = 512;  // code units

QFont MakeFont(const std::string& inFamilyName, int inSize, FontStyle inStyle) {
  QFont font(QString::fromStdString(inFamilyName));
  font.setPixelSize(inSize);
  font.setBold(inStyle == FontStyle::kBold || inStyle == FontStyle::kBoldItalic);
  font.setItalic(inStyle == FontStyle::kItalic || inStyle == FontStyle::kBoldItalic);
  return font;
}

// Measuring gives a line break or tab one glyph's width while the layout of prepared text starts a
// line or goes to a tab stop, so the two would disagree.
QString ToOneLine(const lumcore::UTF16String& inText) {
  QString text = ToQt(inText);
  for (qsizetype i = 0; i < text.size(); ++i) {
    const char16_t unit = text.at(i).unicode();
    if ((unit >= 0x09 && unit <= 0x0D) || unit == 0x85 || unit == 0x2028 || unit == 0x2029) {
      text[i] = u' ';
    }
  }
  return text;
}

// Both the layout and its line live as long as the function runs.
template <class Use>
void WithLine(const QString& inText, const QFont& inFont, Use inUse) {
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  QTextLayout layout(inText, inFont);
  layout.setTextOption(option);
  layout.beginLayout();
  QTextLine line = layout.createLine();
  line.setLineWidth(std::numeric_limits<int>::max());  // a line has no ascent before it has a width
  layout.endLayout();
  inUse(line);
}

std::unique_ptr<PreparedText> Prepare(const QString& inText, const QFont& inFont) {
  auto prepared = std::make_unique<PreparedText>();
  QTextOption option;
  option.setWrapMode(QTextOption::NoWrap);
  WithLine(inText, inFont, [&](const QTextLine& inLine) { prepared->ascent = inLine.ascent(); });

  prepared->text.setTextFormat(Qt::PlainText);
  prepared->text.setTextOption(option);
  prepared->text.setText(inText);
  prepared->text.prepare(QTransform(), inFont);
  return prepared;
}

// Enough of a text to be shortened to a width: all that could show at its start and, where the
// middle is left out, at its end.
lumcore::UTF16String Ends(const lumcore::UTF16String& inText, TextTruncation inTruncation,
                          std::size_t inLength) {
  lumcore::UTF16String ends = inText.substr(0, inLength);
  if (inTruncation == TextTruncation::kMiddle) ends += inText.substr(inText.size() - inLength);
  return ends;
}

}  // namespace

QtFont::QtFont(const std::string& inFamilyName, int inSize, FontStyle inStyle)
    : mFamilyName(lumcore::utility::ToUTF16(inFamilyName)),
      mSize(inSize),
      mStyle(inStyle),
      mFont(MakeFont(inFamilyName, inSize, inStyle)),
      mMetrics(mFont),
      mCache(kMaxCachedTexts) {}

float QtFont::GetAscent() const {
  return static_cast<float>(mMetrics.ascent());
}

float QtFont::GetDescent() const {
  return static_cast<float>(mMetrics.descent());
}

float QtFont::GetLeading() const {
  return static_cast<float>(mMetrics.leading());
}

float QtFont::GetLineHeight() const {
  return static_cast<float>(mMetrics.lineSpacing());
}

float QtFont::MeasureWidth(const lumcore::UTF16String& inText) const {
  if (inText.size() > kLongestCachedText) return MeasureWidthOnce(inText);
  return Remember(inText).width;
}

float QtFont::MeasureWidthOnce(const lumcore::UTF16String& inText) const {
  return static_cast<float>(mMetrics.horizontalAdvance(ToOneLine(inText)));
}

const lumcore::UTF16String& QtFont::Truncate(const lumcore::UTF16String& inText,
                                             TextTruncation inTruncation, float inMaxWidth) const {
  if (inTruncation == TextTruncation::kNone) return inText;
  if (inText.size() > kLongestCachedText) {
    return TruncateLong(inText, inTruncation, inMaxWidth);
  }
  TextEntry& entry = Remember(inText);
  if (entry.width <= inMaxWidth) return inText;
  if (entry.truncation != inTruncation || entry.truncatedTo != inMaxWidth) {
    entry.truncated = MakeTruncated(inText, inTruncation, inMaxWidth);
    entry.truncation = inTruncation;
    entry.truncatedTo = inMaxWidth;
  }
  return entry.truncated;
}

// A text may be millions of times as long as what shows of it, so it is measured from its ends on.
const lumcore::UTF16String& QtFont::TruncateLong(const lumcore::UTF16String& inText,
                                                 TextTruncation inTruncation,
                                                 float inMaxWidth) const {
  for (std::size_t length = kLongestCachedText; length < inText.size() / 2; length *= 2) {
    if (MeasureWidthOnce(inText.substr(0, length)) <= inMaxWidth ||
        MeasureWidthOnce(inText.substr(inText.size() - length)) <= inMaxWidth) {
      continue;
    }
    const lumcore::UTF16String ends = Ends(inText, inTruncation, length);
    return mLastLongTruncated = MakeTruncated(ends, inTruncation, inMaxWidth);
  }
  if (MeasureWidthOnce(inText) <= inMaxWidth) return inText;
  return mLastLongTruncated = MakeTruncated(inText, inTruncation, inMaxWidth);
}

void QtFont::Draw(QPainter& inPainter, const lumcore::UTF16String& inText,
                  const QPointF& inOrigin) const {
  if (inText.empty()) return;
  inPainter.setFont(mFont);
  if (inText.size() > kLongestCachedText) return inPainter.drawText(inOrigin, ToOneLine(inText));
  TextEntry& entry = Remember(inText);
  if (!entry.prepared) entry.prepared = Prepare(ToOneLine(inText), mFont);
  const QPointF origin = inOrigin - QPointF(0, entry.prepared->ascent);
  // Prepared text is laid out anew for each other scale; glyphs are only drawn at it.
  const bool isScaled = inPainter.worldTransform().type() > QTransform::TxTranslate;
  if (!isScaled) return inPainter.drawStaticText(origin, entry.prepared->text);
  QList<QGlyphRun>& runs = entry.prepared->runs;
  if (runs.isEmpty()) {
    WithLine(ToOneLine(inText), mFont, [&](const QTextLine& inLine) { runs = inLine.glyphRuns(); });
  }
  for (const QGlyphRun& run : runs)
    inPainter.drawGlyphRun(origin, run);
}

TextEntry& QtFont::Remember(const lumcore::UTF16String& inText) const {
  if (TextEntry* known = mCache.Find(inText)) return *known;
  return mCache.Add(inText, MeasureWidthOnce(inText));
}

lumcore::UTF16String QtFont::MakeTruncated(const lumcore::UTF16String& inText,
                                           TextTruncation inTruncation, float inMaxWidth) const {
  if (!(inMaxWidth > 0)) return lumcore::UTF16String();
  const auto mode = inTruncation == TextTruncation::kMiddle ? Qt::ElideMiddle : Qt::ElideRight;
  const QString text = ToOneLine(inText);
  // A ligature that the cut takes apart is wider in two parts, so a shortened text may stick out by
  // a little: then it is made for a place that is less by as much.
  for (float room = inMaxWidth; room > 0;) {
    const auto result = FromQt(mMetrics.elidedText(text, mode, static_cast<double>(room)));
    const float excess = MeasureWidthOnce(result) - inMaxWidth;
    if (excess <= 0) return result;
    room -= std::max(excess, 1.0f);
  }
  return lumcore::UTF16String();
}

const QtFont& AsQtFont(const FontP& inFont) {
  const auto* font = dynamic_cast<const QtFont*>(inFont.get());
  LUM_INPUT_CONTRACT(font != nullptr);
  return *font;
}

}  // namespace lumui::drawbot
