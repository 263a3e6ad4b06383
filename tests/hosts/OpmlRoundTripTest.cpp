// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <random>
#include <string>
#include <string_view>

#include "hosts/OutlineText.h"
#include "lumcore/utility/Encoding.h"
#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "outliner/OpmlReader.h"
#include "outliner/OpmlWriter.h"

namespace {

using lumcore::utility::ToStdString;
using lumcore::utility::ToUTF16;
using outliner::OutlineTree;
using tests::Read;

std::string RoundTrip(const std::string& inBytes) {
  return outliner::WriteOpml(*Read(inBytes));
}

std::string Encoded(std::string_view inUTF8, std::string_view inEncoding) {
  return lumcore::utility::ToEncoding(ToUTF16(inUTF8), inEncoding);
}

struct Case {
  const char* what;
  std::string bytes;
};

// Each comes back byte by byte.
const Case kKeptCases[] = {
    {"a plain file of version 1.0",
     "<?xml version=\"1.0\" encoding=\"ISO-8859-1\"?>\n"
     "<opml version=\"1.0\">\n\t<head>\n\t\t<title>States</title>\n"
     "\t\t<dateCreated>Tue, 15 Mar 2005 16:35:45 GMT</dateCreated>\n"
     "\t\t<expansionState>1,6,13</expansionState>\n\t\t<vertScrollState>1</vertScrollState>\n"
     "\t</head>\n\t<body>\n\t\t<outline text=\"West\">\n"
     "\t\t\t<outline text=\"Nevada\"/>\n\t\t\t<outline text=\"Utah\"/>\n\t\t</outline>\n"
     "\t</body>\n</opml>\n"},
    {"a list of subscriptions, with text in the middle and at the end of the attributes",
     "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\n"
     "<opml version=\"2.0\" xmlns:feed=\"http://example.org/feed\">\n  <head/>\n  <body>\n"
     "    <outline type=\"rss\" text=\"News &amp; more\" title=\"News\""
     " xmlUrl=\"http://example.org/?a=1&amp;b=2\" htmlUrl=\"http://example.org/\"/>\n"
     "    <outline isComment=\"true\" category=\"/a/b,/c\""
     " created=\"Fri, 14 Oct 2005 20:25:00 GMT\" feed:unread=\"7\" text=\"Last\"/>\n"
     "  </body>\n</opml>\n"},
    {"no white space at all, and no declaration",
     "<opml version=\"2.0\"><head><title>t</title></head><body><outline text=\"a\">"
     "<outline text=\"b\"/></outline><outline text=\"c\"/></body></opml>"},
    {"a body without rows", "<opml version=\"2.0\"><head/><body/></opml>\n"},
    {"a body with white space and a comment only",
     "<opml version=\"2.0\">\n<body>\n  <!-- nothing yet -->\n</body>\n</opml>\n"},
    {"white space that no layout explains",
     "<opml version=\"2.0\">\n<body>\n  <outline text=\"a\">  <outline text=\"b\">\n\n</outline>\n"
     "  </outline><outline text=\"c\"/>\n\n    <outline text=\"d\"/>\n</body>\n</opml>\n"},
    {"comments, instructions and a document type around and between",
     "<?xml version=\"1.0\"?>\n<?style href=\"o.css\"?>\n<!-- before -->\n"
     "<!DOCTYPE opml [\n  <!ENTITY me \"Ada\">\n  <!-- inside -->\n]>\n"
     "<opml version=\"2.0\">\n<!-- a -->\n<head>\n<!-- b --></head>\n<body>\n"
     "  <!-- c -->\n  <outline text=\"a\"/>\n  <?check done?>\n  <outline text=\"b\">"
     "<!-- d --></outline>\n  <!-- e -->\n</body>\n<!-- f -->\n</opml>\n<!-- g -->\n<?end?>\n"},
    {"elements of others among the rows, with rows in them that are not ours",
     "<opml version=\"2.0\">\n<head><x:state xmlns:x=\"urn:x\" open=\"1\"><x:v/></x:state></head>\n"
     "<body lang=\"en\" x=\"1\">\n  <meta k=\"v\">loose text<outline text=\"theirs\"/></meta>\n"
     "  <outline text=\"a\">\n    some text &amp; <b>bold</b> text\n    <outline text=\"b\"/>\n"
     "    <![CDATA[raw <&> text]]>\n  </outline>\n</body>\n<body>a second one</body>\n</opml>\n"},
    {"rows without text, without attributes, and with an empty text",
     "<opml version=\"2.0\">\n<body>\n  <outline/>\n  <outline _note=\"n\"/>\n"
     "  <outline text=\"\"/>\n</body>\n</opml>\n"},
    {"line ends, tabs, quotes and brackets in values",
     "<opml version=\"2.0\">\n<body>\n  <outline text=\"a&#10;b&#9;c&#13;d &quot;e&quot; 'f' "
     "&lt;g&gt;"
     "\" _note=\"&#10;&#10;\"/>\n</body>\n</opml>\n"},
    {"line ends of two characters",
     "<?xml version=\"1.0\"?>\r\n<opml version=\"2.0\">\r\n<body>\r\n  <outline text=\"a\"/>\r\n"
     "</body>\r\n</opml>\r\n"},
    {"a byte order mark",
     "\xEF\xBB\xBF<?xml version=\"1.0\" encoding=\"utf-8\"?>\n<opml version=\"2.0\">\n<body>\n"
     "  <outline text=\"\xC3\xA9\xE2\x82\xAC\xF0\x9F\x9A\xA3\"/>\n</body>\n</opml>\n"},
};

TEST(OpmlRoundTrip, WhatIsNotEditedComesBackByteByByte) {
  for (const Case& round : kKeptCases) {
    SCOPED_TRACE(round.what);
    EXPECT_EQ(RoundTrip(round.bytes), round.bytes);
  }
}

TEST(OpmlRoundTrip, FilesKeepTheirEncodingAndCharactersItLacksBecomeReferences) {
  const auto file = [](const char* inName, const char* inText) {
    return std::string("<?xml version=\"1.0\" encoding=\"") + inName +
           "\"?>\n<opml version=\"2.0\">\n<body>\n  <!-- \xC3\xB6 -->\n  <outline text=\"" +
           inText + "\"/>\n</body>\n</opml>\n";
  };
  const char* const kNames[] = {"ISO-8859-1", "windows-1252", "ISO-8859-15", "macintosh"};
  for (const char* name : kNames) {
    SCOPED_TRACE(name);
    const std::string bytes = Encoded(file(name, "caf\xC3\xA9"), name);
    EXPECT_EQ(RoundTrip(bytes), bytes);
    const auto tree = Read(bytes);
    tree->SetText(*tree->GetRoot().GetChild(0), ToUTF16("\xE6\xBC\xA2\xF0\x9F\x9A\xA3"));
    EXPECT_EQ(outliner::WriteOpml(*tree), Encoded(file(name, "&#x6F22;&#x1F6A3;"), name));
  }
  const std::string japanese = Encoded(
      "<?xml version=\"1.0\" encoding=\"Shift_JIS\"?>\n<opml version=\"2.0\">\n<body>\n"
      "  <outline text=\"\xE8\xA1\xA8\xE7\xA4\xBA\"/>\n</body>\n</opml>\n",
      "Shift_JIS");
  EXPECT_EQ(RoundTrip(japanese), japanese);
}

TEST(OpmlRoundTrip, WideEncodingsKeepTheirByteOrderAndMark) {
  const std::string text =
      "<?xml version=\"1.0\" encoding=\"UTF-16\"?>\r\n<opml version=\"2.0\">\r\n<body>\r\n"
      "  <outline text=\"\xC3\xA9\xF0\x9F\x9A\xA3\"/>\r\n</body>\r\n</opml>\r\n";
  const struct {
    std::string mark;
    const char* encoding;
  } kForms[] = {{"\xFF\xFE", "UTF-16LE"},
                {"\xFE\xFF", "UTF-16BE"},
                {"", "UTF-16LE"},
                {"", "UTF-16BE"},
                {std::string("\0\0\xFE\xFF", 4), "UTF-32BE"}};
  for (const auto& form : kForms) {
    SCOPED_TRACE(form.encoding);
    const std::string bytes = form.mark + Encoded(text, form.encoding);
    EXPECT_EQ(RoundTrip(bytes), bytes);
  }
}

TEST(OpmlRoundTrip, FormsThatSayTheSameAreWrittenInOneWay) {
  EXPECT_EQ(RoundTrip("<?xml version='1.0'?><!--c--><opml  version='2.0' ><body ><outline "
                      "text='a\tb\nc' x='>' ></outline></body></opml>"),
            "<?xml version=\"1.0\"?>\n<!--c-->\n<opml version=\"2.0\"><body>"
            "<outline text=\"a b c\" x=\"&gt;\"/></body></opml>");
  EXPECT_EQ(
      RoundTrip("<!DOCTYPE opml [<!ENTITY me \"Ada &#38;#38; Bob\">]><opml><head><title>by &me;"
                "</title></head><body><outline text=\"&me;\"/></body></opml>"),
      "<!DOCTYPE opml [<!ENTITY me \"Ada &#38;#38; Bob\">]>\n<opml><head><title>by Ada &amp; Bob"
      "</title></head><body><outline text=\"Ada &amp; Bob\"/></body></opml>");
}

TEST(OpmlRoundTrip, TheTitleIsTheHeadsAndNoOther) {
  const auto title = [](const char* inOpml) {
    return ToStdString(Read(inOpml)->GetEnvelope().title);
  };
  EXPECT_EQ(title("<opml><title>no</title><head><x><title>no</title></x><title>A &lt;b&gt; "
                  "<![CDATA[&c]]></title><title>no</title></head><body><outline text=\"t\">"
                  "<head><title>no</title></head></outline></body></opml>"),
            "A <b> &c");
  EXPECT_EQ(title("<opml><body/><head><title>late</title></head></opml>"), "late");
  EXPECT_EQ(title("<opml><head/><body/></opml>"), "");
}

TEST(OpmlRoundTrip, TextThatXmlCannotHoldIsReplacedAndNotRefused) {
  auto tree = Read("<opml><body><outline text=\"a\"/></body></opml>");
  lumcore::UTF16String text = ToUTF16("x\x01y");
  text += static_cast<unsigned short>(0xD800);
  text += static_cast<unsigned short>(0xFFFE);
  tree->SetText(*tree->GetRoot().GetChild(0), text);
  EXPECT_EQ(outliner::WriteOpml(*tree),
            "<opml><body><outline text=\"x\xEF\xBF\xBDy\xEF\xBF\xBD\xEF\xBF\xBD\"/></body></opml>");
}

TEST(OpmlRoundTrip, AHundredThousandLevelsAreReadAndWrittenWithoutRecursion) {
  constexpr int kLevels = 100000;
  std::string bytes = "<opml><body>";
  for (int level = 0; level < kLevels; ++level)
    bytes += "<outline text=\"t\">";
  bytes += "<!-- deep -->";
  for (int level = 0; level < kLevels; ++level)
    bytes += "</outline>";
  bytes += "</body></opml>";
  EXPECT_EQ(RoundTrip(bytes), bytes);
}

TEST(OpmlErrors, SayPathLineColumnAndCause) {
  const struct {
    const char* bytes;
    const char* error;
  } kCases[] = {
      {"<opml>\n<body>\n <outline text=\"a\">\n</body>\n</opml>", "o.opml:4:3: mismatched tag"},
      {"<opml>\n<body>\n <outline text=\"a\" text=\"b\"/>\n</body></opml>",
       "o.opml:3:20: duplicate attribute"},
      {"<opml><body>\n<outline text=\"&nbsp;\"/></body></opml>", "o.opml:2:1: undefined entity"},
      {"", "o.opml:1:1: no element found"},
      {"plain text", "o.opml:1:1: syntax error"},
      {"<?xml version=\"1.0\"?>\n<!-- x -->\n<rss version=\"2.0\"/>",
       "o.opml:3:1: this is no outline: its outermost element is \"rss\", not \"opml\""},
      {"<opml>\n<head>\n<body/>\n</head>\n</opml>",
       "o.opml:5:1: this is no outline: the element \"opml\" ends without a body"},
      {"<opml/>", "o.opml:1:8: this is no outline: the element \"opml\" ends without a body"},
  };
  for (const auto& bad : kCases) {
    SCOPED_TRACE(bad.bytes);
    try {
      Read(bad.bytes);
      ADD_FAILURE() << "was read";
    } catch (const lumcore::xml::ParseError& error) {
      EXPECT_EQ(std::string(error.what()).substr(0, std::string(bad.error).size()), bad.error);
    }
  }
}

// Whatever is left of a file or has become of it is read whole, or refused with its place; and what
// was read once says the same when it is written and read again.
TEST(OpmlErrors, DamagedFilesAreReadWholeOrRefusedWithTheirPlace) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t inLimit) { return random() % inLimit; };
  const auto tryToRead = [](const std::string& inBytes) {
    try {
      const std::string once = RoundTrip(inBytes);
      EXPECT_EQ(RoundTrip(once), once) << inBytes;
      return true;
    } catch (const lumcore::xml::ParseError& error) {
      EXPECT_EQ(std::string(error.what()).find("o.opml:"), 0u) << error.what();
      return false;
    }
  };
  for (const Case& whole : kKeptCases) {
    // All but the line end that may stand behind the last tag.
    for (std::size_t length = 0; length + 2 < whole.bytes.rfind("</opml>") + 7; ++length)
      EXPECT_FALSE(tryToRead(whole.bytes.substr(0, length))) << length << " of " << whole.what;
    for (int damage = 0; damage < 200; ++damage) {
      std::string bytes = whole.bytes;
      const std::size_t place = below(bytes.size());
      const auto noise = static_cast<char>(below(256));
      if (damage % 3 == 0) {
        bytes[place] = noise;
      } else if (damage % 3 == 1) {
        bytes.erase(place, 1 + below(30));
      } else {
        bytes.insert(place, 1 + below(3), noise);
      }
      tryToRead(bytes);
    }
  }
}

}  // namespace
