// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <gtest/gtest.h>

#include <stdexcept>

#include "lumcore/RecordingHandler.h"

namespace {

using lumcore::UTF16String;
using lumcore::xml::Attributes;

struct Document {
  const char* bytes;
  const char* events;
};

TEST(XmlEvents, ComeInDocumentOrder) {
  const Document documents[] = {
      {"<a/>", "<a></a>"},
      {"<?xml version='1.0'?><a z='1' b='2'>x<b/>y</a>",
       "{xml 1.0||-1}<a z='1' b='2'>(x)<b></b>(y)</a>"},
      {"<?xml version='1.0' encoding='utf-8' standalone='yes'?>\n<!-- c --><a/><?end it now?>",
       "{xml 1.0|utf-8|1}{-- c }<a></a>{?end|it now}"},
      // One text, though it is made of lines, entities and character references.
      {"<a>one\r\ntwo &amp; &#x1F600;\rthree</a>", "<a>(one\ntwo & \xF0\x9F\x98\x80\nthree)</a>"},
      {"<a>x<![CDATA[<y> & ]]>z<![CDATA[]]></a>", "<a>(x)[(<y> & )](z)[]</a>"},
      {"<a>x<!--c-->y<?p?>z</a>", "<a>(x){--c}(y){?p|}(z)</a>"},
      {"<p:a xmlns:p='urn:x' p:b='&lt;&#10;\t'/>", "<p:a xmlns:p='urn:x' p:b='<\n '></p:a>"},
      // Fewer attributes than the element before: none of the old ones are left.
      {"<a x='1' y='2'><b y='3'/><c/></a>", "<a x='1' y='2'><b y='3'></b><c></c></a>"},
  };
  for (const Document& document : documents) {
    EXPECT_EQ(Events(document.bytes), document.events) << document.bytes;
  }
}

TEST(XmlEvents, KeepLongTextsWhole) {
  std::string text;
  for (int line = 0; line < 20000; ++line)
    text += "line \xC3\xA4 " + std::to_string(line) + "\n";
  EXPECT_EQ(Events("<a b='x'>" + text + "</a>"), "<a b='x'>(" + text + ")</a>");
}

TEST(XmlEvents, DocumentTypeStandsAsItIsInTheFile) {
  const std::string inlineType =
      "<!DOCTYPE a [ <!-- > ]> --> <?p q?>\n"
      "  <!ENTITY e \"<b>]></b>\"> <!ATTLIST a d CDATA 'dflt'>\n]  >";
  EXPECT_EQ(Events("<!--1-->" + inlineType + "<!--2--><a/>"),
            "{--1}{" + inlineType + "}{--2}<a d='dflt'></a>");
  EXPECT_EQ(Events("<!DOCTYPE opml SYSTEM 'http://example.org/o.dtd'><opml/>"),
            "{<!DOCTYPE opml SYSTEM 'http://example.org/o.dtd'>}<opml></opml>");
}

TEST(XmlEvents, InternalEntitiesAreRead) {
  EXPECT_EQ(
      Events("<!DOCTYPE a [<!ENTITY e 'x<b c=\"&f;\"/>'><!ENTITY f 'y'>]><a d='&f;&f;'>&e;</a>"),
      "{<!DOCTYPE a [<!ENTITY e 'x<b c=\"&f;\"/>'><!ENTITY f 'y'>]>}"
      "<a d='yy'>(x)<b c='y'></b></a>");
  EXPECT_EQ(Events("<!DOCTYPE a [<!ENTITY % p \"<!ENTITY e 'in p'>\">%p;]><a>&e;</a>"),
            "{<!DOCTYPE a [<!ENTITY % p \"<!ENTITY e 'in p'>\">%p;]>}<a>(in p)</a>");
}

// Throws at the event it is told, or parses another document there.
class ActingHandler : public RecordingHandler {
 public:
  ActingHandler(std::string& ioLog, std::string inAt) : RecordingHandler(ioLog), mAt(inAt) {}

  void StartElement(const UTF16String& inName, const Attributes& inAttributes) override {
    RecordingHandler::StartElement(inName, inAttributes);
    Act(inName);
  }
  void EndElement(const UTF16String& inName) override {
    RecordingHandler::EndElement(inName);
    Act(lumcore::utility::ToUTF16("/") + inName);
  }
  void Characters(const UTF16String& inText) override {
    RecordingHandler::Characters(inText);
    Act(inText);
  }
  void Comment(const UTF16String& inText) override { Act(inText); }
  void DocumentType(const UTF16String&) override { Act(lumcore::utility::ToUTF16("type")); }

  lumcore::xml::Parser* mNested = nullptr;

 private:
  void Act(const UTF16String& inWhat) {
    if (U8(inWhat) != mAt) return;
    mAt.clear();
    if (!mNested) throw std::range_error("thrown at " + U8(inWhat));
    const std::string other = "<n m='1'>deep<o/></n>";
    mNested->Parse(lumcore::UTF8String(other.begin(), other.end()), UTF16String());
    ThrowParseError(lumcore::utility::ToUTF16("not liked"));
  }

  std::string mAt;
};

TEST(XmlEvents, StopAtWhatAHandlerThrows) {
  const std::string document = "<!DOCTYPE a []><!--c--><a>t<b/>u<d/></a>";
  const Document rows[] = {{"type", ""},
                           {"c", ""},
                           {"a", "<a>"},
                           {"t", "<a>(t)"},
                           {"b", "<a>(t)<b>"},
                           {"/b", "<a>(t)<b></b>"},
                           {"u", "<a>(t)<b></b>(u)"}};
  for (const Document& row : rows) {
    std::string log;
    try {
      ParseWith(new ActingHandler(log, row.bytes), document);
      ADD_FAILURE() << row.bytes;
    } catch (const std::range_error& error) {
      EXPECT_EQ(error.what(), "thrown at " + std::string(row.bytes));
    }
    EXPECT_EQ(log, row.events) << row.bytes;
  }
}

// The place in the error is that of the outer document, also after the inner one.
TEST(XmlEvents, HandlerMayParseAnotherDocumentWithTheSameParser) {
  std::string log;
  auto* handler = new ActingHandler(log, "b");
  const auto parser =
      lumcore::xml::GetParser(std::auto_ptr<lumcore::xml::AbstractParseHandler>(handler));
  handler->mNested = parser.get();
  const std::string document = "<a>\n  \xC3\xA4<b c='1'/></a>";
  try {
    parser->Parse(lumcore::UTF8String(document.begin(), document.end()),
                  lumcore::utility::ToUTF16("outer.xml"));
    ADD_FAILURE();
  } catch (const lumcore::xml::ParseError& error) {
    EXPECT_STREQ(error.what(), "outer.xml:2:4: not liked");
  }
  EXPECT_EQ(log, "<a>(\n  \xC3\xA4)<b c='1'><n m='1'>(deep)<o></o></n>");
}

TEST(XmlEvents, ReservedCharactersComeBackAsTheyWere) {
  const std::string text = "a<b> & \"c\" 'd' &amp; \xC3\xA4]]>";
  const std::string encoded = lumcore::utility::ToStdString(
      lumcore::xml::utils::EncodeReservedCharacters(lumcore::utility::ToUTF16(text)));
  EXPECT_EQ(encoded, "a&lt;b&gt; &amp; &quot;c&quot; &apos;d&apos; &amp;amp; \xC3\xA4]]&gt;");
  EXPECT_EQ(Events("<a b='" + encoded + "'>" + encoded + "</a>"),
            "<a b='" + text + "'>(" + text + ")</a>");
}

}  // namespace
