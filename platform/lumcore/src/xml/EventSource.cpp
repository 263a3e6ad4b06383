// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "xml/EventSource.h"

#include <algorithm>
#include <new>
#include <utility>

#include "lumcore/config/Localizer.h"
#include "lumcore/utility/ScopedValue.h"
#include "lumcore/utility/StringUtils.h"
#include "utility/AppendUTF16.h"

namespace lumcore::xml {

namespace {

UTF16String Text(const char* inKey, std::initializer_list<UTF16String> inArguments) {
  return utility::ReplaceInString(config::Localizer::Get()->GetLocalizedString(inKey), inArguments);
}

UTF16String TextOrEmpty(const char* inUTF8) {
  return inUTF8 ? utility::ToUTF16(inUTF8) : UTF16String();
}

void Assign(std::string_view inUTF8, UTF16String& outText) {
  outText.clear();
  utility::AppendUTF16(inUTF8, outText);
}

// An element is mostly called as the one before it, and so are its attributes.
void AssignName(std::string_view inUTF8, UTF16String& ioName) {
  const auto isSame = [](unsigned short inUnit, char inByte) {
    return inUnit < 0x80 && inUnit == static_cast<unsigned char>(inByte);
  };
  if (!std::equal(ioName.begin(), ioName.end(), inUTF8.begin(), inUTF8.end(), isSame))
    Assign(inUTF8, ioName);
}

}  // namespace

// What the parser calls. After a failure some calls still follow; they are no events any more.
struct EventSource::Callbacks {
  template <class Function>
  static void Guard(void* inSource, Function inFunction) {
    EventSource& source = *static_cast<EventSource*>(inSource);
    if (source.mFailure) return;
    try {
      inFunction(source);
    } catch (...) {
      // Kept for the caller of Run.
      source.mFailure = std::current_exception();
      XML_StopParser(source.mParser.get(), XML_FALSE);
    }
  }

  static void StartElement(void* inSource, const char* inName, const char** inAttributes) {
    Guard(inSource, [&](EventSource& source) { source.OnStartElement(inName, inAttributes); });
  }
  static void EndElement(void* inSource, const char* inName) {
    Guard(inSource, [&](EventSource& source) { source.OnEndElement(inName); });
  }
  static void Characters(void* inSource, const char* inText, int inLength) {
    Guard(inSource, [&](EventSource& source) {
      utility::AppendUTF16({inText, static_cast<std::size_t>(inLength)}, source.mText);
    });
  }
  static void Comment(void* inSource, const char* inText) {
    Guard(inSource, [&](EventSource& source) { source.OnComment(inText); });
  }
  static void Instruction(void* inSource, const char* inTarget, const char* inData) {
    Guard(inSource, [&](EventSource& source) { source.OnInstruction(inTarget, inData); });
  }
  static void StartCDATA(void* inSource) {
    Guard(inSource, [](EventSource& source) {
      source.FlushText();
      source.mHandler.StartCDATA();
    });
  }
  static void EndCDATA(void* inSource) {
    Guard(inSource, [](EventSource& source) {
      source.FlushText();
      source.mHandler.EndCDATA();
    });
  }
  static void Declaration(void* inSource, const char* inVersion, const char* inEncoding,
                          int inStandalone) {
    Guard(inSource,
          [&](EventSource& source) { source.OnDeclaration(inVersion, inEncoding, inStandalone); });
  }
  static void Other(void* inSource, const char* inBytes, int inLength) {
    Guard(inSource, [&](EventSource& source) {
      source.OnOther({inBytes, static_cast<std::size_t>(inLength)});
    });
  }
  static void EndDocumentType(void* inSource) {
    Guard(inSource, [](EventSource& source) { source.OnEndDocumentType(); });
  }
  static void Entity(void* inSource, const char* inName, int inIsParameter, const char* inValue,
                     int inLength, const char*, const char*, const char*, const char*) {
    Guard(inSource, [&](EventSource& source) {
      source.OnEntity(inName, inIsParameter != 0, inValue, inLength);
    });
  }
  static void DefaultValue(void* inSource, const char*, const char*, const char*,
                           const char* inValue, int) {
    Guard(inSource, [&](EventSource& source) {
      if (inValue) source.OnDefaultValue();
    });
  }
  static int ExternalReference(XML_Parser inParser, const char* inContext, const char*, const char*,
                               const char*) {
    int result = XML_STATUS_ERROR;
    Guard(XML_GetUserData(inParser), [&](EventSource& source) {
      if (source.OnExternalReference(inContext)) result = XML_STATUS_OK;
    });
    return result;
  }
  static void SkippedEntity(void* inSource, const char* inName, int inIsParameter) {
    Guard(inSource,
          [&](EventSource& source) { source.OnSkippedEntity(inName, inIsParameter != 0); });
  }
};

EventSource::EventSource(std::string_view inUTF8, const UTF16String& inName,
                         AbstractParseHandler& inHandler)
    : mBytes(inUTF8),
      mName(inName),
      mHandler(inHandler),
      mParser(XML_ParserCreate("UTF-8"), &XML_ParserFree) {
  if (!mParser) throw std::bad_alloc();
  SetCallbacks();
}

EventSource::~EventSource() = default;

void EventSource::SetCallbacks() {
  const XML_Parser parser = mParser.get();
  XML_SetUserData(parser, this);
  XML_SetElementHandler(parser, &Callbacks::StartElement, &Callbacks::EndElement);
  XML_SetCharacterDataHandler(parser, &Callbacks::Characters);
  XML_SetCommentHandler(parser, &Callbacks::Comment);
  XML_SetProcessingInstructionHandler(parser, &Callbacks::Instruction);
  XML_SetCdataSectionHandler(parser, &Callbacks::StartCDATA, &Callbacks::EndCDATA);
  XML_SetXmlDeclHandler(parser, &Callbacks::Declaration);
  // The form of it that leaves internal entities to the parser.
  XML_SetDefaultHandlerExpand(parser, &Callbacks::Other);
  XML_SetEndDoctypeDeclHandler(parser, &Callbacks::EndDocumentType);
  XML_SetEntityDeclHandler(parser, &Callbacks::Entity);
  XML_SetAttlistDeclHandler(parser, &Callbacks::DefaultValue);
  XML_SetSkippedEntityHandler(parser, &Callbacks::SkippedEntity);
  // Parameter entities of the inline part are read by this; those of other files come to
  // ExternalReference, which opens nothing.
  XML_SetParamEntityParsing(parser, XML_PARAM_ENTITY_PARSING_ALWAYS);
  XML_SetExternalEntityRefHandler(parser, &Callbacks::ExternalReference);
}

void EventSource::Run() {
  // Put back at the end, as the handler may be in the middle of another document.
  const utility::StScopedValue<const EventSource*> source(mHandler.mSource, this);
  // The parser copies what it is given, so it gets little at a time. It counts the bytes of one
  // call in an int.
  constexpr std::size_t kFewBytes = std::size_t{1} << 15;
  constexpr std::size_t kMostBytes = std::size_t{1} << 30;
  std::size_t count = kFewBytes;
  std::string_view rest = mBytes;
  for (bool isLast = false; !isLast;) {
    const std::string_view piece = rest.substr(0, count);
    rest.remove_prefix(piece.size());
    isLast = rest.empty();
    const XML_Status status =
        XML_Parse(mParser.get(), piece.data(), static_cast<int>(piece.size()), isLast);
    if (mFailure) std::rethrow_exception(mFailure);
    if (status == XML_STATUS_ERROR) ThrowParserError();
    // A comment or a tag that has not ended yet is looked through again from its start with each
    // piece; as many bytes again keep that in proportion.
    const XML_Index read = std::max(XML_GetCurrentByteIndex(mParser.get()), XML_Index{0});
    const std::size_t unread = mBytes.size() - rest.size() - static_cast<std::size_t>(read);
    count = std::clamp(unread, kFewBytes, kMostBytes);
  }
}

std::size_t EventSource::GetLine() const {
  return XML_GetCurrentLineNumber(mParser.get());
}

void EventSource::ThrowHere(const UTF16String& inCause) const {
  throw ParseError(mName, GetLine(), XML_GetCurrentColumnNumber(mParser.get()) + 1, inCause);
}

void EventSource::ThrowParserError() const {
  const XML_Error error = XML_GetErrorCode(mParser.get());
  if (error == XML_ERROR_NO_MEMORY) throw std::bad_alloc();
  UTF16String cause = utility::ToUTF16(XML_ErrorString(error));
  // Of a document that was cut off the parser's words alone would leave the reader guessing.
  if (error == XML_ERROR_NO_ELEMENTS && mDepth > 0) {
    cause += Text("$$$/lumcore/xml/Error/CutOff=: the document ends inside an element", {});
  }
  ThrowHere(cause);
}

void EventSource::FlushText() {
  if (mText.empty()) return;
  mHandler.Characters(mText);
  mText.clear();
}

void EventSource::FillAttributes(const char** inAttributes) {
  std::size_t count = 0;
  for (; *inAttributes; inAttributes += 2, ++count) {
    if (count == mAttributes.mEntries.size()) mAttributes.mEntries.emplace_back();
    Attributes::Entry& entry = mAttributes.mEntries[count];
    AssignName(inAttributes[0], entry.first);
    Assign(inAttributes[1], entry.second);
  }
  mAttributes.mCount = count;
}

void EventSource::ThrowUndeclared(std::string_view inName) const {
  ThrowHere(
      Text("$$$/lumcore/xml/Error/UndeclaredEntity=the entity \"@0\" is not declared in this file",
           {utility::ToUTF16(inName)}));
}

void EventSource::ThrowIfUndeclared(std::string_view inSource) {
  const std::string undeclared = mEntities.FindUndeclared(inSource);
  if (!undeclared.empty()) ThrowUndeclared(undeclared);
}

std::string_view EventSource::GetEventBytes() const {
  const XML_Index start = XML_GetCurrentByteIndex(mParser.get());
  if (start < 0) return {};
  return mBytes.substr(static_cast<std::size_t>(start),
                       static_cast<std::size_t>(XML_GetCurrentByteCount(mParser.get())));
}

void EventSource::OnStartElement(const char* inName, const char** inAttributes) {
  FlushText();
  ++mDepth;
  if (mMayDropEntities) ThrowIfUndeclared(GetEventBytes());
  FillAttributes(inAttributes);
  AssignName(inName, mElementName);
  mHandler.StartElement(mElementName, mAttributes);
}

void EventSource::OnEndElement(const char* inName) {
  FlushText();
  --mDepth;
  AssignName(inName, mElementName);
  mHandler.EndElement(mElementName);
}

void EventSource::OnComment(const char* inText) {
  if (mInDocumentType) return;
  FlushText();
  mHandler.Comment(utility::ToUTF16(inText));
}

void EventSource::OnInstruction(const char* inTarget, const char* inData) {
  if (mInDocumentType) return;
  FlushText();
  mHandler.ProcessingInstruction(utility::ToUTF16(inTarget), utility::ToUTF16(inData));
}

void EventSource::OnDeclaration(const char* inVersion, const char* inEncoding, int inStandalone) {
  mHandler.Declaration(TextOrEmpty(inVersion), TextOrEmpty(inEncoding), inStandalone);
}

// The start of the document type comes here, as no handler of its own is set: that one would be
// called too late to know where the text begins.
void EventSource::OnOther(std::string_view inBytes) {
  constexpr std::string_view kStart = "<!DOCTYPE";
  if (mInDocumentType || mDepth > 0 || inBytes.substr(0, kStart.size()) != kStart) return;
  mInDocumentType = true;
  mDocumentTypeStart = static_cast<std::size_t>(XML_GetCurrentByteIndex(mParser.get()));
}

void EventSource::OnEndDocumentType() {
  mInDocumentType = false;
  if (mMayDropEntities) ThrowIfUndeclared(mDefaultValues);
  const auto last = static_cast<std::size_t>(XML_GetCurrentByteIndex(mParser.get()));
  mHandler.DocumentType(
      utility::ToUTF16(mBytes.substr(mDocumentTypeStart, last + 1 - mDocumentTypeStart)));
}

void EventSource::OnEntity(const char* inName, bool inIsParameter, const char* inValue,
                           int inLength) {
  const std::string_view value =
      inValue ? std::string_view(inValue, static_cast<std::size_t>(inLength)) : std::string_view();
  if (mEntities.Declare(inName, inValue ? &value : nullptr, inIsParameter)) return;
  ThrowHere(
      Text("$$$/lumcore/xml/Error/EntityChain=too many entities refer to other entities", {}));
}

// Kept as it is written, from quote to quote: the value that the parser gives has its entities
// replaced, or dropped. The event here is a place in the document without an extent.
void EventSource::OnDefaultValue() {
  const XML_Index start = XML_GetCurrentByteIndex(mParser.get());
  if (start < 0) return;
  const std::string_view rest = mBytes.substr(static_cast<std::size_t>(start));
  // Declared within a parameter entity: the place is that of the reference, not of the value.
  if (rest.empty() || (rest.front() != '"' && rest.front() != '\'')) return;
  mDefaultValues += rest.substr(0, rest.find(rest.front(), 1));
}

// A context stands for a reference in the text, none for a part of the document type.
bool EventSource::OnExternalReference(const char* inContext) {
  if (inContext) {
    ThrowHere(
        Text("$$$/lumcore/xml/Error/ExternalEntity=the entity \"@0\" stands in another file, "
             "and other files are not read",
             {utility::ToUTF16(inContext)}));
  }
  mMayDropEntities = true;
  return true;
}

void EventSource::OnSkippedEntity(const char* inName, bool inIsParameter) {
  if (inIsParameter) {
    mMayDropEntities = true;
  } else {
    ThrowUndeclared(inName);
  }
}

}  // namespace lumcore::xml
