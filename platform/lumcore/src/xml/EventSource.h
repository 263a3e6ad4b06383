// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <expat.h>

#include <cstddef>
#include <exception>
#include <memory>
#include <string>
#include <string_view>

#include "lumcore/Strings.h"
#include "lumcore/xml/Parser.h"
#include "xml/EntityTable.h"

namespace lumcore::xml {

// One parse of one document: turns the parser's calls into a handler's events. No exception passes
// through the parser, which is C: the first one is kept, stops the parse, and is thrown by Run.
class EventSource {
 public:
  // All are borrowed and outlive this.
  EventSource(std::string_view inUTF8, const UTF16String& inName, AbstractParseHandler& inHandler);
  ~EventSource();
  EventSource(const EventSource&) = delete;
  EventSource& operator=(const EventSource&) = delete;

  void Run();

  // Throws a ParseError with the place of the current event.
  [[noreturn]] void ThrowHere(const UTF16String& inCause) const;
  std::size_t GetLine() const;  // of the current event

 private:
  struct Callbacks;

  void SetCallbacks();
  [[noreturn]] void ThrowParserError() const;
  // A text comes from the parser in small pieces and goes to the handler in one.
  void FlushText();
  void FillAttributes(const char** inAttributes);
  [[noreturn]] void ThrowUndeclared(std::string_view inName) const;
  void ThrowIfUndeclared(std::string_view inSource);
  // The bytes of the document that the current event comes from.
  std::string_view GetEventBytes() const;

  void OnStartElement(const char* inName, const char** inAttributes);
  void OnEndElement(const char* inName);
  void OnComment(const char* inText);
  void OnInstruction(const char* inTarget, const char* inData);
  void OnDeclaration(const char* inVersion, const char* inEncoding, int inStandalone);
  void OnOther(std::string_view inBytes);
  void OnEndDocumentType();
  void OnEntity(const char* inName, bool inIsParameter, const char* inValue, int inLength);
  void OnDefaultValue();
  bool OnExternalReference(const char* inContext);
  void OnSkippedEntity(const char* inName, bool inIsParameter);

  const std::string_view mBytes;
  const UTF16String& mName;
  AbstractParseHandler& mHandler;
  std::unique_ptr<XML_ParserStruct, decltype(&XML_ParserFree)> mParser;
  std::exception_ptr mFailure;

  UTF16String mText;
  UTF16String mElementName;
  Attributes mAttributes;
  std::size_t mDepth = 0;

  EntityTable mEntities;
  std::string mDefaultValues;     // of attributes, as written in the document type
  bool mMayDropEntities = false;  // parts of the document type were not read
  bool mInDocumentType = false;
  std::size_t mDocumentTypeStart = 0;
};

}  // namespace lumcore::xml
