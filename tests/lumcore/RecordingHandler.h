// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"

// Writes the events of a parse into one line: "<a x='1'>", "text", "</a>", "{!-- --}" and so on.
class RecordingHandler : public lumcore::xml::AbstractParseHandler {
 public:
  explicit RecordingHandler(std::string& ioLog) : mLog(ioLog) {}

  void StartElement(const lumcore::UTF16String& inName,
                    const lumcore::xml::Attributes& inAttributes) override {
    mLog += "<" + U8(inName);
    for (const auto& [name, value] : inAttributes)
      mLog += " " + U8(name) + "='" + U8(value) + "'";
    mLog += ">";
  }
  void EndElement(const lumcore::UTF16String& inName) override { mLog += "</" + U8(inName) + ">"; }
  void Characters(const lumcore::UTF16String& inText) override { mLog += "(" + U8(inText) + ")"; }
  void Comment(const lumcore::UTF16String& inText) override { mLog += "{--" + U8(inText) + "}"; }
  void ProcessingInstruction(const lumcore::UTF16String& inTarget,
                             const lumcore::UTF16String& inData) override {
    mLog += "{?" + U8(inTarget) + "|" + U8(inData) + "}";
  }
  void StartCDATA() override { mLog += "["; }
  void EndCDATA() override { mLog += "]"; }
  void Declaration(const lumcore::UTF16String& inVersion, const lumcore::UTF16String& inEncoding,
                   int inStandalone) override {
    mLog +=
        "{xml " + U8(inVersion) + "|" + U8(inEncoding) + "|" + std::to_string(inStandalone) + "}";
  }
  void DocumentType(const lumcore::UTF16String& inText) override { mLog += "{" + U8(inText) + "}"; }

 protected:
  static std::string U8(const lumcore::UTF16String& inText) {
    return lumcore::utility::ToStdString(inText);
  }

 private:
  std::string& mLog;
};

inline void ParseWith(lumcore::xml::AbstractParseHandler* inOwnedHandler, std::string_view inBytes,
                      const char* inName = "doc.xml") {
  const auto parser =
      lumcore::xml::GetParser(std::auto_ptr<lumcore::xml::AbstractParseHandler>(inOwnedHandler));
  parser->Parse(lumcore::UTF8String(inBytes.begin(), inBytes.end()),
                lumcore::utility::ToUTF16(inName));
}

// The events of the document, and behind them the error that ended it, if one did.
inline std::string Events(std::string_view inBytes) {
  std::string log;
  try {
    ParseWith(new RecordingHandler(log), inBytes);
  } catch (const lumcore::xml::ParseError& error) {
    log += " ! " + std::string(error.what());
  }
  return log;
}

inline std::string ErrorOf(std::string_view inBytes) {
  std::string ignored;
  try {
    ParseWith(new RecordingHandler(ignored), inBytes);
  } catch (const lumcore::xml::ParseError& error) {
    return error.what();
  }
  return "no error: " + ignored;
}
