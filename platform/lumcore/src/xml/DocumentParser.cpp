// Copyright (c) 2026 The vek authors
// SPDX-License-Identifier: MIT

#include "lumcore/xml/ParserFactory.h"

#include <utility>

#include "lumcore/utility/ScopedPtr.h"
#include "lumcore/utility/StringUtils.h"
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

// Never destroyed: objects that die when the process ends may still read a file.
utility::ScopedPtr<DocParserFactory>& Factory() {
  static auto* const sFactory = new utility::ScopedPtr<DocParserFactory>(new DocParserFactory);
  return *sFactory;
}

}  // namespace

DocParserFactory::DocParserFactory() = default;

DocParserFactory::~DocParserFactory() = default;

std::auto_ptr<Parser> DocParserFactory::CreateParser(
    std::auto_ptr<AbstractParseHandler> inHandler) {
  return std::auto_ptr<Parser>(new DocumentParser(inHandler));
}

void SetParserFactory(std::auto_ptr<DocParserFactory> inFactory) {
  Factory().Reset(inFactory.get() ? inFactory.release() : new DocParserFactory);
}

std::auto_ptr<Parser> GetParser(std::auto_ptr<AbstractParseHandler> inHandler) {
  return Factory()->CreateParser(inHandler);
}

}  // namespace lumcore::xml
