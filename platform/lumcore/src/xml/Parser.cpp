// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/xml/Parser.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "lumcore/utility/StringUtils.h"
#include "xml/EventSource.h"

namespace lumcore::xml {

namespace {

UTF16String Describe(const UTF16String& inPath, std::size_t inLine, std::size_t inColumn,
                     const UTF16String& inCause) {
  const std::string place = std::to_string(inLine) + ":" + std::to_string(inColumn) + ": ";
  UTF16String text = inPath;
  if (!text.empty()) text += ':';
  return text + utility::ToUTF16(place) + inCause;
}

}  // namespace

Attributes::Attributes() : mCount(0) {}

Attributes::Attributes(std::vector<Entry> inEntries)
    : mEntries(std::move(inEntries)), mCount(mEntries.size()) {}

const UTF16String* Attributes::Find(const UTF16String& inName) const {
  for (const Entry& entry : *this) {
    if (entry.first == inName) return &entry.second;
  }
  return nullptr;
}

// The names that handlers ask for are ASCII, and a document asks for thousands: so they are
// compared as they are.
const UTF16String* Attributes::Find(const char* inName) const {
  const std::string_view name(inName);
  const auto isASCII = [](unsigned char inByte) { return inByte < 0x80; };
  if (!std::all_of(name.begin(), name.end(), isASCII)) return Find(utility::ToUTF16(name));
  for (const Entry& entry : *this) {
    if (std::equal(entry.first.begin(), entry.first.end(), name.begin(), name.end()))
      return &entry.second;
  }
  return nullptr;
}

AbstractParseHandler::AbstractParseHandler() = default;
AbstractParseHandler::~AbstractParseHandler() = default;

void AbstractParseHandler::StartElement(const UTF16String&, const Attributes&) {}
void AbstractParseHandler::EndElement(const UTF16String&) {}
void AbstractParseHandler::Characters(const UTF16String&) {}
void AbstractParseHandler::Comment(const UTF16String&) {}
void AbstractParseHandler::ProcessingInstruction(const UTF16String&, const UTF16String&) {}
void AbstractParseHandler::StartCDATA() {}
void AbstractParseHandler::EndCDATA() {}
void AbstractParseHandler::Declaration(const UTF16String&, const UTF16String&, int) {}
void AbstractParseHandler::DocumentType(const UTF16String&) {}

void AbstractParseHandler::ThrowParseError(const UTF16String& inCause) const {
  // Outside a parse there is no place to name.
  if (!mSource) throw ParseError(UTF16String(), 0, 0, inCause);
  mSource->ThrowHere(inCause);
}

std::size_t AbstractParseHandler::GetLine() const {
  return mSource ? mSource->GetLine() : 0;
}

ParseError::ParseError(const UTF16String& inPath, std::size_t inLine, std::size_t inColumn,
                       const UTF16String& inCause)
    : Error(Describe(inPath, inLine, inColumn, inCause)),
      mPath(inPath),
      mLine(inLine),
      mColumn(inColumn),
      mCause(inCause) {}

ParseError::~ParseError() = default;

Parser::~Parser() = default;

namespace utils {

UTF16String EncodeReservedCharacters(const UTF16String& inText) {
  UTF16String result;
  result.reserve(inText.size());
  for (const unsigned short unit : inText) {
    switch (unit) {
      case '&':
        result += utility::ToUTF16("&amp;");
        break;
      case '<':
        result += utility::ToUTF16("&lt;");
        break;
      case '>':
        result += utility::ToUTF16("&gt;");
        break;
      case '"':
        result += utility::ToUTF16("&quot;");
        break;
      case '\'':
        result += utility::ToUTF16("&apos;");
        break;
      default:
        result += unit;
    }
  }
  return result;
}

}  // namespace utils

}  // namespace lumcore::xml
