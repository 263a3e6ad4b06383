// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "lumcore/RecordingHandler.h"

namespace {

using namespace std::string_literals;

// ASCII with every character in two or four bytes.
std::string Wide(const std::string& inText, std::size_t inUnit, bool inBigEndian) {
  std::string bytes;
  for (const char character : inText) {
    std::string unit(inUnit, '\0');
    unit[inBigEndian ? inUnit - 1 : 0] = character;
    bytes += unit;
  }
  return bytes;
}

struct Encoded {
  const char* encoding;
  std::string text;
  const char* utf8;
};

TEST(XmlEncoding, IsTheOneThatTheDeclarationNames) {
  const Encoded rows[] = {
      {"UTF-8", "\xC3\xA4\xF0\x9F\x98\x80", "\xC3\xA4\xF0\x9F\x98\x80"},
      {"iso-8859-1", "\xE4\xDF", "\xC3\xA4\xC3\x9F"},
      {"ISO-8859-15", "\xA4", "\xE2\x82\xAC"},
      {"windows-1252", "\x80\x93", "\xE2\x82\xAC\xE2\x80\x9C"},
      {"windows-1251", "\xCF\xF0", "\xD0\x9F\xD1\x80"},
      {"KOI8-R", "\xF0\xD2", "\xD0\x9F\xD1\x80"},
      // The second byte of the first character is that of a backslash, of the second one a pipe.
      {"Shift_JIS", "\x95\x5C\x83\x7C", "\xE8\xA1\xA8\xE3\x83\x9D"},
      {"EUC-JP", "\xC6\xFC\xCB\xDC", "\xE6\x97\xA5\xE6\x9C\xAC"},
      {"Big5", "\xA4\xA4\xA4\xE5", "\xE4\xB8\xAD\xE6\x96\x87"},
      {"GB2312", "\xD6\xD0", "\xE4\xB8\xAD"},
      // Four bytes, two of which are digits.
      {"GB18030", "\x94\x39\xFC\x36\xD6\xD0", "\xF0\x9F\x98\x80\xE4\xB8\xAD"},
  };
  for (const Encoded& row : rows) {
    const std::string declaration = "<?xml version='1.0' encoding='"s + row.encoding + "'?>";
    const std::string type = "<!DOCTYPE a [<!ENTITY e '" + row.text + "'>]>";
    EXPECT_EQ(Events(declaration + type + "<a b='" + row.text + "'>&e;</a>"),
              "{xml 1.0|"s + row.encoding + "|-1}{<!DOCTYPE a [<!ENTITY e '" + row.utf8 +
                  "'>]>}<a b='" + row.utf8 + "'>(" + row.utf8 + ")</a>")
        << row.encoding;
  }
}

TEST(XmlEncoding, IsSeenInTheFirstBytes) {
  const std::string plain = "<a>x</a>";
  const std::string declared = "<?xml version='1.0' encoding='UTF-16'?><a>x</a>";
  // A byte order mark knows better than a declaration that was left behind by a conversion.
  const std::string stale = "<?xml version='1.0' encoding='windows-1252'?><a>x</a>";
  for (const bool big : {false, true}) {
    const std::string mark16 = big ? "\xFE\xFF" : "\xFF\xFE";
    const std::string mark32 = big ? "\0\0\xFE\xFF"s : "\xFF\xFE\0\0"s;
    EXPECT_EQ(Events(Wide(plain, 2, big)), "<a>(x)</a>");
    EXPECT_EQ(Events(Wide(plain, 4, big)), "<a>(x)</a>");
    EXPECT_EQ(Events(mark16 + Wide(plain, 2, big)), "<a>(x)</a>");
    EXPECT_EQ(Events(mark32 + Wide(plain, 4, big)), "<a>(x)</a>");
    EXPECT_EQ(Events(Wide(declared, 2, big)), "{xml 1.0|UTF-16|-1}<a>(x)</a>");
    EXPECT_EQ(Events(mark16 + Wide(stale, 2, big)), "{xml 1.0|windows-1252|-1}<a>(x)</a>");
  }
  EXPECT_EQ(Events("\xEF\xBB\xBF<a>\xC3\xA4</a>"), "<a>(\xC3\xA4)</a>");
  EXPECT_EQ(Events("\xFE\xFF\0<\0a\0>\xD8\x3D\xDE\0\0<\0/\0a\0>"s), "<a>(\xF0\x9F\x98\x80)</a>");
}

TEST(XmlEncoding, ReadsEBCDIC) {
  // <?xml version="1.0" encoding="ibm-37"?><a/>
  EXPECT_EQ(Events("\x4C\x6F\xA7\x94\x93\x40\xA5\x85\x99\xA2\x89\x96\x95\x7E\x7F\xF1\x4B\xF0\x7F"
                   "\x40\x85\x95\x83\x96\x84\x89\x95\x87\x7E\x7F\x89\x82\x94\x60\xF3\xF7\x7F\x6F"
                   "\x6E\x4C\x81\x61\x6E"),
            "{xml 1.0|ibm-37|-1}<a></a>");
}

struct Broken {
  std::string bytes;
  const char* error;
};

TEST(XmlEncoding, ErrorsNameThePlaceAndTheBytes) {
  const Broken rows[] = {
      {"<?xml version='1.0' encoding='x-none'?><a/>",
       "doc.xml:1:31: the encoding \"x-none\" is not known"},
      {"<?xml version='1.0'\n  encoding = \"x-none\"?><a/>",
       "doc.xml:2:15: the encoding \"x-none\" is not known"},
      {"<?xml version='1.0' encoding='Shift_JIS'?>\r\n<a>\x95\x5C\x85\x30</a>",
       "doc.xml:2:5: the bytes 85 are no character in the encoding \"Shift_JIS\""},
      {"<?xml version='1.0' encoding='EUC-JP'?>\n<a>\n\xC6",
       "doc.xml:3:1: the bytes C6 are no character in the encoding \"EUC-JP\""},
      {"<?xml version='1.0' encoding='us-ascii'?><a>\xE4</a>",
       "doc.xml:1:45: the bytes E4 are no character in the encoding \"us-ascii\""},
      // A lone surrogate behind a pair, which is one column.
      {"\xFE\xFF\0<\0a\0>\xD8\x3D\xDE\0\xD8\x3D\0<"s,
       "doc.xml:1:5: the bytes D8 3D are no character in the encoding \"UTF-16BE\""},
      {"\xFF\xFE<\0a\0/\0>"s,
       "doc.xml:1:4: the bytes 3E are no character in the encoding \"UTF-16LE\""},
      {"<?xml version='1.0' encoding='UTF-16'?><a/>", nullptr},
      {"<?xml version='1.0' encoding='ibm-37'?><a/>",
       "doc.xml:1:1: encoding specified in XML declaration is incorrect"},
      {"<a>\xC3\xA4\n\xC3\xA4\xE4</a>", "doc.xml:2:2: not well-formed (invalid token)"},
      {"<a>\xC0\xBC/a>", "doc.xml:1:4: not well-formed (invalid token)"},
  };
  for (const Broken& row : rows) {
    if (row.error) {
      EXPECT_EQ(ErrorOf(row.bytes), row.error) << row.bytes;
    } else {
      EXPECT_EQ(ErrorOf(row.bytes).substr(0, 8), "doc.xml:") << row.bytes;
    }
  }
}

}  // namespace
