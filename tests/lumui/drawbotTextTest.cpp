// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <QFont>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <vector>

#include "lumcore/config/ThrowError.h"
#include "lumcore/utility/StringUtils.h"
#include "lumui/ui/Fonts.h"
#include "support/DrawbotPictures.h"

using namespace lumui::drawbot;
using namespace test_support;
using lumcore::UTF16String;
using lumcore::utility::ToUTF16;

namespace {

constexpr unsigned short kEllipsis = 0x2026;

// Texts whose width is not the sum of their letters', and such as break careless code.
std::vector<UTF16String> DifficultTexts() {
  std::vector<UTF16String> texts = {UTF16String(),
                                    ToUTF16("office fjord waffle"),
                                    ToUTF16("AVATAR To. Ty"),
                                    ToUTF16("e\u0301a\u0308o\u0302\u0323"),
                                    ToUTF16("שלום עולם"),
                                    ToUTF16("كتاب جديد"),
                                    ToUTF16("mixed שלום 12"),
                                    ToUTF16("\U0001D54F \U0001F600 \U0001F468\u200D\U0001F469"),
                                    ToUTF16("tab\tand\nbreak\r\nand\u2028line"),
                                    ToUTF16("   "),
                                    ToUTF16("&amp <b>bold</b>")};
  texts.push_back(UTF16String({'a', 0xD83D, 'b'}));
  texts.push_back(UTF16String({0xDE00, 0xD83D}));
  texts.push_back(UTF16String({'n', 0, 'l'}));
  texts.push_back(UTF16String(2000, 'w'));
  return texts;
}

UTF16String Numbered(int inNumber) {
  return ToUTF16("Layer " + std::to_string(inNumber));
}

int RightmostInk(const Surface& inSurface) {
  for (int x = inSurface.GetPixelWidth() - 1; x >= 0; --x) {
    for (int y = 0; y < inSurface.GetPixelHeight(); ++y) {
      if (inSurface.GetPixel(x, y).alpha > 0) return x;
    }
  }
  return -1;
}

}  // namespace

class Texts : public DrawbotTest {
 protected:
  FontP mFont = mSupplier.NewFont(nullptr, 0);
};

TEST_F(Texts, RememberedWidthsAreThoseOfAFreshMeasurement) {
  for (const FontStyle style : {FontStyle::kPlain, FontStyle::kBoldItalic}) {
    const FontP font = mSupplier.NewFont("DejaVu Serif", 17, style);
    auto texts = DifficultTexts();
    for (int i = 0; i < 300; ++i)
      texts.push_back(Numbered(i * 37));
    for (int round = 0; round < 2; ++round) {
      for (const auto& text : texts) {
        EXPECT_EQ(font->MeasureWidth(text), font->MeasureWidthOnce(text))
            << lumcore::utility::ToStdString(text);
      }
    }
  }
  EXPECT_EQ(mFont->MeasureWidth(UTF16String()), 0);
  EXPECT_GT(mFont->MeasureWidth(ToUTF16("ww")), mFont->MeasureWidth(ToUTF16("ii")));
}

TEST_F(Texts, MemoryIsBoundedAndKeepsWhatIsAskedForAgain) {
  const FontP font = mSupplier.NewFont("DejaVu Sans", 21);
  const UTF16String used = ToUTF16("asked for again and again");
  for (int i = 0; i < 30000; ++i) {
    font->MeasureWidth(Numbered(i));
    if (i % 1000 == 0) font->MeasureWidth(used);
    ASSERT_LE(font->GetCachedTextCount(), FontInterface::kMaxCachedTexts);
  }
  const std::size_t full = font->GetCachedTextCount();
  EXPECT_GE(full, FontInterface::kMaxCachedTexts / 2);
  // Known texts add nothing; nor do whole columns that ask once, or texts of a page's length.
  font->MeasureWidth(used);
  font->MeasureWidth(Numbered(29999));
  for (int i = 0; i < 100; ++i)
    font->MeasureWidthOnce(Numbered(-i - 1));
  font->MeasureWidth(UTF16String(5000, 'x'));
  EXPECT_EQ(font->GetCachedTextCount(), full);
  // A text that was dropped is measured anew, to the same answer.
  EXPECT_EQ(font->MeasureWidth(Numbered(3)), font->MeasureWidthOnce(Numbered(3)));
}

TEST_F(Texts, PreparedTextHasThePixelsOfAPlainlyDrawnOne) {
  for (const auto& text : DifficultTexts()) {
    if (text.size() > 100 || text.find('\t') != text.npos) continue;
    for (const float scale : {1.0f, 2.0f}) {
      QImage plain(static_cast<int>(300 * scale), static_cast<int>(40 * scale),
                   QImage::Format_ARGB32_Premultiplied);
      plain.fill(Qt::transparent);
      plain.setDevicePixelRatio(scale);
      QPainter painter(&plain);
      painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
      QFont font(lumui::ui::GetFontName(0));
      font.setPixelSize(static_cast<int>(lumui::ui::GetFontSize(0)));
      painter.setFont(font);
      painter.drawText(QPointF(5, 25),
                       QString::fromUtf16(reinterpret_cast<const char16_t*>(text.data()),
                                          static_cast<qsizetype>(text.size())));
      painter.end();

      auto surface = NewSurface(300, 40, scale);
      // Twice, so that the second one is drawn from memory.
      for (int i = 0; i < 2; ++i) {
        StDrawbotState state(surface->GetDrawbot(), Rect(0, 0, i == 0 ? 0.0f : 300.0f, 40));
        surface->GetDrawbot().DrawString(text, mFont, kBlack, Point(5, 25));
      }
      int different = 0;
      for (int y = 0; y < plain.height(); ++y) {
        for (int x = 0; x < plain.width(); ++x) {
          const float alpha = static_cast<float>(plain.pixelColor(x, y).alphaF());
          if (std::abs(surface->GetPixel(x, y).alpha - alpha) > 0.01f) ++different;
        }
      }
      EXPECT_EQ(different, 0) << lumcore::utility::ToStdString(text) << " at " << scale;
    }
  }
}

TEST_F(Texts, LongTextsAreShortenedAsShortOnesWithTheSameEnds) {
  UTF16String text;
  for (unsigned i = 0; i < 30000; ++i)
    text += static_cast<unsigned short>(i % 7 == 3 ? ' ' : 'a' + i * 11 % 26);
  const UTF16String start = text.substr(0, 500);
  const UTF16String ends = text.substr(0, 250) + text.substr(text.size() - 250);
  const auto surface = NewSurface(1, 1);
  const Drawbot& drawbot = surface->GetDrawbot();
  for (const float width : {40.0f, 333.0f}) {
    const auto shorten = [&](const UTF16String& inText, TextTruncation inTruncation) {
      return UTF16String(drawbot.TruncateString(inText, mFont, inTruncation, width));
    };
    EXPECT_EQ(shorten(text, TextTruncation::kEnd), shorten(start, TextTruncation::kEnd));
    EXPECT_EQ(shorten(text, TextTruncation::kMiddle), shorten(ends, TextTruncation::kMiddle));
  }
}

TEST_F(Texts, TruncatedTextFitsAndShowsAnEllipsis) {
  const UTF16String text = ToUTF16("Waffle e\u0301clair \U0001F600 from office");
  const float full = mFont->MeasureWidth(text);
  const auto surface = NewSurface(1, 1);
  const Drawbot& drawbot = surface->GetDrawbot();
  for (const auto truncation : {TextTruncation::kEnd, TextTruncation::kMiddle}) {
    for (float width = 0; width < full; width += 1.75f) {
      const UTF16String shown = drawbot.TruncateString(text, mFont, truncation, width);
      EXPECT_LE(mFont->MeasureWidthOnce(shown), width) << width;
      // A place for the ellipsis and a letter is used, but for the room of two wide letters.
      const bool isUsed = width < 13 || mFont->MeasureWidthOnce(shown) > width - 26;
      EXPECT_TRUE(isUsed) << lumcore::utility::ToStdString(shown) << " in " << width;
      if (shown.empty()) continue;
      const std::size_t dots = shown.find(kEllipsis);
      ASSERT_NE(dots, shown.npos) << width;
      EXPECT_EQ(shown.substr(0, dots), text.substr(0, dots));
      const UTF16String tail = shown.substr(dots + 1);
      EXPECT_EQ(tail, text.substr(text.size() - tail.size()));
      EXPECT_TRUE(tail.empty() || truncation == TextTruncation::kMiddle);
      EXPECT_TRUE(tail.size() > 2 || truncation == TextTruncation::kEnd || width < full / 2);
      // No half of a surrogate pair is left at the cut.
      EXPECT_TRUE(dots == 0 || (shown[dots - 1] & 0xFC00) != 0xD800) << width;
    }
    EXPECT_EQ(drawbot.TruncateString(text, mFont, truncation, full), text);
    EXPECT_EQ(drawbot.TruncateString(text, mFont, truncation, -5), UTF16String());
    EXPECT_EQ(drawbot.TruncateString(text, mFont, truncation, std::nanf("")), UTF16String());
  }
  EXPECT_EQ(drawbot.TruncateString(text, mFont, TextTruncation::kNone, 1), text);
}

TEST_F(Texts, AlignedTextStandsInItsRectangle) {
  const UTF16String text = ToUTF16("HHHHH");
  const float width = mFont->MeasureWidth(text);
  struct Row {
    TextAlignment alignment;
    float rectWidth;
    float expectedLeft;  // of the pen; the letter begins within two units behind it
  };
  const Row rows[] = {{TextAlignment::kLeft, 120, 20},
                      {TextAlignment::kCenter, 120, 20 + (120 - width) / 2},
                      {TextAlignment::kRight, 120, 140 - width}};
  for (const Row& row : rows) {
    auto surface = NewSurface(200, 30);
    surface->GetDrawbot().DrawStringInRect(text, mFont, kBlack, Rect(20, 5, row.rectWidth, 20),
                                           row.alignment);
    int left = 0;
    while (left < 200 && surface->GetPixel(left, 15).alpha == 0)
      ++left;
    EXPECT_GE(left, row.expectedLeft - 0.5f);
    EXPECT_LE(left, row.expectedLeft + 2);
    EXPECT_LE(RightmostInk(*surface), row.expectedLeft + width);
  }
}

TEST_F(Texts, TextThatIsTooLongStaysInItsRectangleWhateverItsAlignment) {
  const UTF16String text = ToUTF16("A name that is much longer than the column");
  for (const auto alignment :
       {TextAlignment::kLeft, TextAlignment::kCenter, TextAlignment::kRight}) {
    auto surface = NewSurface(400, 30);
    surface->GetDrawbot().DrawStringInRect(text, mFont, kBlack, Rect(30, 5, 90, 20), alignment);
    EXPECT_LT(RightmostInk(*surface), 120);
    EXPECT_GT(RightmostInk(*surface), 90);
    for (int x = 0; x < 29; ++x) {
      for (int y = 0; y < 30; ++y)
        ASSERT_EQ(surface->GetPixel(x, y).alpha, 0) << x << ' ' << y;
    }
  }
}

TEST_F(Texts, SameRequestYieldsTheSameFontAndAnEmptyHandleIsRefused) {
  EXPECT_EQ(mSupplier.NewFont("DejaVu Sans", 14), mSupplier.NewFont("DejaVu Sans", 14.2f));
  EXPECT_NE(mSupplier.NewFont("DejaVu Sans", 14), mSupplier.NewFont("DejaVu Sans", 15));
  EXPECT_NE(mSupplier.NewFont("DejaVu Sans", 14),
            mSupplier.NewFont("DejaVu Sans", 14, FontStyle::kBold));
  // Past the number that is kept, those that are held go on as they are.
  const UTF16String text = ToUTF16("held");
  const float width = mFont->MeasureWidth(text);
  for (int size = 100; size < 300; ++size)
    mSupplier.NewFont("DejaVu Sans", static_cast<float>(size));
  EXPECT_EQ(mFont->MeasureWidth(text), width);
  EXPECT_EQ(mSupplier.NewFont("", -1), mFont);

  const FontP none;
  EXPECT_FALSE(none);
  const auto surface = NewSurface(9, 9);
  Drawbot& drawbot = surface->GetDrawbot();
  EXPECT_THROW(drawbot.DrawString(text, none, kBlack, Point()), lumcore::config::Error);
}

TEST_F(Texts, MetricsGrowWithTheSizeAndAddUpToTheLine) {
  const FontP large = mSupplier.NewFont(nullptr, 48);
  EXPECT_GT(large->GetAscent(), 2 * mFont->GetAscent());
  EXPECT_GT(mFont->GetAscent(), mFont->GetDescent());
  EXPECT_GT(mFont->GetDescent(), 0);
  EXPECT_NEAR(large->GetLineHeight(),
              large->GetAscent() + large->GetDescent() + large->GetLeading(), 1);
}
