// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "lumcore/Export.h"
#include "lumcore/Strings.h"
#include "lumcore/config/ThrowError.h"
#include "lumcore/filesupport/File.h"

namespace lumcore::xml {

class EventSource;

// The attributes of one element, in the order of the document. Names are qualified names as
// written. What a handler is given is filled anew for the next element: keep a copy, not a
// reference.
class LUMCORE_API Attributes {
 public:
  using Entry = std::pair<UTF16String, UTF16String>;

  Attributes();
  explicit Attributes(std::vector<Entry> inEntries);

  // Null when there is none of that name.
  const UTF16String* Find(const UTF16String& inName) const;
  const UTF16String* Find(const char* inName) const;  // UTF-8

  using const_iterator = std::vector<Entry>::const_iterator;
  const_iterator begin() const { return mEntries.begin(); }
  const_iterator end() const { return mEntries.begin() + static_cast<std::ptrdiff_t>(mCount); }
  std::size_t size() const { return mCount; }
  bool empty() const { return mCount == 0; }

 private:
  friend class EventSource;

  // Entries behind the count wait to be filled again, so that a document of many elements does not
  // ask for new memory for each.
  std::vector<Entry> mEntries;
  std::size_t mCount;
};

// Receives a document as events, in document order. One text may come in several pieces. An
// exception that a handler throws ends the parse and reaches the caller of Parse. A handler may
// parse another document during an event, with this parser or another one.
class LUMCORE_API AbstractParseHandler {
 public:
  AbstractParseHandler();
  virtual ~AbstractParseHandler();
  AbstractParseHandler(const AbstractParseHandler&) = delete;
  AbstractParseHandler& operator=(const AbstractParseHandler&) = delete;

  // All defaults do nothing.
  virtual void StartElement(const UTF16String& inName, const Attributes& inAttributes);
  virtual void EndElement(const UTF16String& inName);
  virtual void Characters(const UTF16String& inText);
  virtual void Comment(const UTF16String& inText);
  virtual void ProcessingInstruction(const UTF16String& inTarget, const UTF16String& inData);
  // Around the characters of a CDATA section.
  virtual void StartCDATA();
  virtual void EndCDATA();
  // The XML declaration, if the document has one. inEncoding is empty where none is given;
  // inStandalone is -1 where it is not given, else 0 or 1.
  virtual void Declaration(const UTF16String& inVersion, const UTF16String& inEncoding,
                           int inStandalone);
  // The document type declaration as it stands in the file, from "<!DOCTYPE" to its ">". The
  // comments and instructions within are part of it and are no events of their own.
  virtual void DocumentType(const UTF16String& inText);

 protected:
  // For a document that is well-formed and still wrong: throws a ParseError with the place of the
  // event that is being handled. To be called during an event only.
  [[noreturn]] void ThrowParseError(const UTF16String& inCause) const;
  // Where the event that is being handled begins, from 1. 0 outside a parse.
  std::size_t GetLine() const;

 private:
  friend class EventSource;

  const EventSource* mSource = nullptr;  // set during a parse
};

// A document that cannot be read. The text is "path:line:column: cause".
class LUMCORE_API ParseError : public config::Error {
 public:
  ParseError(const UTF16String& inPath, std::size_t inLine, std::size_t inColumn,
             const UTF16String& inCause);
  ~ParseError() override;

  const UTF16String& GetPath() const { return mPath; }  // empty for a buffer
  std::size_t GetLine() const { return mLine; }         // from 1
  std::size_t GetColumn() const { return mColumn; }     // in characters, from 1
  const UTF16String& GetCause() const { return mCause; }

 private:
  UTF16String mPath;
  std::size_t mLine;
  std::size_t mColumn;
  UTF16String mCause;
};

// Reads well-formed XML 1.0 in any encoding that ICU has a converter for. A byte order mark, or
// zeros between the first characters, decide over what the declaration names. Internal entities and
// inline document types are read; external ones never are, whatever they name: a document type that
// stands elsewhere is passed over, and a reference to an entity that is declared elsewhere, or
// nowhere, is a ParseError, as its text would be lost.
class LUMCORE_API Parser {
 public:
  virtual ~Parser();

  // Throws FileError, ParseError, and what the handler throws. A parser parses any number of
  // documents, one after the other.
  virtual void Parse(const filesupport::File& inFile) = 0;
  // inName stands in error texts where a path would; it may be empty.
  virtual void Parse(const UTF8String& inBytes, const UTF16String& inName) = 0;
};

// A parser that owns the handler.
LUMCORE_API std::auto_ptr<Parser> GetParser(std::auto_ptr<AbstractParseHandler> inHandler);

namespace utils {

// "&", "<", ">", the quote and the apostrophe become the predefined entities; nothing else changes.
LUMCORE_API UTF16String EncodeReservedCharacters(const UTF16String& inText);

}  // namespace utils

}  // namespace lumcore::xml
