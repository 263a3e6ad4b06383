// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "lumcore/utility/DisplayWidth.h"
#include "lumcore/utility/StringUtils.h"

namespace {

using namespace lumcore::utility;
using lumcore::UTF16String;
using lumcore::UTF8String;

std::string RoundTrip(const std::string& inUTF8) {
  return ToStdString(ToUTF16(inUTF8));
}

TEST(Conversion, IllFormedUTF8BecomesReplacementCharacters) {
  const std::string bad = "\xEF\xBF\xBD";
  const std::pair<std::string, std::string> rows[] = {
      {"plain", "plain"},
      {std::string("a\0b", 3), std::string("a\0b", 3)},
      {"twelve chars\xC3\xA4", "twelve chars\xC3\xA4"},
      {"\xF0\x9F\x98\x80", "\xF0\x9F\x98\x80"},
      {"12345678\xE4"
       "abc",
       "12345678" + bad + "abc"},
      {"\xC0\xAF", bad + bad},                      // overlong
      {"\xED\xA0\x80", bad + bad + bad},            // a surrogate
      {"\xF4\x90\x80\x80", bad + bad + bad + bad},  // behind the last character
      {"\xE2\x82", bad},                            // cut off
      {"\xE2\x82x\x80y", bad + "x" + bad + "y"},
  };
  for (const auto& [bytes, text] : rows)
    EXPECT_EQ(RoundTrip(bytes), text) << bytes;
}

TEST(Conversion, LoneSurrogatesBecomeReplacementCharacters) {
  const UTF16String text = {'a', 0xD83D, 0xDE00, 0xDE00, 'b', 0xD83D};
  EXPECT_EQ(ToStdString(text),
            "a\xF0\x9F\x98\x80\xEF\xBF\xBD"
            "b\xEF\xBF\xBD");
  EXPECT_EQ(ToUTF8(text).size(), 12u);
  EXPECT_EQ(ToStdString(UTF8String{'x', 0xFF}), "x\xEF\xBF\xBD");
}

TEST(Conversion, CaseMappingMayChangeTheLength) {
  const auto upper = [](const char* inText) { return ToStdString(ToUpperCase(ToUTF16(inText))); };
  const auto lower = [](const char* inText) { return ToStdString(ToLowerCase(ToUTF16(inText))); };
  EXPECT_EQ(upper("Stra\xC3\x9F"
                  "e \xEF\xAC\x81"),
            "STRASSE FI");
  EXPECT_EQ(upper("iI"), "II");
  // The sigma at the end of a word has a form of its own, and a dotted capital i comes to two
  // characters.
  EXPECT_EQ(lower("\xCE\xA3\xCE\x91\xCE\xA3"), "\xCF\x83\xCE\xB1\xCF\x82");
  EXPECT_EQ(lower("\xC4\xB0I"), "i\xCC\x87i");
  EXPECT_EQ(upper(""), "");
}

TEST(Conversion, FoldedTextsAreEqualWhereOnlyCaseDiffers) {
  const auto fold = [](const char* inText) { return FoldCase(ToUTF16(inText)); };
  EXPECT_EQ(fold("STRASSE \xCE\xA3"), fold("stra\xC3\x9F"
                                           "e \xCF\x82"));
  EXPECT_EQ(fold("\xC3\x84"), fold("\xC3\xA4"));
  EXPECT_NE(fold("a"), fold("\xC3\xA4"));
}

TEST(Conversion, PlaceholdersAreReplacedInOneWalk) {
  const UTF16String args[] = {ToUTF16("@1"), ToUTF16(""), ToUTF16("two")};
  const auto replace = [&](const char* inText) {
    return ToStdString(ReplaceInString(ToUTF16(inText), {args[0], args[1], args[2]}));
  };
  EXPECT_EQ(replace("<@0|@1|@2|@0>"), "<@1||two|@1>");
  EXPECT_EQ(replace("@3 @ @@2 @-1 @"), "@3 @ @two @-1 @");
  EXPECT_EQ(replace("@21@99999999999999999999"), "two1@99999999999999999999");
  EXPECT_EQ(replace("@002"), "two");
  EXPECT_EQ(ToStdString(ReplaceInString(ToUTF16("@0"), {})), "@0");
}

TEST(Conversion, ColumnsAreCountedAsATerminalHasThem) {
  const auto width = [](const char* inText) {
    return lumcore::utility::GetDisplayWidth(ToUTF16(inText));
  };
  EXPECT_EQ(width("Page Up"), 7u);
  EXPECT_EQ(width("\xE5\x89\xAA\xE5\x88\x87"), 4u);       // two wide characters
  EXPECT_EQ(width("\xF0\x9F\x9A\xA3!"), 3u);              // a picture, of two units
  EXPECT_EQ(width("e\xCC\x81\xE2\x80\x8D\xC3\xA9"), 2u);  // an accent on an e, a joiner, one letter
}

}  // namespace
