// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <string>

#include "lumcore/RecordingHandler.h"

namespace {

using namespace std::string_literals;

struct Malformed {
  std::string bytes;
  const char* error;
};

void ExpectErrors(const std::initializer_list<Malformed>& inRows) {
  for (const Malformed& row : inRows)
    EXPECT_EQ(ErrorOf(row.bytes), row.error) << row.bytes;
}

TEST(XmlErrors, NameFileLineColumnAndCause) {
  ExpectErrors({
      {"", "doc.xml:1:1: no element found"},
      {"\xEF\xBB\xBF", "doc.xml:1:1: no element found"},
      {"\n<!-- only -->\n", "doc.xml:3:1: no element found"},
      {"<a>\n <b>x", "doc.xml:2:6: no element found: the document ends inside an element"},
      {"<a>\n <b x='1", "doc.xml:2:2: unclosed token"},
      {"<a><![CDATA[x", "doc.xml:1:14: unclosed CDATA section"},
      {"<a>\r\n\xF0\x9F\x98\x80\xC3\xA4</b></a>", "doc.xml:2:5: mismatched tag"},
      {"<a x='1'\n  x='2'/>", "doc.xml:2:3: duplicate attribute"},
      {"<a/><b/>", "doc.xml:1:5: junk after document element"},
      {"<a>\0</a>"s, "doc.xml:1:4: not well-formed (invalid token)"},
      {" <?xml version='1.0'?><a/>", "doc.xml:1:2: XML or text declaration not at start of entity"},
      {"<?xml version='1.0' encoding='&bad;'?><a/>",
       "doc.xml:1:31: XML declaration not well-formed"},
      {"plain text", "doc.xml:1:1: syntax error"},
  });
}

TEST(XmlErrors, ABufferWithoutNameLeavesItOut) {
  std::string log;
  try {
    ParseWith(new RecordingHandler(log), "<a", "");
    ADD_FAILURE();
  } catch (const lumcore::xml::ParseError& error) {
    EXPECT_STREQ(error.what(), "1:1: unclosed token");
  }
}

// A reference whose text is nowhere to be had ends the parse wherever it stands: what a host then
// writes back would lack that text.
TEST(XmlErrors, NoTextIsLostToAnEntityThatIsNotRead) {
  const std::string outside = "<!DOCTYPE a SYSTEM 'a.dtd'>";
  const std::string skipped = "<!DOCTYPE a [<!ENTITY % p SYSTEM 'p.ent'> %p; <!ENTITY late 'x'>]>";
  ExpectErrors({
      {"<a>&u;</a>", "doc.xml:1:4: undefined entity"},
      {"<a b='&u;'/>", "doc.xml:1:1: undefined entity"},
      {outside + "<a>\n&u;</a>", "doc.xml:2:1: the entity \"u\" is not declared in this file"},
      {outside + "\n<a b='&lt;&#38;&u;'/>",
       "doc.xml:2:1: the entity \"u\" is not declared in this file"},
      {skipped + "\n<a b='&late;'/>",
       "doc.xml:2:1: the entity \"late\" is not declared in this file"},
      {"<!DOCTYPE a SYSTEM 'a.dtd' [<!ENTITY e '<b c=\"&u;\"/>'>]>\n<a>&e;</a>",
       "doc.xml:2:4: the entity \"u\" is not declared in this file"},
      {"<!DOCTYPE a SYSTEM 'a.dtd' [<!ATTLIST a b CDATA 'x&u;'>]><a/>",
       "doc.xml:1:57: the entity \"u\" is not declared in this file"},
      {"<!DOCTYPE a [<!ENTITY e SYSTEM '/etc/hostname'>]>\n<a>&e;</a>",
       "doc.xml:2:4: the entity \"e\" stands in another file, and other files are not read"},
      {"<!DOCTYPE a [<!ENTITY e SYSTEM '/etc/hostname'>]>\n<a b='&e;'/>",
       "doc.xml:2:7: reference to external entity in attribute"},
  });
  // What only looks like a reference is none.
  const std::string entity =
      "<!DOCTYPE a SYSTEM 'a.dtd' [<!ENTITY % p \"<!ATTLIST a b CDATA 'x'>\">%p;]>";
  EXPECT_EQ(Events(entity + "<a><![CDATA[&u;%]]></a>"), "{" + entity + "}<a b='x'>[(&u;%)]</a>");
  EXPECT_EQ(Events(outside + "<a b='&lt;&#38;'>&gt;</a>"), "{" + outside + "}<a b='<&'>(>)</a>");
}

TEST(XmlErrors, EntitiesThatGrowWithoutBoundAreRefused) {
  std::string laughs = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
  for (int at = 1; at < 40; ++at) {
    const std::string inner = "&e" + std::to_string(at - 1) + ";";
    laughs += "<!ENTITY e" + std::to_string(at) + " '" + inner + inner + inner + inner + "'>";
  }
  ExpectErrors({
      {laughs + "]>\n<a>&e39;</a>",
       "doc.xml:2:4: limit on input amplification factor (from DTD and entities) breached"},
      {laughs + "]>\n<a b='&e39;'/>",
       "doc.xml:2:1: limit on input amplification factor (from DTD and entities) breached"},
      {"<!DOCTYPE a [<!ENTITY e '&f;'><!ENTITY f '&e;'>]>\n<a>&e;</a>",
       "doc.xml:2:4: recursive entity reference"},
  });
}

TEST(XmlErrors, ChainsOfEntitiesAndDeepElementsDoNotEndTheStack) {
  std::string chain = "<!DOCTYPE a [<!ENTITY e0 'x'>";
  for (int at = 1; at < 100000; ++at) {
    chain += "<!ENTITY e" + std::to_string(at) + " '&e" + std::to_string(at - 1) + ";'>";
  }
  EXPECT_NE(ErrorOf(chain + "]><a>&e99999;</a>").find("too many entities refer to other entities"),
            std::string::npos);

  constexpr int kDepth = 200000;
  std::string deep;
  for (int at = 0; at < kDepth; ++at)
    deep += "<a>";
  const std::string cut = ErrorOf(deep);
  EXPECT_EQ(cut, "doc.xml:1:" + std::to_string(kDepth * 3 + 1) +
                     ": no element found: the document ends inside an element");
  for (int at = 0; at < kDepth; ++at)
    deep += "</a>";
  EXPECT_EQ(ErrorOf(deep).substr(0, 9), "no error:");
}

}  // namespace
