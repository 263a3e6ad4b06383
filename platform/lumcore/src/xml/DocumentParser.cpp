// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include <utility>

#include "lumcore/utility/StringUtils.h"
#include "lumcore/xml/Parser.h"
#include "xml/EventSource.h"
#include "xml/UTF8Document.h"

namespace lumcore::xml {

namespace {

class DocumentParser final : public Parser {
 public:
  explicit DocumentParser(std::auto_ptr<AbstractParseHandler> inHandler)
      : mHandler(inHandler.release()) {}

  void Parse(const filesupport::File& inFile) override {
    Parse(inFile.ReadAll(), utility::ToUTF16(inFile.GetPath()));
  }

  void Parse(const UTF8String& inBytes, const UTF16String& inName) override {
    const UTF8Document document({reinterpret_cast<const char*>(inBytes.data()), inBytes.size()},
                                inName);
    EventSource(document.GetBytes(), inName, *mHandler).Run();
  }

 private:
  const std::unique_ptr<AbstractParseHandler> mHandler;
};

}  // namespace

std::auto_ptr<Parser> GetParser(std::auto_ptr<AbstractParseHandler> inHandler) {
  return std::auto_ptr<Parser>(new DocumentParser(inHandler));
}

}  // namespace lumcore::xml
